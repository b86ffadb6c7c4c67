// SPDX-License-Identifier: MIT
#pragma once

#include <afxwin.h>

#include "automation/RealInput.h"
#include "tests/support/DialogTemplate.h"
#include "tests/support/Pump.h"

constexpr WORD kSubject = 101;

/// A dialog with one control under test between two buttons, and the mouse elsewhere.
template <class Control>
class SubjectDialog : public CDialog {
public:
    ~SubjectDialog() override { DestroyWindow(); }

    void Open(const char* windowClass, const char* text, DWORD style) {
        m_template.Add("BUTTON", "First", 100, WS_TABSTOP, 10, 10, 60, 16)
            .Add(windowClass, text, kSubject, style, 10, 40, 90, 20)
            .Add("BUTTON", "OK", IDOK, BS_DEFPUSHBUTTON | WS_TABSTOP, 10, 70, 60, 16);
        ParkMouse();
        CreateIndirect(m_template.Get(), nullptr);
        ::SetForegroundWindow(m_hWnd);
        PumpFor(30);
    }

    static void ParkMouse() { automation::MoveMouse({700, 500}); }

    Control m_subject;

protected:
    void DoDataExchange(CDataExchange* exchange) override {
        CDialog::DoDataExchange(exchange);
        DDX_Control(exchange, kSubject, m_subject);
    }

private:
    DialogTemplate m_template{"Decorations", 200, 120};
};
