// SPDX-License-Identifier: MIT
#include <afxwin.h>

#include <cctype>
#include <cerrno>
#include <cfloat>
#include <cmath>
#include <cstdlib>
#include <type_traits>

// ---- CDataExchange ------------------------------------------------------------------------------

CDataExchange::CDataExchange(CWnd* pDlgWnd, BOOL bSaveAndValidate)
    : m_bSaveAndValidate(bSaveAndValidate), m_pDlgWnd(pDlgWnd), m_lastControl(nullptr),
      m_lastIsEdit(false) {}

HWND CDataExchange::PrepareCtrl(int nIDC) {
    HWND control = nullptr;
    m_pDlgWnd->GetDlgItem(nIDC, &control);
    if (control == nullptr) {
        TRACE("Error: no control with the identifier %d to exchange data with.\n", nIDC);
        AfxThrowNotSupportedException();
    }
    m_lastControl = control;
    m_lastIsEdit = false;
    return control;
}

HWND CDataExchange::PrepareEditCtrl(int nIDC) {
    const HWND control = PrepareCtrl(nIDC);
    m_lastIsEdit = true;
    return control;
}

void CDataExchange::Fail() {
    if (m_bSaveAndValidate && m_lastControl != nullptr) {
        ::SetFocus(m_lastControl);
        if (m_lastIsEdit) {
            ::SendMessage(m_lastControl, EM_SETSEL, 0, -1);
        }
    }
    AfxThrowUserException();
}

namespace {

// ---- Prompts ------------------------------------------------------------------------------------

struct Prompt {
    UINT id;
    const char* text;
};

constexpr Prompt ParseInt = {AFX_IDP_PARSE_INT, "Please enter an integer."};
constexpr Prompt ParseUint = {AFX_IDP_PARSE_UINT, "Please enter a positive integer."};
constexpr Prompt ParseByte = {AFX_IDP_PARSE_BYTE, "Please enter an integer between 0 and 255."};
constexpr Prompt ParseReal = {AFX_IDP_PARSE_REAL, "Please enter a number."};
constexpr Prompt IntRange = {AFX_IDP_PARSE_INT_RANGE, "Please enter an integer between %1 and %2."};
constexpr Prompt RealRange = {AFX_IDP_PARSE_REAL_RANGE, "Please enter a number between %1 and %2."};
constexpr Prompt StringSize = {AFX_IDP_PARSE_STRING_SIZE,
                               "Please enter no more than %1 characters."};

/// Tells the user and ends the exchange. A program's own string resource goes before our text.
[[noreturn]] void FailWith(CDataExchange& exchange, const Prompt& prompt, const CString& first = {},
                           const CString& second = {}) {
    CString text;
    if (!text.LoadString(prompt.id)) {
        text = prompt.text;
    }
    text.Replace("%1", first);
    text.Replace("%2", second);
    AfxMessageBox(text, MB_ICONEXCLAMATION, prompt.id);
    exchange.Fail();
}

// ---- Numbers as text ----------------------------------------------------------------------------

CString TextOf(HWND control) {
    CString text;
    CWnd::FromHandle(control)->GetWindowText(text);
    return text;
}

bool OnlySpaceFrom(const char* rest) {
    while (std::isspace(static_cast<unsigned char>(*rest))) {
        ++rest;
    }
    return *rest == '\0';
}

/// Parses the whole text as a number of that type. False for anything else and out of its range.
template <class T>
bool Parse(const CString& text, T& value) {
    char* end = nullptr;
    const char* const start = text;
    errno = 0;
    if constexpr (std::is_floating_point_v<T>) {
        const double parsed = std::strtod(start, &end);
        value = static_cast<T>(parsed);
        return end != start && OnlySpaceFrom(end) && std::isfinite(value);
    } else if constexpr (std::is_signed_v<T>) {
        const long long parsed = std::strtoll(start, &end, 10);
        value = static_cast<T>(parsed);
        return end != start && OnlySpaceFrom(end) && errno == 0 && value == parsed;
    } else {
        // strtoull() takes a minus sign and wraps around.
        const unsigned long long parsed = std::strtoull(start, &end, 10);
        value = static_cast<T>(parsed);
        return end != start && OnlySpaceFrom(end) && errno == 0 && value == parsed &&
               text.Find('-') < 0;
    }
}

template <class T>
CString Format(T value) {
    CString text;
    if constexpr (std::is_same_v<T, float>) {
        text.Format("%.*g", FLT_DIG, static_cast<double>(value));
    } else if constexpr (std::is_floating_point_v<T>) {
        text.Format("%.*g", DBL_DIG, value);
    } else if constexpr (std::is_signed_v<T>) {
        text.Format("%I64d", static_cast<long long>(value));
    } else {
        text.Format("%I64u", static_cast<unsigned long long>(value));
    }
    return text;
}

template <class T>
void ExchangeNumber(CDataExchange& exchange, int id, T& value, const Prompt& prompt) {
    const HWND control = exchange.PrepareEditCtrl(id);
    if (!exchange.m_bSaveAndValidate) {
        ::SetWindowText(control, Format(value));
        return;
    }
    T parsed{};
    if (!Parse(TextOf(control), parsed)) {
        FailWith(exchange, prompt);
    }
    value = parsed;
}

template <class T>
void CheckRange(CDataExchange& exchange, T value, T minimum, T maximum, const Prompt& prompt) {
    ASSERT(minimum <= maximum);
    if (exchange.m_bSaveAndValidate && !(value >= minimum && value <= maximum)) {
        FailWith(exchange, prompt, Format(minimum), Format(maximum));
    }
}

} // namespace

