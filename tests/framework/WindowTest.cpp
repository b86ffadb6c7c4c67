// SPDX-License-Identifier: MIT
// Windows and their objects: creation, attachment, subclassing, destruction, exceptions, relatives.
#include <afxwin.h>

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <new>
#include <vector>

#include "tests/support/Pump.h"

namespace {

constexpr UINT WM_CALL = WM_APP + 1;

/// A window that counts, and that runs what a test gives it inside its handlers.
class Window : public CWnd {
public:
    int m_created = 0;
    int m_ended = 0;
    int m_subclassed = 0;
    int m_createResult = 0;
    BOOL m_ncCreateResult = TRUE;
    BOOL m_preCreateResult = TRUE;
    std::vector<UINT> m_messages;
    std::function<void()> m_onCreate;
    std::function<LRESULT()> m_onCall;
    std::function<void()> m_onPaint;

    BOOL CreateTop(LPCTSTR className = nullptr) {
        return CreateEx(0, className, "window", WS_POPUP, CRect(10, 20, 110, 70), nullptr, 0);
    }
    using CWnd::Default;

protected:
    BOOL PreCreateWindow(CREATESTRUCT& cs) override {
        return CWnd::PreCreateWindow(cs) && m_preCreateResult;
    }
    void PreSubclassWindow() override { ++m_subclassed; }
    void PostNcDestroy() override {
        EXPECT_EQ(m_hWnd, nullptr);
        ++m_ended;
    }
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
        m_messages.push_back(message);
        return CWnd::WindowProc(message, wParam, lParam);
    }
    afx_msg BOOL OnNcCreate(LPCREATESTRUCT) { return Default() != 0 && m_ncCreateResult; }
    afx_msg int OnCreate(LPCREATESTRUCT) {
        ++m_created;
        if (m_onCreate)
            m_onCreate();
        return m_createResult;
    }
    afx_msg void OnPaint() {
        if (m_onPaint)
            m_onPaint();
        CWnd::OnPaint();
    }
    afx_msg LRESULT OnCall(WPARAM, LPARAM) { return m_onCall ? m_onCall() : 0; }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(Window, CWnd)
    ON_WM_NCCREATE()
    ON_WM_CREATE()
    ON_WM_PAINT()
    ON_MESSAGE(WM_CALL, &Window::OnCall)
END_MESSAGE_MAP()

// ---- Creation -----------------------------------------------------------------------------------

TEST(WindowCreation, TheObjectHearsTheFirstMessage) {
    Window window;
    ASSERT_TRUE(window.CreateTop());
    EXPECT_EQ(CWnd::FromHandlePermanent(window.m_hWnd), &window);
    EXPECT_EQ(window.m_created, 1);
    EXPECT_EQ(window.m_subclassed, 1);
    // Windows begins with one of these two, depending on the styles.
    ASSERT_FALSE(window.m_messages.empty());
    EXPECT_TRUE(window.m_messages[0] == WM_GETMINMAXINFO || window.m_messages[0] == WM_NCCREATE);
    const HWND handle = window.m_hWnd;
    EXPECT_TRUE(window.DestroyWindow());
    EXPECT_EQ(window.m_messages.back(), static_cast<UINT>(WM_NCDESTROY));
    EXPECT_EQ(window.m_ended, 1);
    EXPECT_EQ(window.m_hWnd, nullptr);
    EXPECT_EQ(CWnd::FromHandlePermanent(handle), nullptr);
    EXPECT_FALSE(window.DestroyWindow());
    EXPECT_TRUE(window.CreateTop(WC_EDIT)) << "the object can have another window";
}

TEST(WindowCreation, EveryFailureEndsTheObjectOnce) {
    const struct {
        const char* name;
        std::function<void(Window&)> prepare;
        const char* className;
        int created;
    } rows[] = {
        {"PreCreateWindow refuses", [](Window& w) { w.m_preCreateResult = FALSE; }, nullptr, 0},
        {"no such class", [](Window&) {}, "there is no such class", 0},
        {"WM_NCCREATE refuses", [](Window& w) { w.m_ncCreateResult = FALSE; }, nullptr, 0},
        {"WM_CREATE refuses", [](Window& w) { w.m_createResult = -1; }, nullptr, 1},
        {"WM_CREATE throws", [](Window& w) { w.m_onCreate = [] { AfxThrowUserException(); }; },
         nullptr, 1},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        Window window;
        row.prepare(window);
        EXPECT_FALSE(window.CreateTop(row.className));
        EXPECT_EQ(window.m_created, row.created);
        EXPECT_EQ(window.m_ended, 1);
        EXPECT_EQ(window.m_hWnd, nullptr);
        // The failed creation leaves nothing behind that the next window would be attached to.
        const HWND other =
            ::CreateWindow(WC_STATIC, "", WS_POPUP, 0, 0, 1, 1, nullptr, nullptr, nullptr, nullptr);
        EXPECT_EQ(CWnd::FromHandlePermanent(other), nullptr);
        ::DestroyWindow(other);
    }
}

TEST(WindowCreation, AnObjectThatDeletesItselfMayFail) {
    static int alive;
    class SelfDeleting : public Window {
    public:
        SelfDeleting() { ++alive; }
        ~SelfDeleting() override { --alive; }

    protected:
        void PostNcDestroy() override { const std::unique_ptr<SelfDeleting> self(this); }
    };
    alive = 0;
    for (const int result : {0, -1}) {
        auto* const window = std::make_unique<SelfDeleting>().release();
        window->m_createResult = result;
        const BOOL created = window->CreateTop();
        EXPECT_EQ(created, result == 0);
        if (created)
            window->DestroyWindow();
        EXPECT_EQ(alive, 0);
    }
}

TEST(WindowCreation, WindowsAreCreatedInsideTheCreationOfOthers) {
    Window outer;
    Window inner;
    HWND plain = nullptr;
    outer.m_onCreate = [&] {
        plain = ::CreateWindow(WC_STATIC, "", WS_CHILD, 0, 0, 1, 1, outer.m_hWnd, nullptr, nullptr,
                               nullptr);
        EXPECT_TRUE(inner.Create(nullptr, "inner", WS_CHILD, CRect(0, 0, 5, 5), &outer, 7));
    };
    ASSERT_TRUE(outer.CreateTop());
    EXPECT_EQ(CWnd::FromHandlePermanent(plain), nullptr);
    EXPECT_EQ(inner.m_subclassed, 1);
    EXPECT_EQ(inner.GetDlgCtrlID(), 7);
    EXPECT_EQ(inner.GetParent(), &outer);
    outer.DestroyWindow();
    EXPECT_EQ(inner.m_ended, 1);
}

// ---- Attachment ---------------------------------------------------------------------------------

class Handles : public testing::Test {
protected:
    void SetUp() override {
        m_edit = ::CreateWindow(WC_EDIT, "text", WS_POPUP, 0, 0, 50, 20, nullptr, nullptr, nullptr,
                                nullptr);
        ASSERT_NE(m_edit, nullptr);
    }
    void TearDown() override { ::DestroyWindow(m_edit); }

