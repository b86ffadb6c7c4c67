// SPDX-License-Identifier: MIT
// Dialogs: modal and modeless, real keys, nesting; data exchange and validation.
#include <afxpriv.h>

#include <gtest/gtest.h>

#include <cstring>
#include <functional>
#include <string>
#include <utility>
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
    std::function<void()> m_onInit;
    int m_applied = 0;
    int m_keysSeen = 0;
    int m_ended = 0;

    BOOL OnInitDialog() override {
        CDialog::OnInitDialog();
        // The second post comes after whatever showing the dialog has posted.
        PostMessage(WM_STEP, 1);
        if (m_onInit)
            m_onInit();
        return TRUE;
    }
    INT_PTR Run(std::function<void()> step) {
        m_step = std::move(step);
        return DoModal();
    }
    void Click(int id) { GetDlgItem(id)->SendMessage(BM_CLICK); }
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
    afx_msg void OnApply() { ++m_applied; }
    DECLARE_MESSAGE_MAP()

private:
    const DialogTemplate m_template = PlainTemplate();
};

BEGIN_MESSAGE_MAP(StepDialog, CDialog)
    ON_MESSAGE(WM_STEP, &StepDialog::OnStep)
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
        {"OK", [](StepDialog& d) { d.Click(IDOK); }, IDOK},
        {"Cancel", [](StepDialog& d) { d.Click(IDCANCEL); }, IDCANCEL},
        {"Close", [](StepDialog& d) { d.SendMessage(WM_CLOSE); }, IDCANCEL},
        {"EndDialog", [](StepDialog& d) { d.EndDialog(77); }, 77},
        {"destroyed", [](StepDialog& d) { d.DestroyWindow(); }, -1},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        StepDialog dialog;
        EXPECT_EQ(dialog.Run([&] { row.step(dialog); }), row.result);
        EXPECT_EQ(dialog.m_hWnd, nullptr);
        EXPECT_EQ(dialog.m_ended, 1);
    }
}

TEST(ModalDialog, KeysPassPreTranslateMessageAndEnterPressesTheDefaultButton) {
    StepDialog dialog;
    dialog.m_onInit = [&] {
        EXPECT_EQ(dialog.GetDefID(), static_cast<DWORD>(MAKELONG(IDOK, DC_HASDEFID)));
        dialog.SetDefID(IDC_APPLY);
    };
    const INT_PTR result = dialog.Run([] {
        for (const WORD key : {WORD{'A'}, WORD{VK_RETURN}, WORD{VK_ESCAPE}})
            automation::TypeKey(key);
    });
    EXPECT_EQ(result, IDCANCEL);
    EXPECT_EQ(dialog.m_keysSeen, 3);
    EXPECT_EQ(dialog.m_applied, 1);
}

TEST(ModalDialog, MayEndBeforeItIsShownAndMayFail) {
    StepDialog dialog;
    int steps = 0;
    dialog.m_onInit = [&] { dialog.EndDialog(5); };
    EXPECT_EQ(dialog.Run([&] { ++steps; }), 5);
    EXPECT_EQ(steps, 0);
    CDialog missing(static_cast<UINT>(4711));
    EXPECT_EQ(missing.DoModal(), -1);
    class Bare : public CDialog {
    } bare;
    // A template that names a window class nobody has registered.
    DialogTemplate broken("broken", 50, 50);
    broken.Add("no such class", "", 5, 0, 0, 0, 5, 5);
    EXPECT_TRUE(bare.InitModalIndirect(broken.Get()));
    EXPECT_EQ(bare.DoModal(), -1);
    EXPECT_EQ(bare.m_hWnd, nullptr);
}

class OwnerWindow : public CWnd {
public:
    int m_gosubs = 0;

protected:
    BOOL OnCmdMsg(UINT id, int code, void* extra, AFX_CMDHANDLERINFO* info) override {
        if (id == ID_GOSUB && code == CN_COMMAND && info == nullptr)
            return ++m_gosubs, TRUE;
        return CWnd::OnCmdMsg(id, code, extra, info);
    }
};

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

