// SPDX-License-Identifier: MIT
// Message maps: which handler is called, with which arguments, and who is asked first.
#include "CallLog.h"
#include <afxwin.h>

#include <gtest/gtest.h>

#include <string>
#include <type_traits>

namespace {

// ---- Window messages ----------------------------------------------------------------------------

// The parameters every window message is sent with here: four words to tell apart.
constexpr WPARAM W = 0x00120034;
constexpr LPARAM L = 0x00560078;

// clang-format off
// At least one window message for each way to unpack the parameters: handler, name of macro and
// message, signature, and the arguments it is to be called with (hexadecimal; a wrapper is shown
// with its class, any other pointer or handle with a p).
#define MOUSE(X, name, id) X(name, id, void(UINT, CPoint), "120034 (78,56)")
#define EACH_MOUSE_MESSAGE(X, P) \
    P(X, OnMouseMove, MOUSEMOVE) P(X, OnMouseHover, MOUSEHOVER) P(X, OnLButtonDown, LBUTTONDOWN) \
    P(X, OnLButtonUp, LBUTTONUP) P(X, OnLButtonDblClk, LBUTTONDBLCLK) \
    P(X, OnRButtonDown, RBUTTONDOWN) P(X, OnRButtonUp, RBUTTONUP) \
    P(X, OnRButtonDblClk, RBUTTONDBLCLK) P(X, OnMButtonDown, MBUTTONDOWN) \
    P(X, OnNcMouseMove, NCMOUSEMOVE) P(X, OnNcLButtonDown, NCLBUTTONDOWN) \
    P(X, OnNcLButtonUp, NCLBUTTONUP) P(X, OnNcLButtonDblClk, NCLBUTTONDBLCLK) \
    P(X, OnNcRButtonDown, NCRBUTTONDOWN)
#define KEY(X, name, id) X(name, id, void(UINT, UINT, UINT), "120034 78 56")
#define EACH_KEY_MESSAGE(X, P) \
    P(X, OnKeyDown, KEYDOWN) P(X, OnKeyUp, KEYUP) P(X, OnChar, CHAR) \
    P(X, OnSysKeyDown, SYSKEYDOWN) P(X, OnSysKeyUp, SYSKEYUP) P(X, OnSysChar, SYSCHAR)
#define EACH_WINDOW_MESSAGE(X) \
    X(OnSpoolerStatus, SPOOLERSTATUS, void(UINT, UINT), "120034 78") \
    X(OnDestroy, DESTROY, void(), "") X(OnNcDestroy, NCDESTROY, void(), "") \
    X(OnClose, CLOSE, void(), "") X(OnCancelMode, CANCELMODE, void(), "") \
    X(OnPaint, PAINT, void(), "") X(OnNcPaint, NCPAINT, void(), "") \
    X(OnGetDlgCode, GETDLGCODE, UINT(), "") X(OnMouseLeave, MOUSELEAVE, void(), "") \
    X(OnSysColorChange, SYSCOLORCHANGE, void(), "") \
    X(OnCreate, CREATE, int(LPCREATESTRUCT), "p560078") \
    X(OnSetFocus, SETFOCUS, void(CWnd*), "CWnd:120034") \
    X(OnEnable, ENABLE, void(BOOL), "120034") \
    X(OnWindowPosChanging, WINDOWPOSCHANGING, void(WINDOWPOS*), "p560078") \
    X(OnEraseBkgnd, ERASEBKGND, BOOL(CDC*), "CDC:120034") \
    X(OnNcHitTest, NCHITTEST, LRESULT(CPoint), "(78,56)") \
    X(OnTimer, TIMER, void(UINT_PTR), "120034") \
    X(OnInitMenu, INITMENU, void(CMenu*), "CMenu:120034") \
    X(OnParentNotify, PARENTNOTIFY, void(UINT, LPARAM), "120034 560078") \
    X(OnMove, MOVE, void(int, int), "78 56") \
    X(OnShowWindow, SHOWWINDOW, void(BOOL, UINT), "120034 560078") \
    X(OnNcCalcSize, NCCALCSIZE, void(BOOL, NCCALCSIZE_PARAMS*), "120034 p560078") \
    X(OnDrawItem, DRAWITEM, void(int, LPDRAWITEMSTRUCT), "120034 p560078") \
    X(OnCompareItem, COMPAREITEM, int(int, LPCOMPAREITEMSTRUCT), "120034 p560078") \
    X(OnContextMenu, CONTEXTMENU, void(CWnd*, CPoint), "CWnd:120034 (78,56)") \
    X(OnUnInitMenuPopup, UNINITMENUPOPUP, void(CMenu*, UINT), "CMenu:120034 56") \
    X(OnSysCommand, SYSCOMMAND, void(UINT, LPARAM), "120034 560078") \
    X(OnChangeUIState, CHANGEUISTATE, void(UINT, UINT), "34 12") \
    X(OnActivate, ACTIVATE, void(UINT, CWnd*, BOOL), "34 CWnd:560078 12") \
    X(OnMDIActivate, MDIACTIVATE, void(BOOL, CWnd*, CWnd*), "0 CWnd:560078 CWnd:120034") \
    X(OnMouseActivate, MOUSEACTIVATE, int(CWnd*, UINT, UINT), "CWnd:120034 78 56") \
    X(OnSize, SIZE, void(UINT, int, int), "120034 78 56") \
    X(OnCtlColor, CTLCOLOR, HBRUSH(CDC*, CWnd*, UINT), "CDC:120034 CWnd:560078 6") \
    X(OnCharToItem, CHARTOITEM, int(UINT, CListBox*, UINT), "34 CListBox:560078 12") \
    X(OnSetCursor, SETCURSOR, BOOL(CWnd*, UINT, UINT), "CWnd:120034 78 56") \
    X(OnMouseWheel, MOUSEWHEEL, BOOL(UINT, short, CPoint), "34 12 (78,56)") \
    X(OnHScroll, HSCROLL, void(UINT, UINT, CScrollBar*), "34 12 CScrollBar:560078") \
    X(OnInitMenuPopup, INITMENUPOPUP, void(CMenu*, UINT, BOOL), "CMenu:120034 78 56") \
    X(OnMenuChar, MENUCHAR, LRESULT(UINT, UINT, CMenu*), "34 12 CMenu:560078") \
    X(OnAppCommand, APPCOMMAND, void(CWnd*, UINT, UINT, UINT), "CWnd:120034 56 0 78") \
    EACH_MOUSE_MESSAGE(X, MOUSE) EACH_KEY_MESSAGE(X, KEY)

// A handler of exactly that signature: the maps ask for the address of one.
#define DECLARE_HANDLER(name, id, signature, text)                                            \
    template <class R, class... A, class = std::enable_if_t<std::is_same_v<R(A...), signature>>> \
    R name(A... arguments) {                                                                  \
        m_log.Add(#name, arguments...);                                                       \
        return AnswerAs<R>();                                                                 \
    }
#define MAP_ENTRY(name, id, signature, text) ON_WM_##id()
#define TABLE_ROW(name, id, signature, text) \
    {WM_##id, #name, text, std::is_same_v<ResultOf<signature>, void>},
// clang-format on

constexpr UINT WM_HELPINFO = WM_HELP; // the macro has another name than its message

constexpr LRESULT Answer = 7;

template <class R>
R AnswerAs() {
    if constexpr (std::is_pointer_v<R>)
        return reinterpret_cast<R>(Answer);
    else
        return static_cast<R>(Answer);
}

template <class R, class... A>
R ResultOfCall(R (*)(A...));
template <class Signature>
using ResultOf = decltype(ResultOfCall(static_cast<Signature*>(nullptr)));

/// Handles every window message and notes what it was called with.
class Recorder : public CWnd {
public:
    using CWnd::OnWndMsg;
    CallLog m_log{true};

protected:
    EACH_WINDOW_MESSAGE(DECLARE_HANDLER)
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(Recorder, CWnd)
    EACH_WINDOW_MESSAGE(MAP_ENTRY)
END_MESSAGE_MAP()

const struct {
    UINT message;
    std::string handler;
    std::string arguments;
    bool isVoid;
} windowMessages[] = {EACH_WINDOW_MESSAGE(TABLE_ROW)};

/// What Windows is told about a message whose handler returns nothing.
LRESULT AnswerOfVoid(UINT message) {
    const bool wantsTrue = message == WM_DRAWITEM || message == WM_MEASUREITEM ||
                           message == WM_DELETEITEM || message == WM_APPCOMMAND;
    return wantsTrue ? TRUE : 0;
}

TEST(MessageMap, EachWindowMessageReachesItsHandlerUnpacked) {
    for (const auto& row : windowMessages) {
        SCOPED_TRACE(row.handler);
        Recorder recorder;
        LRESULT result = -1;
        // WM_CTLCOLOR is sent as a message of its own for each kind of control.
        const UINT message = row.message == WM_CTLCOLOR ? WM_CTLCOLORSTATIC : row.message;
        EXPECT_TRUE(recorder.OnWndMsg(message, W, L, &result));
        const std::string separator = row.arguments.empty() ? "" : " ";
        EXPECT_EQ(recorder.m_log.Take(), row.handler + separator + row.arguments);
        EXPECT_EQ(result, row.isVoid ? AnswerOfVoid(row.message) : Answer);
    }
    CWnd::DeleteTempMap();
    CMenu::DeleteTempMap();
    CDC::DeleteTempMap();
}

/// The handlers whose coordinates may lie left of or above the origin, and those with two faces.
class SignedRecorder : public CWnd {
public:
    using CWnd::OnWndMsg;
    CallLog m_log;

protected:
    afx_msg void OnMove(int x, int y) { m_log.Add("move", x, y); }
    afx_msg void OnMouseMove(UINT, CPoint point) { m_log.Add("mouse", point); }
    afx_msg BOOL OnMouseWheel(UINT flags, short delta, CPoint point) {
        return m_log.Add("wheel", flags, delta, point), TRUE;
    }
    afx_msg void OnSize(UINT, int cx, int cy) { m_log.Add("size", cx, cy); }
    afx_msg void OnMDIActivate(BOOL activate, CWnd*, CWnd*) { m_log.Add("mdi", activate); }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(SignedRecorder, CWnd)
    ON_WM_MOVE()
    ON_WM_MOUSEMOVE()
    ON_WM_MOUSEWHEEL()
    ON_WM_SIZE()
    ON_WM_MDIACTIVATE()
END_MESSAGE_MAP()

TEST(MessageMap, CoordinatesAreSignedAndSizesAreNot) {
    const LPARAM negative = MAKELPARAM(-3, -5);
    const struct {
        UINT message;
        WPARAM wParam;
        LPARAM lParam;
        const char* called;
    } rows[] = {
        {WM_MOVE, 0, negative, "move -3 -5"},
        {WM_MOUSEMOVE, 0, negative, "mouse (-3,-5)"},
        {WM_MOUSEWHEEL, MAKEWPARAM(MK_SHIFT, -120), negative, "wheel 4 -120 (-3,-5)"},
        {WM_SIZE, 0, MAKELPARAM(0xFFF0, 2), "size 65520 2"},
        {WM_MDIACTIVATE, 0x11, 0, "mdi 1"}, // no window of ours is deactivated: it becomes active
        {WM_MDIACTIVATE, 0, 0x11, "mdi 0"},
    };
    SignedRecorder recorder;
    for (const auto& row : rows) {
        recorder.OnWndMsg(row.message, row.wParam, row.lParam, nullptr);
        EXPECT_EQ(recorder.m_log.Take(), row.called);
    }
    CWnd::DeleteTempMap();
}

// ---- Commands and notifications -----------------------------------------------------------------

constexpr UINT WM_OWN = WM_USER + 5;
const UINT WM_NAMED = ::RegisterWindowMessage("MessageMapTest");

/// A command target with one line of each kind.
class Target : public CWnd {
public:
    using CWnd::OnWndMsg;
    CallLog m_log;
    /// What the handlers that may decline return.
    BOOL m_take = TRUE;

protected:
    BOOL Notify(const char* what, UINT id, LRESULT* result, LRESULT answer) {
        *result = answer;
        return m_log.Add(what, id), m_take;
    }
    afx_msg void OnPlain() { m_log.Add("plain"); }
    afx_msg BOOL OnEx(UINT id) { return m_log.Add("ex", id), m_take; }
    afx_msg void OnRange(UINT id) { m_log.Add("range", id); }
    afx_msg BOOL OnExRange(UINT id) { return m_log.Add("exrange", id), m_take; }
    afx_msg void OnUpdate(CCmdUI* ui) {
        m_log.Add("update", ui->m_nID);
        if (!m_take)
            ui->ContinueRouting();
    }
    afx_msg void OnChange() { m_log.Add("change"); }
    afx_msg void OnControlRange(UINT id) { m_log.Add("controlrange", id); }
    afx_msg void OnNotifyPlain(NMHDR* header, LRESULT* result) {
        Notify("notify", static_cast<UINT>(header->idFrom), result, 11);
    }
    afx_msg void OnNotifyRange(UINT id, NMHDR*, LRESULT* r) { Notify("notifyrange", id, r, 12); }
    afx_msg BOOL OnNotifyEx(UINT id, NMHDR*, LRESULT* r) { return Notify("notifyex", id, r, 13); }
    afx_msg LRESULT OnOwn(WPARAM w, LPARAM l) { return m_log.Add("own", w, l), 21; }
    afx_msg LRESULT OnNamed(WPARAM w, LPARAM) { return m_log.Add("named", w), 22; }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(Target, CWnd)
    ON_COMMAND(100, &Target::OnPlain)
    ON_COMMAND_EX(101, &Target::OnEx)
    ON_COMMAND_RANGE(110, 112, &Target::OnRange)
    ON_COMMAND_EX_RANGE(120, 122, &Target::OnExRange)
    ON_UPDATE_COMMAND_UI(100, &Target::OnUpdate)
    ON_UPDATE_COMMAND_UI_RANGE(110, 112, &Target::OnUpdate)
    ON_EN_CHANGE(130, &Target::OnChange)
    ON_CONTROL_RANGE(BN_DOUBLECLICKED, 131, 133, &Target::OnControlRange)
    ON_NOTIFY(NM_CLICK, 140, &Target::OnNotifyPlain)
    ON_NOTIFY_RANGE(LVN_ITEMCHANGED, 141, 143, &Target::OnNotifyRange)
    ON_NOTIFY_EX(NM_RCLICK, 144, &Target::OnNotifyEx)
    ON_NOTIFY_EX_RANGE(NM_RCLICK, 145, 146, &Target::OnNotifyEx)
    ON_MESSAGE(WM_OWN, &Target::OnOwn)
    ON_REGISTERED_MESSAGE(WM_NAMED, &Target::OnNamed)
END_MESSAGE_MAP()

TEST(MessageMap, CommandsAndNotificationsFindTheirLine) {
    const struct {
        UINT id;
        UINT code;
        UINT message;       ///< null for a command or the notification of a standard control
        const char* called; ///< empty: nobody
        LRESULT result;
    } rows[] = {
        {100, CN_COMMAND, 0, "plain", 0},
        {101, CN_COMMAND, 0, "ex 101", 0},
        {109, CN_COMMAND, 0, "", 0},
        {112, CN_COMMAND, 0, "range 112", 0},
        {113, CN_COMMAND, 0, "", 0},
        {122, CN_COMMAND, 0, "exrange 122", 0},
        {130, EN_CHANGE, 0, "change", 0},
        {130, EN_UPDATE, 0, "", 0},
        {131, BN_DOUBLECLICKED, 0, "controlrange 131", 0},
        {133, BN_DOUBLECLICKED, 0, "controlrange 133", 0},
        {140, NM_CLICK, WM_NOTIFY, "notify 140", 11},
        {141, LVN_ITEMCHANGED, WM_NOTIFY, "notifyrange 141", 12},
        {146, NM_RCLICK, WM_NOTIFY, "notifyex 146", 13},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.id);
        Target target;
        NMHDR header = {nullptr, row.id, row.code};
        LRESULT result = 0;
        AFX_NOTIFY notify = {&result, &header};
        const int code = static_cast<int>(MAKELONG(row.code, row.message));
        EXPECT_EQ(target.OnCmdMsg(row.id, code, &notify, nullptr), *row.called != '\0');
        EXPECT_EQ(target.m_log.Take(), row.called);
        EXPECT_EQ(result, row.result);
    }
}

TEST(MessageMap, DeclinedMessagesGoOn) {
    Target target;
    target.m_take = FALSE;
    EXPECT_FALSE(target.OnCmdMsg(101, CN_COMMAND, nullptr, nullptr));
    EXPECT_FALSE(target.OnCmdMsg(120, CN_COMMAND, nullptr, nullptr));
    CCmdUI ui;
    ui.m_nID = 111;
    EXPECT_FALSE(target.OnCmdMsg(111, CN_UPDATE_COMMAND_UI, &ui, nullptr));
    EXPECT_EQ(target.m_log.Take(), "ex 101, exrange 120, update 111");
    target.m_take = TRUE;
    EXPECT_TRUE(target.OnCmdMsg(111, CN_UPDATE_COMMAND_UI, &ui, nullptr));
}

TEST(MessageMap, OwnAndRegisteredMessages) {
    Target target;
    LRESULT result = 0;
    EXPECT_TRUE(target.OnWndMsg(WM_OWN, 3, 4, &result));
    EXPECT_EQ(result, 21);
    EXPECT_TRUE(target.OnWndMsg(WM_NAMED, 5, 0, &result));
    EXPECT_EQ(result, 22);
    EXPECT_FALSE(target.OnWndMsg(WM_NAMED + 1, 5, 0, &result));
    EXPECT_FALSE(target.OnWndMsg(WM_OWN + 1, 5, 0, &result));
    EXPECT_EQ(target.m_log.Take(), "own 3 4, named 5");
}

class Derived : public Target {
protected:
    afx_msg void OnPlainDerived() { m_log.Add("derived"); }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(Derived, Target)
    ON_COMMAND(100, &Derived::OnPlainDerived)
END_MESSAGE_MAP()

TEST(MessageMap, TheDerivedClassComesFirst) {
    Derived target;
    for (const UINT id : {100, 110})
        EXPECT_TRUE(target.OnCmdMsg(id, CN_COMMAND, nullptr, nullptr));
    EXPECT_EQ(target.m_log.Take(), "derived, range 110");
}

// ---- Reflection ---------------------------------------------------------------------------------

/// Who was asked, in this order.
CallLog g_log;

class Control : public CWnd {
public:
    BOOL m_take = TRUE;
    HBRUSH m_brush = nullptr;

protected:
    template <class... N>
    static void Note(const char* what, N... numbers) {
        g_log.Add((std::string("control ") + what).c_str(), numbers...);
    }
    afx_msg HBRUSH CtlColor(CDC* dc, UINT type) {
        EXPECT_NE(dc->m_hDC, nullptr);
        return Note("color", type), m_brush;
    }
    afx_msg void DrawItem(LPDRAWITEMSTRUCT item) { Note("draw", item->itemID); }
    afx_msg void MeasureItem(LPMEASUREITEMSTRUCT item) { Note("measure", item->itemID); }
    afx_msg int CompareItem(LPCOMPAREITEMSTRUCT item) { return Note("compare", item->itemID1), -1; }
    afx_msg void DeleteItem(LPDELETEITEMSTRUCT item) { Note("delete", item->itemID); }
    afx_msg int CharToItem(UINT key, UINT index) { return Note("char", key, index), 3; }
    afx_msg int VKeyToItem(UINT key, UINT index) { return Note("key", key, index), 4; }
    afx_msg void HScroll(UINT code, UINT pos) { Note("hscroll", code, pos); }
    afx_msg void VScroll(UINT code, UINT pos) { Note("vscroll", code, pos); }
    afx_msg void ParentNotify(UINT message, LPARAM) { Note("parentnotify", LOWORD(message)); }
    afx_msg void OnClicked() { Note("clicked"); }
    afx_msg BOOL OnDoubleClicked() { return Note("doubleclicked"), m_take; }
    afx_msg void OnNotifyClick(NMHDR*, LRESULT* result) { Note("notify"), *result = 31; }
    afx_msg BOOL OnNotifyRightClick(NMHDR*, LRESULT* result) {
        return Note("notifyex"), *result = 32, m_take;
    }
    afx_msg void OnUpdate(CCmdUI* ui) { Note("update", ui->m_nID), ui->Enable(FALSE); }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(Control, CWnd)
    ON_WM_CTLCOLOR_REFLECT()
    ON_WM_DRAWITEM_REFLECT()
    ON_WM_MEASUREITEM_REFLECT()
    ON_WM_COMPAREITEM_REFLECT()
    ON_WM_DELETEITEM_REFLECT()
    ON_WM_CHARTOITEM_REFLECT()
    ON_WM_VKEYTOITEM_REFLECT()
    ON_WM_HSCROLL_REFLECT()
    ON_WM_VSCROLL_REFLECT()
    ON_WM_PARENTNOTIFY_REFLECT()
    ON_CONTROL_REFLECT(BN_CLICKED, &Control::OnClicked)
    ON_CONTROL_REFLECT_EX(BN_DOUBLECLICKED, &Control::OnDoubleClicked)
    ON_NOTIFY_REFLECT(NM_CLICK, &Control::OnNotifyClick)
    ON_NOTIFY_REFLECT_EX(NM_RCLICK, &Control::OnNotifyRightClick)
    ON_UPDATE_COMMAND_UI_REFLECT(&Control::OnUpdate)
END_MESSAGE_MAP()

constexpr UINT ControlId = 40;

class Parent : public CWnd {
protected:
    afx_msg void OnClicked() { g_log.Add("parent clicked"); }
    afx_msg void OnDoubleClicked() { g_log.Add("parent doubleclicked"); }
    afx_msg void OnNotifyClick(NMHDR*, LRESULT* result) {
        g_log.Add("parent notify");
        *result = 41;
    }
    afx_msg HBRUSH OnCtlColor(CDC* dc, CWnd* wnd, UINT type) {
        g_log.Add("parent color");
        return CWnd::OnCtlColor(dc, wnd, type);
    }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(Parent, CWnd)
    ON_BN_CLICKED(ControlId, &Parent::OnClicked)
    ON_BN_DOUBLECLICKED(ControlId, &Parent::OnDoubleClicked)
    ON_NOTIFY(NM_CLICK, ControlId, &Parent::OnNotifyClick)
    ON_NOTIFY(NM_RCLICK, ControlId, &Parent::OnNotifyClick)
    ON_WM_CTLCOLOR()
END_MESSAGE_MAP()

class Reflection : public testing::Test {
protected:
    void SetUp() override {
        const CRect place(0, 0, 90, 90);
        ASSERT_TRUE(m_parent.CreateEx(0, nullptr, "parent", WS_POPUP, place, nullptr, 0));
        ASSERT_TRUE(
            m_control.Create(nullptr, "", WS_CHILD, CRect(0, 0, 9, 9), &m_parent, ControlId));
        g_log.Take();
    }
    void TearDown() override { m_parent.DestroyWindow(); }

    /// Sends the parent a message and tells who was asked. Structures are given by their address.
    std::string Send(UINT message, WPARAM wParam, LPARAM lParam) {
        m_result = m_parent.SendMessage(message, wParam, lParam);
        return g_log.Take();
    }
    template <class T>
    std::string Send(UINT message, T& structure) {
        return Send(message, ControlId, reinterpret_cast<LPARAM>(&structure));
    }
    std::string FromControl(UINT message, WPARAM wParam) {
        return Send(message, wParam, reinterpret_cast<LPARAM>(m_control.m_hWnd));
    }

    Parent m_parent;
    Control m_control;
    LRESULT m_result = 0;
};

TEST_F(Reflection, NotificationsGoToTheControlFirst) {
    const WPARAM twice = MAKEWPARAM(ControlId, BN_DOUBLECLICKED);
    NMHDR click = {m_control.m_hWnd, ControlId, static_cast<UINT>(NM_CLICK)};
    NMHDR right = {m_control.m_hWnd, ControlId, static_cast<UINT>(NM_RCLICK)};
    EXPECT_EQ(FromControl(WM_COMMAND, MAKEWPARAM(ControlId, BN_CLICKED)), "control clicked");
    EXPECT_EQ(FromControl(WM_COMMAND, twice), "control doubleclicked");
    EXPECT_EQ(Send(WM_NOTIFY, click), "control notify");
    EXPECT_EQ(m_result, 31);
    EXPECT_EQ(Send(WM_NOTIFY, right), "control notifyex");
    EXPECT_EQ(m_result, 32);
    m_control.m_take = FALSE;
    EXPECT_EQ(FromControl(WM_COMMAND, twice), "control doubleclicked, parent doubleclicked");
    EXPECT_EQ(Send(WM_NOTIFY, right), "control notifyex, parent notify");
    EXPECT_EQ(m_result, 41);
}

TEST_F(Reflection, OtherMessagesComeBackThroughTheParentsDefaultHandler) {
    const HWND control = m_control.m_hWnd;
    DRAWITEMSTRUCT draw = {ODT_BUTTON, 0, 1, 0, 0, control, nullptr, {}, 0};
    MEASUREITEMSTRUCT measure = {ODT_LISTBOX, ControlId, 2, 0, 0, 0};
    COMPAREITEMSTRUCT compare = {0, 0, control, 3, 0, 0, 0, 0};
    DELETEITEMSTRUCT deleted = {0, 0, 4, control, 0};
    EXPECT_EQ(Send(WM_DRAWITEM, draw), "control draw 1");
    EXPECT_EQ(m_result, TRUE);
    EXPECT_EQ(Send(WM_MEASUREITEM, measure), "control measure 2");
    EXPECT_EQ(Send(WM_COMPAREITEM, compare), "control compare 3");
    EXPECT_EQ(m_result, -1);
    EXPECT_EQ(Send(WM_DELETEITEM, deleted), "control delete 4");
    EXPECT_EQ(FromControl(WM_CHARTOITEM, MAKEWPARAM('a', 5)), "control char 97 5");
    EXPECT_EQ(m_result, 3);
    EXPECT_EQ(FromControl(WM_VKEYTOITEM, MAKEWPARAM(VK_F2, 6)), "control key 113 6");
    EXPECT_EQ(m_result, 4);
    EXPECT_EQ(FromControl(WM_HSCROLL, MAKEWPARAM(SB_THUMBPOSITION, 7)), "control hscroll 4 7");
    EXPECT_EQ(FromControl(WM_VSCROLL, MAKEWPARAM(SB_LINEDOWN, 8)), "control vscroll 1 8");
    EXPECT_EQ(FromControl(WM_PARENTNOTIFY, MAKEWPARAM(WM_CREATE, ControlId)),
              "control parentnotify 1");
    // The mouse buttons of WM_PARENTNOTIFY come with a point, not with a window.
    EXPECT_EQ(FromControl(WM_PARENTNOTIFY, WM_LBUTTONDOWN), "");
}

TEST_F(Reflection, AControlWithoutABrushLeavesTheColourToTheParent) {
    CClientDC dc(&m_control);
    const auto wParam = reinterpret_cast<WPARAM>(dc.m_hDC);
    m_control.m_brush = reinterpret_cast<HBRUSH>(::GetStockObject(GRAY_BRUSH));
    EXPECT_EQ(FromControl(WM_CTLCOLORSTATIC, wParam), "parent color, control color 6");
    EXPECT_EQ(m_result, reinterpret_cast<LRESULT>(m_control.m_brush));
    m_control.m_brush = nullptr;
    EXPECT_EQ(FromControl(WM_CTLCOLOREDIT, wParam), "parent color, control color 1");
    EXPECT_NE(m_result, 0); // the system's own brush
}

TEST_F(Reflection, TheControlUpdatesItself) {
    m_parent.UpdateDialogControls(&m_parent, FALSE);
    EXPECT_EQ(g_log.Take(), "control update 40");
    EXPECT_FALSE(m_control.IsWindowEnabled());
}

} // namespace
