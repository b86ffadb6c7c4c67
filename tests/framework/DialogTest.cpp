// SPDX-License-Identifier: MIT
// Dialogs: modal and modeless, real keys, nesting; data exchange and validation.
#include <afxpriv.h>

#include <gtest/gtest.h>

#include <cstring>
#include <functional>
#include <string>
#include <vector>

#include "automation/RealInput.h"
#include "tests/support/DialogTemplate.h"
#include "tests/support/Pump.h"

namespace {

constexpr UINT WM_STEP = WM_APP + 7;
constexpr int IDC_EDIT = 1001;
constexpr int IDC_APPLY = 1002;
constexpr int ID_GOSUB = 0x8123;

DialogTemplate PlainTemplate() {
    DialogTemplate dialog("dialog", 160, 80);
    dialog.Add("Edit", "", IDC_EDIT, WS_TABSTOP | WS_BORDER, 5, 5, 100, 12);
    dialog.Add("Button", "OK", IDOK, WS_TABSTOP | BS_DEFPUSHBUTTON, 5, 25, 40, 14);
    dialog.Add("Button", "Cancel", IDCANCEL, WS_TABSTOP, 50, 25, 40, 14);
    dialog.Add("Button", "Apply", IDC_APPLY, WS_TABSTOP, 95, 25, 40, 14);
    dialog.Add("Button", "Gosub", ID_GOSUB, WS_TABSTOP, 5, 45, 40, 14);
    return dialog;
}

/// A dialog that, once it runs, does what a test gives it.
class StepDialog : public CDialog {
public:
    explicit StepDialog(CWnd* parent = nullptr) {
        EXPECT_TRUE(InitModalIndirect(m_template.Get(), parent));
    }
    std::function<void()> m_step;
    std::function<BOOL()> m_onInit;
    std::function<LRESULT(LONG)> m_onIdle;
    int m_applied = 0;
    int m_keysSeen = 0;
    int m_ended = 0;