TEST_F(OwnedDialog, OwnersAreDisabledMeanwhileAndActiveAgainAfterwards) {
    StepDialog outer(&m_owner);
    INT_PTR innerResult = 0;
    const INT_PTR outerResult = outer.Run([&] {
        EXPECT_FALSE(m_owner.IsWindowEnabled());
        EXPECT_EQ(::GetActiveWindow(), outer.m_hWnd);
        StepDialog inner(&outer);
        innerResult = inner.Run([&] {
            EXPECT_FALSE(outer.IsWindowEnabled() || m_owner.IsWindowEnabled());
            automation::TypeKey(VK_ESCAPE);
        });
        EXPECT_TRUE(outer.IsWindowEnabled());
        EXPECT_FALSE(m_owner.IsWindowEnabled());
        EXPECT_EQ(::GetActiveWindow(), outer.m_hWnd);
        automation::TypeKey(VK_RETURN);
    });
    EXPECT_EQ(outerResult, IDOK);
    EXPECT_EQ(innerResult, IDCANCEL);
    EXPECT_TRUE(m_owner.IsWindowEnabled());
    EXPECT_EQ(::GetActiveWindow(), m_owner.m_hWnd);
}

TEST_F(OwnedDialog, LackOfMemoryInItsLoopEndsIt) {
    class Starved : public StepDialog {
    public:
        using StepDialog::StepDialog;
        BOOL PreTranslateMessage(MSG*) override { throw std::bad_alloc(); }
    } dialog(&m_owner);
    EXPECT_EQ(dialog.Run([] {}), IDABORT);
    EXPECT_TRUE(m_owner.IsWindowEnabled());
    EXPECT_EQ(dialog.m_hWnd, nullptr);
}

TEST_F(OwnedDialog, ACommandButtonGivesTheCommandToTheOwner) {
    StepDialog dialog(&m_owner);
    dialog.Run([&] {
        dialog.Click(ID_GOSUB);
        dialog.EndDialog(1);
    });
    EXPECT_EQ(m_owner.m_gosubs, 1);
}

TEST_F(OwnedDialog, TheEndOfTheProgramEndsTheDialog) {
    StepDialog dialog(&m_owner);
    EXPECT_EQ(dialog.Run([] { ::PostQuitMessage(3); }), -1);
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
    LRESULT ProcessWndProcException(CException*, const MSG*) override { return ++m_exceptions, 0; }
};

TEST(ModalDialog, AnExceptionInOnInitDialogEndsIt) {
    NotingApp app;
    StepDialog dialog;
    dialog.m_onInit = [] { AfxThrowResourceException(); };
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
        ::SetScrollRange(::GetDlgItem(m_hWnd, IDC_SCROLL), SB_CTL, 0, 50, FALSE);
        m_changes = 0;
    }
    ~DataDialog() override { DestroyWindow(); }

    /// One exchange with one call.
    BOOL Exchange(BOOL save, std::function<void(CDataExchange*)> call) {
        m_exchange = std::move(call);
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
        if (m_exchange)
            m_exchange(exchange);
    }
    afx_msg void OnChange() { ++m_changes; }
    DECLARE_MESSAGE_MAP()

private:
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

    /// Loads one value into a control, then saves into another: what comes back.
    template <class Ddx, class T>
    T Through(Ddx ddx, int id, T value, T before) {
        EXPECT_TRUE(m_dialog.Exchange(FALSE, [&](CDataExchange* dx) { ddx(dx, id, value); }));
        value = before;
        EXPECT_TRUE(m_dialog.Exchange(TRUE, [&](CDataExchange* dx) { ddx(dx, id, value); }));
        return value;
    }

    NotingApp m_app;
    DataDialog m_dialog;
};

TEST_F(DataExchange, NumbersAsText) {
    RoundTrip<int>(-5, "-5", " 2147483647 ", true, 2147483647);
    RoundTrip<int>(1, "1", "2147483648", false, 0);
    RoundTrip<int>(1, "1", "12x", false, 0);
    RoundTrip<BYTE>(200, "200", "255", true, 255);
    RoundTrip<UINT>(4000000000U, "4000000000", "4294967295", true, 4294967295U);
    RoundTrip<UINT>(1, "1", "-1", false, 0);
    RoundTrip<LONGLONG>(1, "1", "9223372036854775808", false, 0);
    RoundTrip<ULONGLONG>(9, "9", "18446744073709551615", true, 18446744073709551615ULL);
    RoundTrip<double>(1.0 / 8, "0.125", "1e3", true, 1000.0);
    RoundTrip<CString>("text", "text", "other", true, "other");
}

