// SPDX-License-Identifier: MIT
#include "tests/support/DialogTemplate.h"

#include <initializer_list>

DialogTemplate::DialogTemplate(const std::string& title, int width, int height, DWORD style) {
    style |= DS_SETFONT;
    for (const int value :
         {static_cast<int>(LOWORD(style)), static_cast<int>(HIWORD(style)), 0, 0, // extended style
          0,                            // number of controls, counted up by Add
          20, 20, width, height, 0, 0}) // no menu, the standard class
        Word(static_cast<WORD>(value));
    Text(title);
    Word(8);
    Text("MS Shell Dlg");
}

DialogTemplate& DialogTemplate::Add(const std::string& windowClass, const std::string& text,
                                    WORD id, DWORD styles, int x, int y, int width, int height) {
    styles |= WS_CHILD | WS_VISIBLE;
    if (m_data.size() % 2 != 0)
        Word(0); // each control starts at a multiple of four bytes
    for (const int value : {static_cast<int>(LOWORD(styles)), static_cast<int>(HIWORD(styles)), 0,
                            0, x, y, width, height, static_cast<int>(id)})
        Word(static_cast<WORD>(value));
    Text(windowClass);
    Text(text);
    Word(0); // no creation data
    ++m_data[4];
    return *this;
}

void DialogTemplate::Text(const std::string& text) {
    for (const char character : text)
        Word(static_cast<unsigned char>(character)); // the tests write ASCII
    Word(0);
}