    BOOL OnInitDialog() override {
        CDialog::OnInitDialog();
        // The second post comes after whatever showing the dialog has posted.
        PostMessage(WM_STEP, 1);
        return m_onInit ? m_onInit() : TRUE;
    }
    BOOL PreTranslateMessage(MSG* msg) override {
        m_keysSeen += msg->message == WM_KEYDOWN ? 1 : 0;
        return CDialog::PreTranslateMessage(msg);
    }

protected:
    void PostNcDestroy() override { ++m_ended; }
    afx_msg LRESULT OnStep(WPARAM wParam, LPARAM) {
        if (wParam != 0) {
            PostMessage(WM_STEP);
        } else if (m_step) {
            SetForegroundWindow();
            m_step();
        }
        return 0;
    }
    afx_msg LRESULT OnKickIdle(WPARAM why, LPARAM count) {
        EXPECT_EQ(why, static_cast<WPARAM>(MSGF_DIALOGBOX));
        return m_onIdle ? m_onIdle(static_cast<LONG>(count)) : FALSE;
    }
    afx_msg void OnApply() { ++m_applied; }
    DECLARE_MESSAGE_MAP()

private:
    const DialogTemplate m_template = PlainTemplate();
};

BEGIN_MESSAGE_MAP(StepDialog, CDialog)
    ON_MESSAGE(WM_STEP, &StepDialog::OnStep)
    ON_MESSAGE(WM_KICKIDLE, &StepDialog::OnKickIdle)
    ON_BN_CLICKED(IDC_APPLY, &StepDialog::OnApply)
END_MESSAGE_MAP()

// ---- Modal dialogs ------------------------------------------------------------------------------

TEST(ModalDialog, KeysAndButtonsEndIt) {
    const struct {
        const char* name;
        std::function<void(StepDialog&)> step;
        INT_PTR result;
    } rows[] = {
        {"Enter", [](StepDialog&) { automation::TypeKey(VK_RETURN); }, IDOK},
        {"Escape", [](StepDialog&) { automation::TypeKey(VK_ESCAPE); }, IDCANCEL},
        {"OK", [](StepDialog& d) { d.GetDlgItem(IDOK)->SendMessage(BM_CLICK); }, IDOK},
        {"Cancel", [](StepDialog& d) { d.GetDlgItem(IDCANCEL)->SendMessage(BM_CLICK); }, IDCANCEL},
        {"Close", [](StepDialog& d) { d.SendMessage(WM_CLOSE); }, IDCANCEL},
        {"EndDialog", [](StepDialog& d) { d.EndDialog(77); }, 77},
        {"destroyed", [](StepDialog& d) { d.DestroyWindow(); }, -1},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        StepDialog dialog;
        dialog.m_step = [&] { row.step(dialog); };
        EXPECT_EQ(dialog.DoModal(), row.result);
        EXPECT_EQ(dialog.m_hWnd, nullptr);
        EXPECT_EQ(dialog.m_ended, 1);
    }
}

TEST(ModalDialog, PreTranslateMessageSeesTheKeys) {
    StepDialog dialog;
    dialog.m_step = [&] {
        automation::TypeKey('A');
        automation::TypeKey(VK_TAB);
        automation::TypeKey(VK_ESCAPE);
    };
    EXPECT_EQ(dialog.DoModal(), IDCANCEL);
    EXPECT_EQ(dialog.m_keysSeen, 3);
}

TEST(ModalDialog, EnterPressesTheDefaultButton) {
    StepDialog dialog;
    dialog.m_onInit = [&] {
        EXPECT_EQ(dialog.GetDefID(), static_cast<DWORD>(MAKELONG(IDOK, DC_HASDEFID)));
        dialog.SetDefID(IDC_APPLY);
        return TRUE;
    };
    dialog.m_step = [&] {
        automation::TypeKey(VK_RETURN);
        automation::TypeKey(VK_ESCAPE);
    };
    EXPECT_EQ(dialog.DoModal(), IDCANCEL);
    EXPECT_EQ(dialog.m_applied, 1);
}

TEST(ModalDialog, TheFocusMovesThroughTheControls) {
    StepDialog dialog;
    std::vector<int> order;
    dialog.m_step = [&] {
        const auto note = [&] { order.push_back(::GetDlgCtrlID(::GetFocus())); };
        note();
        dialog.NextDlgCtrl();
        note();
        dialog.GotoDlgCtrl(dialog.GetDlgItem(IDC_APPLY));
        note();
        dialog.PrevDlgCtrl();
        note();
        dialog.EndDialog(1);
    };
    dialog.DoModal();
    EXPECT_EQ(order, (std::vector<int>{IDC_EDIT, IDOK, IDC_APPLY, IDCANCEL}));
}

TEST(ModalDialog, EndedBeforeItIsShown) {
    StepDialog dialog;
    int steps = 0;
    dialog.m_step = [&] { ++steps; };
    dialog.m_onInit = [&] {
        dialog.EndDialog(5);
        return TRUE;
    };
    EXPECT_EQ(dialog.DoModal(), 5);
    EXPECT_EQ(steps, 0);
}

TEST(ModalDialog, FailuresGiveTheDocumentedResults) {
    CDialog missing(static_cast<UINT>(4711));
    EXPECT_EQ(missing.DoModal(), -1);
    class Bare : public CDialog {
    } bare;
    EXPECT_FALSE(bare.InitModalIndirect(static_cast<LPCDLGTEMPLATE>(nullptr)));
    // A template that names a window class nobody has registered.
    DialogTemplate broken("broken", 50, 50);
    broken.Add("no such class", "", 5, 0, 0, 0, 5, 5);
    EXPECT_TRUE(bare.InitModalIndirect(broken.Get()));
    EXPECT_EQ(bare.DoModal(), -1);
    EXPECT_EQ(bare.m_hWnd, nullptr);
}

TEST(ModalDialog, ATemplateInGlobalMemory) {
    const DialogTemplate plain = PlainTemplate();
    constexpr SIZE_T generous = 1024;
    const HGLOBAL memory = ::GlobalAlloc(GMEM_MOVEABLE | GMEM_ZEROINIT, generous);
    std::memcpy(::GlobalLock(memory), plain.Get(), 600);
    ::GlobalUnlock(memory);
    class Once : public CDialog {
    public:
        BOOL OnInitDialog() override {
            EndDialog(9);
            return FALSE;
        }
    } dialog;
    EXPECT_TRUE(dialog.InitModalIndirect(memory));
    EXPECT_EQ(dialog.DoModal(), 9);
    EXPECT_EQ(::GlobalFree(memory), nullptr);
}

class OwnerWindow : public CWnd {
public:
    bool m_wasEnabled = true;
    int m_idleCalls = 0;
    BOOL OnCmdMsg(UINT id, int code, void* extra, AFX_CMDHANDLERINFO* info) override {
        if (id == ID_GOSUB && code == CN_COMMAND && info == nullptr) {
            ++m_gosubs;
            return TRUE;
        }
        return CWnd::OnCmdMsg(id, code, extra, info);
    }
    int m_gosubs = 0;

protected:
    afx_msg void OnEnterIdle(UINT why, CWnd* who) {
        EXPECT_EQ(why, static_cast<UINT>(MSGF_DIALOGBOX));
        EXPECT_NE(who, nullptr);
        ++m_idleCalls;
    }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(OwnerWindow, CWnd)
    ON_WM_ENTERIDLE()
END_MESSAGE_MAP()

class OwnedDialog : public testing::Test {
protected:
    void SetUp() override {
        ASSERT_TRUE(m_owner.CreateEx(0, nullptr, "owner", WS_POPUP | WS_VISIBLE,
                                     CRect(0, 0, 300, 200), nullptr, 0));
        m_owner.SetForegroundWindow();
        PumpFor(50);
    }
    void TearDown() override { m_owner.DestroyWindow(); }