    HWND m_edit = nullptr;
};

TEST_F(Handles, SubclassingSendsTheMessagesThroughTheObject) {
    const auto before = ::GetWindowLongPtr(m_edit, GWLP_WNDPROC);
    Window window;
    ASSERT_TRUE(window.SubclassWindow(m_edit));
    EXPECT_EQ(window.m_subclassed, 1);
    ::SetWindowText(m_edit, "new");
    EXPECT_EQ(window.m_messages.front(), static_cast<UINT>(WM_SETTEXT));
    CString text;
    window.GetWindowText(text);
    EXPECT_EQ(text, "new"); // the edit control itself still works
    EXPECT_EQ(window.UnsubclassWindow(), m_edit);
    EXPECT_EQ(::GetWindowLongPtr(m_edit, GWLP_WNDPROC), before);
    EXPECT_FALSE(window.SubclassWindow(nullptr));

    ASSERT_TRUE(window.Attach(m_edit)); // attached only, the window behaves as it did
    EXPECT_EQ(::GetWindowLongPtr(m_edit, GWLP_WNDPROC), before);
    EXPECT_EQ(CWnd::FromHandlePermanent(m_edit), &window);
    EXPECT_EQ(window.Detach(), m_edit);
    EXPECT_EQ(CWnd::FromHandlePermanent(m_edit), nullptr);
    { Window().Attach(m_edit); }
    EXPECT_FALSE(::IsWindow(m_edit)) << "the destructor destroys the window";
}

WNDPROC g_inner;
LRESULT CALLBACK OuterProc(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam) {
    return ::CallWindowProc(g_inner, hwnd, message, wParam, lParam);
}

TEST_F(Handles, AWindowSubclassedByOthersEndsInOrder) {
    Window window;
    ASSERT_TRUE(window.SubclassWindow(m_edit));
    g_inner = reinterpret_cast<WNDPROC>(
        ::SetWindowLongPtr(m_edit, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&OuterProc)));
    ::SetWindowText(m_edit, "through both");
    EXPECT_FALSE(window.m_messages.empty());
    ::DestroyWindow(m_edit);
    EXPECT_EQ(window.m_ended, 1);
    EXPECT_EQ(window.m_hWnd, nullptr);
}