// ---- DDX: controls and text ---------------------------------------------------------------------

void AFXAPI DDX_Control(CDataExchange* pDX, int nIDC, CWnd& rControl) {
    if (rControl.m_hWnd != nullptr) {
        return;
    }
    if (!rControl.SubclassWindow(pDX->PrepareCtrl(nIDC))) {
        AfxThrowNotSupportedException();
    }
}

void AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, BYTE& value) {
    ExchangeNumber(*pDX, nIDC, value, ParseByte);
}

void AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, int& value) {
    ExchangeNumber(*pDX, nIDC, value, ParseInt);
}

void AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, UINT& value) {
    ExchangeNumber(*pDX, nIDC, value, ParseUint);
}

void AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, LONGLONG& value) {
    ExchangeNumber(*pDX, nIDC, value, ParseInt);
}

void AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, ULONGLONG& value) {
    ExchangeNumber(*pDX, nIDC, value, ParseUint);
}

void AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, double& value) {
    ExchangeNumber(*pDX, nIDC, value, ParseReal);
}

void AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, CString& value) {
    const HWND control = pDX->PrepareEditCtrl(nIDC);
    if (pDX->m_bSaveAndValidate) {
        value = TextOf(control);
    } else {
        ::SetWindowText(control, value);
    }
}

void AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, LPTSTR value, UINT nMaxLen) {
    ASSERT(nMaxLen != 0);
    const HWND control = pDX->PrepareEditCtrl(nIDC);
    if (!pDX->m_bSaveAndValidate) {
        ::SetWindowText(control, value);
        return;
    }
    if (::GetWindowTextLength(control) >= static_cast<int>(nMaxLen)) {
        FailWith(*pDX, StringSize, Format(nMaxLen - 1));
    }
    ::GetWindowText(control, value, static_cast<int>(nMaxLen));
}

// ---- DDX: buttons and scroll bars ---------------------------------------------------------------

void AFXAPI DDX_Check(CDataExchange* pDX, int nIDC, int& value) {
    const HWND control = pDX->PrepareCtrl(nIDC);
    if (pDX->m_bSaveAndValidate) {
        value = static_cast<int>(::SendMessage(control, BM_GETCHECK, 0, 0));
        return;
    }
    const bool valid = value >= BST_UNCHECKED && value <= BST_INDETERMINATE;
    ::SendMessage(control, BM_SETCHECK, valid ? static_cast<WPARAM>(value) : BST_UNCHECKED, 0);
}

void AFXAPI DDX_Radio(CDataExchange* pDX, int nIDC, int& value) {
    HWND button = pDX->PrepareCtrl(nIDC);
    if (pDX->m_bSaveAndValidate) {
        value = -1;
    }
    int index = 0;
    do {
        const LRESULT code = ::SendMessage(button, WM_GETDLGCODE, 0, 0);
        if ((code & DLGC_RADIOBUTTON) != 0) {
            if (!pDX->m_bSaveAndValidate) {
                ::SendMessage(button, BM_SETCHECK, index == value ? BST_CHECKED : BST_UNCHECKED, 0);
            } else if (::SendMessage(button, BM_GETCHECK, 0, 0) != BST_UNCHECKED) {
                value = index;
            }
            ++index;
        }
        button = ::GetWindow(button, GW_HWNDNEXT);
    } while (button != nullptr && (::GetWindowLongPtr(button, GWL_STYLE) & WS_GROUP) == 0);
}

void AFXAPI DDX_Scroll(CDataExchange* pDX, int nIDC, int& value) {
    const HWND control = pDX->PrepareCtrl(nIDC);
    if (pDX->m_bSaveAndValidate) {
        value = ::GetScrollPos(control, SB_CTL);
    } else {
        ::SetScrollPos(control, SB_CTL, value, TRUE);
    }
}

// ---- DDX: lists ---------------------------------------------------------------------------------