    OwnerWindow m_owner;
};

TEST_F(OwnedDialog, TheOwnerIsDisabledMeanwhileAndActiveAgainAfterwards) {
    StepDialog dialog(&m_owner);
    bool ownerEnabled = true;
    HWND active = nullptr;
    dialog.m_step = [&] {
        ownerEnabled = m_owner.IsWindowEnabled() != FALSE;
        active = ::GetActiveWindow();
        EXPECT_EQ(active, dialog.m_hWnd);
        dialog.EndDialog(1);
    };
    EXPECT_EQ(dialog.DoModal(), 1);
    EXPECT_FALSE(ownerEnabled);
    EXPECT_TRUE(m_owner.IsWindowEnabled());
    EXPECT_EQ(::GetActiveWindow(), m_owner.m_hWnd);
}

TEST_F(OwnedDialog, IdleTimeIsOfferedToTheOwnerAndToTheDialog) {
    StepDialog dialog(&m_owner);
    dialog.m_onIdle = [&](LONG count) -> LRESULT {
        if (count == 2) {
            dialog.EndDialog(1);
        }
        return TRUE; // there is more to do
    };
    EXPECT_EQ(dialog.DoModal(), 1);
    EXPECT_GT(m_owner.m_idleCalls, 0);
}

TEST_F(OwnedDialog, DialogsNest) {
    StepDialog outer(&m_owner);
    INT_PTR innerResult = 0;
    outer.m_step = [&] {
        StepDialog inner(&outer);
        inner.m_step = [&] {
            EXPECT_FALSE(outer.IsWindowEnabled());
            EXPECT_FALSE(m_owner.IsWindowEnabled());
            automation::TypeKey(VK_ESCAPE);
        };
        innerResult = inner.DoModal();
        EXPECT_TRUE(outer.IsWindowEnabled());
        EXPECT_FALSE(m_owner.IsWindowEnabled());
        EXPECT_EQ(::GetActiveWindow(), outer.m_hWnd);
        automation::TypeKey(VK_RETURN);
    };
    EXPECT_EQ(outer.DoModal(), IDOK);
    EXPECT_EQ(innerResult, IDCANCEL);
    EXPECT_TRUE(m_owner.IsWindowEnabled());
}

TEST_F(OwnedDialog, ACommandButtonGivesTheCommandToTheOwner) {
    StepDialog dialog(&m_owner);
    dialog.m_step = [&] {
        dialog.GetDlgItem(ID_GOSUB)->SendMessage(BM_CLICK);
        dialog.EndDialog(1);
    };
    dialog.DoModal();
    EXPECT_EQ(m_owner.m_gosubs, 1);
}

TEST_F(OwnedDialog, TheEndOfTheProgramEndsTheDialog) {
    StepDialog dialog(&m_owner);
    dialog.m_step = [] { ::PostQuitMessage(3); };
    EXPECT_EQ(dialog.DoModal(), -1);
    MSG msg = {};
    ASSERT_TRUE(::PeekMessage(&msg, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE));
    EXPECT_EQ(msg.wParam, 3U); // the loop outside ends, too
}

TEST_F(OwnedDialog, ModelessDialogs) {
    StepDialog dialog;
    const DialogTemplate plain = PlainTemplate();
    ASSERT_TRUE(dialog.CreateIndirect(plain.Get(), &m_owner));
    EXPECT_TRUE(m_owner.IsWindowEnabled());
    EXPECT_TRUE(dialog.IsWindowVisible());
    EXPECT_EQ(dialog.GetParent(), &m_owner);
    dialog.EndDialog(1);
    EXPECT_NE(dialog.m_hWnd, nullptr);
    EXPECT_FALSE(dialog.IsWindowVisible());
    CRect rect(0, 0, 4, 8);
    dialog.MapDialogRect(&rect);
    EXPECT_GT(rect.right, 4);
    EXPECT_TRUE(dialog.DestroyWindow());
    EXPECT_FALSE(dialog.Create(static_cast<UINT>(4711), &m_owner));
}

/// An application that notes what it is to show or answer.
class NotingApp : public CWinApp {
public:
    std::vector<std::string> m_boxes;
    int m_exceptions = 0;
    int DoMessageBox(LPCTSTR text, UINT, UINT) override {
        m_boxes.push_back(text);
        return IDOK;
    }
    LRESULT ProcessWndProcException(CException*, const MSG*) override {
        ++m_exceptions;
        return 0;
    }
};

TEST(ModalDialog, AnExceptionInOnInitDialogEndsIt) {
    NotingApp app;
    StepDialog dialog;
    dialog.m_onInit = []() -> BOOL { AfxThrowResourceException(); };
    EXPECT_EQ(dialog.DoModal(), -1);
    EXPECT_EQ(app.m_exceptions, 1);
    EXPECT_EQ(dialog.m_hWnd, nullptr);
}

// ---- Data exchange ------------------------------------------------------------------------------

enum { IDC_TEXT = 2000, IDC_CHECK, IDC_RADIO1, IDC_RADIO2, IDC_LIST, IDC_COMBO, IDC_SCROLL };

/// Exchanges what a test gives it with one control of each kind.
class DataDialog : public CDialog {
public:
    std::function<void(CDataExchange*)> m_exchange;
    int m_changes = 0;