// ---- Default handling and exceptions ------------------------------------------------------------

TEST(WindowMessages, DefaultUsesTheParametersOfTheMessage) {
    class Upper : public CWnd {
    public:
        bool m_sawMessage = false;

    protected:
        BOOL OnWndMsg(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result) override {
            if (message != WM_SETTEXT)
                return CWnd::OnWndMsg(message, wParam, lParam, result);
            m_sawMessage = GetCurrentMessage()->message == WM_SETTEXT;
            SendMessage(WM_NULL); // a message in between does not replace the current one
            *result = Default();
            return TRUE;
        }
    } window;
    ASSERT_TRUE(window.CreateEx(0, nullptr, "", WS_POPUP, CRect(0, 0, 5, 5), nullptr, 0));
    window.SetWindowText("original");
    CString text;
    window.GetWindowText(text);
    EXPECT_EQ(text, "original");
    EXPECT_TRUE(window.m_sawMessage);
}

/// An application that notes the exceptions instead of showing them.
class QuietApp : public CWinApp {
public:
    int m_exceptions = 0;
    bool m_memory = false;
    bool m_throwAgain = false;

    LRESULT ProcessWndProcException(CException* e, const MSG* msg) override {
        ++m_exceptions;
        m_memory = e->IsKindOf(RUNTIME_CLASS(CMemoryException)) != FALSE;
        if (m_throwAgain)
            AfxThrowNotSupportedException();
        return msg->message == WM_CALL ? 99 : CWinThread::ProcessWndProcException(e, msg);
    }
};

TEST(WindowMessages, ExceptionsEndAtTheWindowProcedure) {
    QuietApp app;
    Window window;
    ASSERT_TRUE(window.CreateTop());
    window.m_onCall = []() -> LRESULT { AfxThrowUserException(); };
    EXPECT_EQ(window.SendMessage(WM_CALL), 99);
    EXPECT_EQ(app.m_exceptions, 1);
    window.m_onCall = []() -> LRESULT { throw std::bad_alloc(); };
    EXPECT_EQ(window.SendMessage(WM_CALL), 99);
    EXPECT_TRUE(app.m_memory);
    app.m_throwAgain = true;
    EXPECT_EQ(window.SendMessage(WM_CALL), 0);
}

TEST(WindowMessages, AFailedPaintIsNotRepeated) {
    QuietApp app;
    Window window;
    ASSERT_TRUE(window.CreateTop());
    int paints = 0;
    window.m_onPaint = [&] {
        ++paints;
        AfxThrowUserException();
    };
    window.ShowWindow(SW_SHOWNOACTIVATE);
    window.Invalidate();
    window.UpdateWindow();
    EXPECT_GT(paints, 0);
    EXPECT_FALSE(window.GetUpdateRect(nullptr));
    window.m_onPaint = nullptr;
}

TEST(WindowMessages, TheMainWindowEndsTheLoop) {
    QuietApp app;
    Window window;
    ASSERT_TRUE(window.CreateTop());
    app.m_pMainWnd = &window;
    EXPECT_EQ(AfxGetMainWnd(), &window);
    window.DestroyWindow();
    EXPECT_EQ(app.m_pMainWnd, nullptr);
    MSG msg;
    bool quit = false;
    while (!quit && ::PeekMessage(&msg, nullptr, 0, 0, PM_REMOVE))
        quit = msg.message == WM_QUIT;
    EXPECT_TRUE(quit);
}

// ---- Relatives ----------------------------------------------------------------------------------

class Family : public testing::Test {
protected:
    void SetUp() override {
        ASSERT_TRUE(m_top.CreateTop());
        ASSERT_TRUE(m_child.Create(nullptr, "child", WS_CHILD, CRect(0, 0, 60, 40), &m_top, 1));
        ASSERT_TRUE(
            m_grandchild.Create(nullptr, "grandchild", WS_CHILD, CRect(0, 0, 20, 10), &m_child, 2));
        ASSERT_TRUE(m_popup.CreateEx(0, nullptr, "popup", WS_POPUP, CRect(0, 0, 5, 5), &m_top, 0));
    }
    void TearDown() override { m_top.DestroyWindow(); }

    Window m_top;
    Window m_child;
    Window m_grandchild;
    Window m_popup;
};

TEST_F(Family, ParentsAndOwners) {
    EXPECT_EQ(m_grandchild.GetParent(), &m_child);
    EXPECT_EQ(m_grandchild.GetTopLevelParent(), &m_top);
    EXPECT_EQ(m_popup.GetTopLevelParent(), &m_top);
    m_grandchild.SetOwner(&m_popup);
    EXPECT_EQ(m_grandchild.GetOwner(), &m_popup);
    EXPECT_EQ(m_grandchild.GetParent(), &m_child);
    // A ring of owners is not followed for ever.
    m_child.SetOwner(&m_grandchild);
    m_grandchild.SetOwner(&m_child);
    EXPECT_NE(m_child.GetTopLevelOwner(), nullptr);
}