namespace {

/// The messages with which a list box and a combo box answer the same questions.
struct ListMessages {
    UINT getCurSel, setCurSel, selectString, findExact;
};

constexpr ListMessages ListBoxMessages = {LB_GETCURSEL, LB_SETCURSEL, LB_SELECTSTRING,
                                          LB_FINDSTRINGEXACT};
constexpr ListMessages ComboBoxMessages = {CB_GETCURSEL, CB_SETCURSEL, CB_SELECTSTRING,
                                           CB_FINDSTRINGEXACT};

static_assert(LB_ERR == CB_ERR, "both lists fail alike");

LPARAM ToParam(const CString& text) {
    return reinterpret_cast<LPARAM>(static_cast<LPCTSTR>(text));
}

void ExchangeIndex(CDataExchange& exchange, int id, int& index, const ListMessages& messages) {
    const HWND control = exchange.PrepareCtrl(id);
    if (exchange.m_bSaveAndValidate) {
        index = static_cast<int>(::SendMessage(control, messages.getCurSel, 0, 0));
    } else {
        ::SendMessage(control, messages.setCurSel, static_cast<WPARAM>(index), 0);
    }
}

/// Selects an item by its text. False when there is none.
bool Select(HWND control, const CString& text, bool exact, const ListMessages& messages) {
    const auto fromStart = static_cast<WPARAM>(-1);
    if (!exact) {
        return ::SendMessage(control, messages.selectString, fromStart, ToParam(text)) != LB_ERR;
    }
    const LRESULT found = ::SendMessage(control, messages.findExact, fromStart, ToParam(text));
    if (found == LB_ERR) {
        return false;
    }
    ::SendMessage(control, messages.setCurSel, static_cast<WPARAM>(found), 0);
    return true;
}

CString SelectedText(HWND listBox) {
    CString text;
    const LRESULT index = ::SendMessage(listBox, LB_GETCURSEL, 0, 0);
    if (index == LB_ERR) {
        return text;
    }
    const LRESULT length = ::SendMessage(listBox, LB_GETTEXTLEN, static_cast<WPARAM>(index), 0);
    if (length > 0) {
        ::SendMessage(listBox, LB_GETTEXT, static_cast<WPARAM>(index),
                      reinterpret_cast<LPARAM>(text.GetBufferSetLength(static_cast<int>(length))));
        text.ReleaseBuffer();
    }
    return text;
}

void ExchangeListString(CDataExchange& exchange, int id, CString& value, bool exact) {
    const HWND control = exchange.PrepareCtrl(id);
    if (exchange.m_bSaveAndValidate) {
        value = SelectedText(control);
    } else {
        Select(control, value, exact, ListBoxMessages);
    }
}

void ExchangeComboString(CDataExchange& exchange, int id, CString& value, bool exact) {
    const HWND control = exchange.PrepareCtrl(id);
    if (exchange.m_bSaveAndValidate) {
        value = TextOf(control);
    } else if (!Select(control, value, exact, ComboBoxMessages)) {
        ::SetWindowText(control, value);
    }
}

} // namespace

void AFXAPI DDX_LBIndex(CDataExchange* pDX, int nIDC, int& index) {
    ExchangeIndex(*pDX, nIDC, index, ListBoxMessages);
}

void AFXAPI DDX_LBString(CDataExchange* pDX, int nIDC, CString& value) {
    ExchangeListString(*pDX, nIDC, value, false);
}

void AFXAPI DDX_LBStringExact(CDataExchange* pDX, int nIDC, CString& value) {
    ExchangeListString(*pDX, nIDC, value, true);
}

void AFXAPI DDX_CBIndex(CDataExchange* pDX, int nIDC, int& index) {
    ExchangeIndex(*pDX, nIDC, index, ComboBoxMessages);
}

void AFXAPI DDX_CBString(CDataExchange* pDX, int nIDC, CString& value) {
    ExchangeComboString(*pDX, nIDC, value, false);
}

void AFXAPI DDX_CBStringExact(CDataExchange* pDX, int nIDC, CString& value) {
    ExchangeComboString(*pDX, nIDC, value, true);
}

// ---- DDV ----------------------------------------------------------------------------------------

void AFXAPI DDV_MaxChars(CDataExchange* pDX, CString const& value, int nChars) {
    ASSERT(nChars >= 1);
    if (!pDX->m_bSaveAndValidate) {
        pDX->LimitLastEdit(nChars);
    } else if (value.GetLength() > nChars) {
        FailWith(*pDX, StringSize, Format(nChars));
    }
}

void CDataExchange::LimitLastEdit(int characters) const {
    if (m_lastControl != nullptr && m_lastIsEdit) {
        ::SendMessage(m_lastControl, EM_LIMITTEXT, static_cast<WPARAM>(characters), 0);
    }
}

void AFXAPI DDV_MinMaxInt(CDataExchange* pDX, int value, int minVal, int maxVal) {
    CheckRange(*pDX, value, minVal, maxVal, IntRange);
}

void AFXAPI DDV_MinMaxDouble(CDataExchange* pDX, double const& value, double minVal,
                             double maxVal) {
    CheckRange(*pDX, value, minVal, maxVal, RealRange);
}