    DataDialog() {
        m_template.Add("Edit", "", IDC_TEXT, WS_TABSTOP | ES_AUTOHSCROLL, 5, 5, 100, 12);
        m_template.Add("Button", "check", IDC_CHECK, BS_AUTO3STATE, 5, 20, 60, 10);
        m_template.Add("Button", "1", IDC_RADIO1, WS_GROUP | BS_AUTORADIOBUTTON, 5, 30, 60, 10);
        m_template.Add("Button", "2", IDC_RADIO2, BS_AUTORADIOBUTTON, 5, 40, 60, 10);
        m_template.Add("ListBox", "", IDC_LIST, WS_GROUP | LBS_NOTIFY, 5, 50, 60, 30);
        m_template.Add("ComboBox", "", IDC_COMBO, CBS_DROPDOWN | WS_VSCROLL, 70, 50, 60, 50);
        m_template.Add("ScrollBar", "", IDC_SCROLL, SBS_HORZ, 5, 85, 60, 10);
        EXPECT_TRUE(CreateIndirect(m_template.Get()));
        for (const char* const item : {"apple", "apricot", "plum"}) {
            SendDlgItemMessage(IDC_LIST, LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(item));
            SendDlgItemMessage(IDC_COMBO, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(item));
        }
        SetScrollRangeOfBar();
        m_changes = 0;
    }
    ~DataDialog() override { DestroyWindow(); }