TEST_F(Family, MessagesToDescendants) {
    ::CreateWindow(WC_STATIC, "", WS_CHILD, 0, 0, 1, 1, m_child.m_hWnd, nullptr, nullptr, nullptr);
    int calls = 0;
    m_child.m_onCall = m_grandchild.m_onCall = [&]() -> LRESULT { return ++calls; };
    m_top.SendMessageToDescendants(WM_CALL, 0, 0, FALSE);
    EXPECT_EQ(calls, 1);
    m_top.SendMessageToDescendants(WM_CALL, 0, 0, TRUE, TRUE);
    EXPECT_EQ(calls, 3);
    EXPECT_EQ(m_top.GetDescendantWindow(2), &m_grandchild);
    EXPECT_EQ(m_top.GetDescendantWindow(3), nullptr);
    m_grandchild.m_messages.clear();
    m_top.SendMessage(WM_SYSCOLORCHANGE);
    EXPECT_EQ(m_grandchild.m_messages, (std::vector<UINT>{WM_SYSCOLORCHANGE}));
}

/// A window that takes one message before it is dispatched.
class Filter : public Window {
public:
    std::vector<const CWnd*>* m_asked = nullptr;
    BOOL m_take = FALSE;

protected:
    BOOL PreTranslateMessage(MSG* msg) override {
        if (msg->message == WM_CALL) {
            m_asked->push_back(this);
            return m_take;
        }
        return Window::PreTranslateMessage(msg);
    }
};

TEST(WindowMessages, TheInnermostWindowSeesAMessageFirst) {
    std::vector<const CWnd*> asked;
    Filter top;
    Filter child;
    top.m_asked = child.m_asked = &asked;
    ASSERT_TRUE(top.CreateTop());
    ASSERT_TRUE(child.Create(nullptr, "", WS_CHILD, CRect(0, 0, 5, 5), &top, 1));
    int calls = 0;
    child.m_onCall = [&]() -> LRESULT { return ++calls; };
    child.PostMessage(WM_CALL);
    ASSERT_TRUE(PumpUntil([&] { return calls == 1; }));
    EXPECT_EQ(asked, (std::vector<const CWnd*>{&child, &top}));
    asked.clear();
    child.m_take = TRUE;
    child.PostMessage(WM_CALL);
    ASSERT_TRUE(PumpUntil([&] { return !asked.empty(); }));
    EXPECT_EQ(asked, (std::vector<const CWnd*>{&child}));
    EXPECT_EQ(calls, 1);
}

// ---- Menus that draw themselves -----------------------------------------------------------------

class DrawnMenu : public CMenu {
public:
    UINT m_measured = 0;
    UINT m_drawn = 0;
    void MeasureItem(LPMEASUREITEMSTRUCT item) override {
        m_measured = item->itemID;
        item->itemWidth = 40;
    }
    void DrawItem(LPDRAWITEMSTRUCT item) override { m_drawn = item->itemID; }
};

TEST(WindowMessages, AMenuMeasuresAndDrawsItsItems) {
    Window window;
    ASSERT_TRUE(window.CreateTop());
    DrawnMenu menu;
    ASSERT_TRUE(menu.CreatePopupMenu());
    menu.AppendMenu(MF_STRING, 200, "plain");
    menu.AppendMenu(MF_OWNERDRAW, 201);
    MEASUREITEMSTRUCT measure = {ODT_MENU, 0, 201, 0, 0, 0};
    const auto parameter = reinterpret_cast<LPARAM>(&measure);
    window.SendMessage(WM_MEASUREITEM, 0, parameter);
    EXPECT_EQ(menu.m_measured, 0U); // nobody knows of the menu yet
    window.SendMessage(WM_INITMENUPOPUP, reinterpret_cast<WPARAM>(menu.m_hMenu));
    EXPECT_EQ(window.SendMessage(WM_MEASUREITEM, 0, parameter), TRUE);
    EXPECT_EQ(menu.m_measured, 201U);
    EXPECT_EQ(measure.itemWidth, 40U);
    const auto handle = reinterpret_cast<HWND>(menu.m_hMenu);
    DRAWITEMSTRUCT draw = {ODT_MENU, 0, 201, 0, 0, handle, nullptr, {}, 0};
    window.SendMessage(WM_DRAWITEM, 0, reinterpret_cast<LPARAM>(&draw));
    EXPECT_EQ(menu.m_drawn, 201U);
}

} // namespace