TEST_F(DataExchange, LimitsAreInclusive) {
    const auto accepted = [this](auto check) { return m_dialog.Exchange(TRUE, check) != FALSE; };
    for (const int value : {0, 1, 9, 10}) {
        const bool inside = value >= 1 && value <= 9;
        const auto whole = [&](CDataExchange* dx) { DDV_MinMaxInt(dx, value, 1, 9); };
        const auto real = [&](CDataExchange* dx) { DDV_MinMaxDouble(dx, value, 1, 9); };
        const auto text = [&](CDataExchange* dx) { DDV_MaxChars(dx, CString('x', value), 9); };
        EXPECT_EQ(accepted(whole), inside) << value;
        EXPECT_EQ(accepted(real), inside) << value;
        EXPECT_EQ(accepted(text), value <= 9) << value;
        EXPECT_TRUE(m_dialog.Exchange(FALSE, whole)) << "only data to be saved is checked";
    }
    EXPECT_EQ(m_app.m_boxes.size(), 5U);
    EXPECT_EQ(m_app.m_boxes.back(), "Please enter no more than 9 characters.");
}

TEST_F(DataExchange, TextFitsItsBuffer) {
    char buffer[6] = "abcde";
    const auto call = [&](CDataExchange* dx) { DDX_Text(dx, IDC_TEXT, buffer, sizeof(buffer)); };
    for (const char* const text : {"12345", "123456"}) {
        m_dialog.SetDlgItemText(IDC_TEXT, text);
        EXPECT_EQ(m_dialog.Exchange(TRUE, call) != FALSE, strlen(text) == 5);
        EXPECT_STREQ(buffer, "12345");
    }
}

TEST_F(DataExchange, ButtonsAndScrollBars) {
    EXPECT_EQ(Through(DDX_Check, IDC_CHECK, int{BST_INDETERMINATE}, 0), BST_INDETERMINATE);
    EXPECT_EQ(m_dialog.IsDlgButtonChecked(IDC_CHECK), static_cast<UINT>(BST_INDETERMINATE));
    EXPECT_EQ(Through(DDX_Check, IDC_CHECK, 17, 17), BST_UNCHECKED);
    EXPECT_EQ(Through(DDX_Radio, IDC_RADIO1, 1, 0), 1);
    EXPECT_EQ(m_dialog.IsDlgButtonChecked(IDC_RADIO2), static_cast<UINT>(BST_CHECKED));
    EXPECT_EQ(Through(DDX_Scroll, IDC_SCROLL, 20, 0), 20);
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
        {&DDX_LBStringExact, IDC_LIST, "apr", "apricot"}, // there is none: the selection stays
        {&DDX_CBString, IDC_COMBO, "apr", "apricot"},
        {&DDX_CBStringExact, IDC_COMBO, "apr", "apr"},
    };
    for (const auto& row : strings)
        EXPECT_EQ(Through(row.call, row.id, CString(row.loaded), CString("x")), row.saved);
    EXPECT_EQ(Through(DDX_LBIndex, IDC_LIST, 1, 0), 1);
    EXPECT_EQ(Through(DDX_CBIndex, IDC_COMBO, 1, 0), 1);
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
    EXPECT_EQ(m_app.m_boxes,
              (std::vector<std::string>{"Please enter an integer between 1 and 9."}));
    EXPECT_EQ(::GetDlgCtrlID(::GetFocus()), IDC_TEXT);
    const auto selection = static_cast<DWORD>(m_dialog.SendDlgItemMessage(IDC_TEXT, EM_GETSEL));
    EXPECT_EQ(selection, static_cast<DWORD>(MAKELONG(0, 2)));
}

TEST_F(DataExchange, LoadingLimitsTheTextAndKeepsNotificationsAway) {
    CString value = "ab";
    m_dialog.SetDlgItemText(IDC_TEXT, "typed");
    EXPECT_EQ(m_dialog.m_changes, 1);
    m_dialog.Exchange(FALSE, [&](CDataExchange* dx) {
        DDX_Text(dx, IDC_TEXT, value);
        DDV_MaxChars(dx, value, 3);
    });
    EXPECT_EQ(m_dialog.SendDlgItemMessage(IDC_TEXT, EM_GETLIMITTEXT), 3);
    EXPECT_EQ(m_dialog.m_changes, 1);
    m_dialog.SetDlgItemText(IDC_TEXT, "again");
    EXPECT_EQ(m_dialog.m_changes, 2);
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

} // namespace