    /// One exchange with one call.
    template <class Call>
    BOOL Exchange(BOOL save, Call call) {
        m_exchange = call;
        return UpdateData(save);
    }
    CString Text(int id) {
        CString text;
        GetDlgItemText(id, text);
        return text;
    }

protected:
    void DoDataExchange(CDataExchange* exchange) override {
        CDialog::DoDataExchange(exchange);
        if (m_exchange) {
            m_exchange(exchange);
        }
    }
    afx_msg void OnChange() { ++m_changes; }
    DECLARE_MESSAGE_MAP()

private:
    void SetScrollRangeOfBar() {
        ::SetScrollRange(::GetDlgItem(m_hWnd, IDC_SCROLL), SB_CTL, 0, 50, FALSE);
    }
    DialogTemplate m_template{"data", 150, 110};
};

BEGIN_MESSAGE_MAP(DataDialog, CDialog)
    ON_EN_CHANGE(IDC_TEXT, &DataDialog::OnChange)
END_MESSAGE_MAP()

class DataExchange : public testing::Test {
protected:
    /// Loads `loaded`, checks the text, then saves `typed` and checks what comes of it.
    template <class T>
    void RoundTrip(T loaded, const char* text, const char* typed, bool accepted, T saved) {
        T value = loaded;
        const auto call = [&](CDataExchange* dx) { DDX_Text(dx, IDC_TEXT, value); };
        EXPECT_TRUE(m_dialog.Exchange(FALSE, call));
        EXPECT_STREQ(m_dialog.Text(IDC_TEXT), text);
        m_dialog.SetDlgItemText(IDC_TEXT, typed);
        const size_t boxes = m_app.m_boxes.size();
        EXPECT_EQ(m_dialog.Exchange(TRUE, call), accepted) << typed;
        EXPECT_EQ(m_app.m_boxes.size() - boxes, accepted ? 0U : 1U) << typed;
        EXPECT_EQ(value, accepted ? saved : loaded) << typed;
    }

    NotingApp m_app;
    DataDialog m_dialog;
};

TEST_F(DataExchange, NumbersAsText) {
    RoundTrip<int>(-5, "-5", " 2147483647 ", true, 2147483647);
    RoundTrip<int>(1, "1", "2147483648", false, 0);
    RoundTrip<int>(1, "1", "12x", false, 0);
    RoundTrip<int>(1, "1", "", false, 0);
    RoundTrip<short>(-7, "-7", "-32768", true, -32768);
    RoundTrip<short>(1, "1", "32768", false, 0);
    RoundTrip<BYTE>(200, "200", "255", true, 255);
    RoundTrip<BYTE>(1, "1", "256", false, 0);
    RoundTrip<UINT>(4000000000U, "4000000000", "4294967295", true, 4294967295U);
    RoundTrip<UINT>(1, "1", "-1", false, 0);
    RoundTrip<long>(-9, "-9", "10", true, 10);
    RoundTrip<DWORD>(9, "9", "4294967296", false, 0);
    RoundTrip<LONGLONG>(-9, "-9", "9223372036854775807", true, 9223372036854775807LL);
    RoundTrip<LONGLONG>(1, "1", "9223372036854775808", false, 0);
    RoundTrip<ULONGLONG>(9, "9", "18446744073709551615", true, 18446744073709551615ULL);
    RoundTrip<float>(0.5F, "0.5", "1.25", true, 1.25F);
    RoundTrip<double>(1.0 / 8, "0.125", "1e3", true, 1000.0);
    RoundTrip<double>(1, "1", "1e999", false, 0);
    RoundTrip<double>(1, "1", "one", false, 0);
    RoundTrip<CString>("text", "text", "other", true, "other");
}

TEST_F(DataExchange, TextIntoABuffer) {
    char buffer[6] = "abcde";
    const auto call = [&](CDataExchange* dx) { DDX_Text(dx, IDC_TEXT, buffer, sizeof(buffer)); };
    EXPECT_TRUE(m_dialog.Exchange(FALSE, call));
    EXPECT_EQ(m_dialog.Text(IDC_TEXT), "abcde");
    m_dialog.SetDlgItemText(IDC_TEXT, "12345");
    EXPECT_TRUE(m_dialog.Exchange(TRUE, call));
    EXPECT_STREQ(buffer, "12345");
    m_dialog.SetDlgItemText(IDC_TEXT, "123456");
    EXPECT_FALSE(m_dialog.Exchange(TRUE, call));
    EXPECT_STREQ(buffer, "12345");
}

TEST_F(DataExchange, ButtonsAndScrollBars) {
    int value = BST_INDETERMINATE;
    const auto check = [&](CDataExchange* dx) { DDX_Check(dx, IDC_CHECK, value); };
    m_dialog.Exchange(FALSE, check);
    EXPECT_EQ(m_dialog.IsDlgButtonChecked(IDC_CHECK), static_cast<UINT>(BST_INDETERMINATE));
    m_dialog.CheckDlgButton(IDC_CHECK, BST_CHECKED);
    m_dialog.Exchange(TRUE, check);
    EXPECT_EQ(value, BST_CHECKED);
    value = 17;
    m_dialog.Exchange(FALSE, check);
    EXPECT_EQ(m_dialog.IsDlgButtonChecked(IDC_CHECK), static_cast<UINT>(BST_UNCHECKED));

    const auto radio = [&](CDataExchange* dx) { DDX_Radio(dx, IDC_RADIO1, value); };
    value = 1;
    m_dialog.Exchange(FALSE, radio);
    EXPECT_EQ(m_dialog.GetCheckedRadioButton(IDC_RADIO1, IDC_RADIO2), IDC_RADIO2);
    value = 0;
    m_dialog.Exchange(TRUE, radio);
    EXPECT_EQ(value, 1);
    value = -1;
    m_dialog.Exchange(FALSE, radio);
    EXPECT_EQ(m_dialog.GetCheckedRadioButton(IDC_RADIO1, IDC_RADIO2), 0);
    value = 5;
    m_dialog.Exchange(TRUE, radio);
    EXPECT_EQ(value, -1);

    const auto scroll = [&](CDataExchange* dx) { DDX_Scroll(dx, IDC_SCROLL, value); };
    value = 20;
    m_dialog.Exchange(FALSE, scroll);
    value = 0;
    m_dialog.Exchange(TRUE, scroll);
    EXPECT_EQ(value, 20);
}

TEST_F(DataExchange, Lists) {
    using StringCall = void(AFXAPI*)(CDataExchange*, int, CString&);
    const struct {
        StringCall call;
        int id;
        const char* loaded;
        const char* saved;
    } strings[] = {
        {&DDX_LBString, IDC_LIST, "apr", "apricot"},
        {&DDX_LBStringExact, IDC_LIST, "plum", "plum"},
        {&DDX_LBStringExact, IDC_LIST, "apr", "plum"}, // there is none: the selection stays
        {&DDX_CBString, IDC_COMBO, "apr", "apricot"},
        {&DDX_CBString, IDC_COMBO, "cherry", "cherry"},
        {&DDX_CBStringExact, IDC_COMBO, "plum", "plum"},
        {&DDX_CBStringExact, IDC_COMBO, "apr", "apr"},
    };
    for (const auto& row : strings) {
        SCOPED_TRACE(row.loaded);
        CString value = row.loaded;
        const auto call = [&](CDataExchange* dx) { row.call(dx, row.id, value); };
        EXPECT_TRUE(m_dialog.Exchange(FALSE, call));
        EXPECT_TRUE(m_dialog.Exchange(TRUE, call));
        EXPECT_EQ(value, row.saved);
    }
    for (const int id : {IDC_LIST, IDC_COMBO}) {
        int index = 1;
        const auto call = [&](CDataExchange* dx) {
            id == IDC_LIST ? DDX_LBIndex(dx, id, index) : DDX_CBIndex(dx, id, index);
        };
        m_dialog.Exchange(FALSE, call);
        index = 0;
        m_dialog.Exchange(TRUE, call);
        EXPECT_EQ(index, 1);
        index = -1;
        m_dialog.Exchange(FALSE, call);
        m_dialog.Exchange(TRUE, call);
        EXPECT_EQ(index, LB_ERR);
    }
    CString none = "x";
    m_dialog.SendDlgItemMessage(IDC_LIST, LB_SETCURSEL, static_cast<WPARAM>(-1));
    m_dialog.Exchange(TRUE, [&](CDataExchange* dx) { DDX_LBString(dx, IDC_LIST, none); });
    EXPECT_TRUE(none.IsEmpty());
}

TEST_F(DataExchange, RangesInPairs) {
    const struct {
        const char* name;
        std::function<void(CDataExchange*)> last;  ///< the last accepted
        std::function<void(CDataExchange*)> first; ///< the first refused
    } rows[] = {
        {"byte", [](auto* dx) { DDV_MinMaxByte(dx, 9, 1, 9); },
         [](auto* dx) { DDV_MinMaxByte(dx, 10, 1, 9); }},
        {"short", [](auto* dx) { DDV_MinMaxShort(dx, -9, -9, 9); },
         [](auto* dx) { DDV_MinMaxShort(dx, -10, -9, 9); }},
        {"int", [](auto* dx) { DDV_MinMaxInt(dx, 9, -9, 9); },
         [](auto* dx) { DDV_MinMaxInt(dx, 10, -9, 9); }},
        {"long", [](auto* dx) { DDV_MinMaxLong(dx, -9, -9, 9); },
         [](auto* dx) { DDV_MinMaxLong(dx, -10, -9, 9); }},
        {"UINT", [](auto* dx) { DDV_MinMaxUInt(dx, 4000000000U, 1, 4000000000U); },
         [](auto* dx) { DDV_MinMaxUInt(dx, 4000000001U, 1, 4000000000U); }},
        {"unsigned", [](auto* dx) { DDV_MinMaxUnsigned(dx, 1, 1, 2); },
         [](auto* dx) { DDV_MinMaxUnsigned(dx, 0, 1, 2); }},
        {"DWORD", [](auto* dx) { DDV_MinMaxDWord(dx, 2, 1, 2); },
         [](auto* dx) { DDV_MinMaxDWord(dx, 3, 1, 2); }},
        {"LONGLONG", [](auto* dx) { DDV_MinMaxLongLong(dx, 1LL << 40, 0, 1LL << 40); },
         [](auto* dx) { DDV_MinMaxLongLong(dx, (1LL << 40) + 1, 0, 1LL << 40); }},
        {"ULONGLONG", [](auto* dx) { DDV_MinMaxULongLong(dx, 1ULL << 63, 0, 1ULL << 63); },
         [](auto* dx) { DDV_MinMaxULongLong(dx, (1ULL << 63) + 1, 0, 1ULL << 63); }},
        {"float", [](auto* dx) { DDV_MinMaxFloat(dx, 1.5F, 0, 1.5F); },
         [](auto* dx) { DDV_MinMaxFloat(dx, 1.75F, 0, 1.5F); }},
        {"double", [](auto* dx) { DDV_MinMaxDouble(dx, 0.5, 0.5, 1); },
         [](auto* dx) { DDV_MinMaxDouble(dx, 0.25, 0.5, 1); }},
        {"string", [](auto* dx) { DDV_MaxChars(dx, "abc", 3); },
         [](auto* dx) { DDV_MaxChars(dx, "abcd", 3); }},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        m_app.m_boxes.clear();
        EXPECT_TRUE(m_dialog.Exchange(TRUE, row.last));
        EXPECT_FALSE(m_dialog.Exchange(TRUE, row.first));
        EXPECT_TRUE(m_dialog.Exchange(FALSE, row.first)) << "only data to be saved is checked";
        EXPECT_EQ(m_app.m_boxes.size(), 1U);
    }
    EXPECT_EQ(m_app.m_boxes[0], "Please enter no more than 3 characters.");
}

TEST_F(DataExchange, AFailureShowsWhere) {
    m_dialog.SetForegroundWindow();
    m_dialog.GetDlgItem(IDC_LIST)->SetFocus();
    m_dialog.SetDlgItemText(IDC_TEXT, "12");
    bool after = false;
    EXPECT_FALSE(m_dialog.Exchange(TRUE, [&](CDataExchange* dx) {
        int value = 0;
        DDX_Text(dx, IDC_TEXT, value);
        DDV_MinMaxInt(dx, value, 1, 9);
        after = true;
    }));
    EXPECT_FALSE(after);
    EXPECT_EQ(m_app.m_boxes.back(), "Please enter an integer between 1 and 9.");
    EXPECT_EQ(::GetDlgCtrlID(::GetFocus()), IDC_TEXT);
    const auto selection = static_cast<DWORD>(m_dialog.SendDlgItemMessage(IDC_TEXT, EM_GETSEL));
    EXPECT_EQ(selection, static_cast<DWORD>(MAKELONG(0, 2)));
}

TEST_F(DataExchange, MaxCharsLimitsTheEditControl) {
    CString value = "ab";
    m_dialog.Exchange(FALSE, [&](CDataExchange* dx) {
        DDX_Text(dx, IDC_TEXT, value);
        DDV_MaxChars(dx, value, 3);
    });
    EXPECT_EQ(m_dialog.SendDlgItemMessage(IDC_TEXT, EM_GETLIMITTEXT), 3);
}

TEST_F(DataExchange, ControlsAreSubclassedOnce) {
    class Edit : public CEdit {
    public:
        int m_texts = 0;

    protected:
        LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
            m_texts += message == WM_SETTEXT ? 1 : 0;
            return CEdit::WindowProc(message, wParam, lParam);
        }
    } edit;
    const auto call = [&](CDataExchange* dx) { DDX_Control(dx, IDC_TEXT, edit); };
    EXPECT_TRUE(m_dialog.Exchange(FALSE, call));
    EXPECT_TRUE(m_dialog.Exchange(FALSE, call));
    EXPECT_TRUE(m_dialog.Exchange(TRUE, call));
    EXPECT_EQ(m_dialog.GetDlgItem(IDC_TEXT), &edit);
    m_dialog.SetDlgItemText(IDC_TEXT, "x");
    EXPECT_EQ(edit.m_texts, 1);
    edit.UnsubclassWindow();
}

TEST_F(DataExchange, NotificationsStayAwayDuringTheExchange) {
    CString value = "loaded";
    m_dialog.SetDlgItemText(IDC_TEXT, "typed");
    EXPECT_EQ(m_dialog.m_changes, 1);
    m_dialog.Exchange(FALSE, [&](CDataExchange* dx) { DDX_Text(dx, IDC_TEXT, value); });
    EXPECT_EQ(m_dialog.m_changes, 1);
    m_dialog.SetDlgItemText(IDC_TEXT, "again");
    EXPECT_EQ(m_dialog.m_changes, 2);
}

// ---- Initial contents ---------------------------------------------------------------------------

/// Writes an RT_DLGINIT resource.
class DlgInit {
public:
    DlgInit& Entry(WORD id, WORD message, const std::string& text) {
        Put(id);
        Put(message);
        Put(static_cast<DWORD>(text.size() + 1));
        m_data.insert(m_data.end(), text.c_str(), text.c_str() + text.size() + 1);
        return *this;
    }
    std::vector<char> Ended() {
        Put(WORD{0});
        return m_data;
    }

private:
    template <class T>
    void Put(T value) {
        const auto* const bytes = reinterpret_cast<const char*>(&value);
        m_data.insert(m_data.end(), bytes, bytes + sizeof(value));
    }
    std::vector<char> m_data;
};

TEST_F(DataExchange, InitialContentsOfLists) {
    std::vector<char> data = DlgInit()
                                 .Entry(IDC_COMBO, 0x0403, "pear")
                                 .Entry(IDC_COMBO, CB_ADDSTRING, "quince")
                                 .Entry(IDC_LIST, LB_ADDSTRING, "rhubarb")
                                 .Entry(IDC_TEXT, WM_SETTEXT, "not a list")
                                 .Ended();
    EXPECT_TRUE(m_dialog.ExecuteDlgInit(static_cast<LPVOID>(data.data())));
    EXPECT_EQ(m_dialog.SendDlgItemMessage(IDC_COMBO, CB_GETCOUNT), 5);
    EXPECT_EQ(m_dialog.SendDlgItemMessage(IDC_LIST, LB_GETCOUNT), 4);
    EXPECT_EQ(m_dialog.Text(IDC_TEXT), "");
    EXPECT_TRUE(m_dialog.ExecuteDlgInit(MAKEINTRESOURCE(4711))); // no resource, nothing to do
}

TEST_F(DataExchange, InitialContentsThatClaimTooMuch) {
    std::vector<char> data = DlgInit().Entry(IDC_COMBO, CB_ADDSTRING, "pear").Ended();
    const DWORD length = 0x7FFFFFFF;
    std::memcpy(data.data() + 2 * sizeof(WORD), &length, sizeof(length));
    m_dialog.ExecuteDlgInit(static_cast<LPVOID>(data.data()));
    EXPECT_EQ(m_dialog.SendDlgItemMessage(IDC_COMBO, CB_GETCOUNT), 3);
}

} // namespace
