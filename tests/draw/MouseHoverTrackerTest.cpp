// SPDX-License-Identifier: MIT
#include "draw/MouseHoverTracker.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

#include "tests/support/ImportPatch.h"

namespace {

/// Writes down the platform calls of a tracker instead of making them.
class CallLog {
public:
    CallLog() {
        g_log = this;
        m_patch.Redirect("user32.dll", "TrackMouseEvent", &Track);
        m_patch.Redirect("user32.dll", "InvalidateRect", &Invalidate);
        m_patch.Redirect("user32.dll", "SetWindowPos", &Position);
    }

    /// The calls since the last look.
    std::vector<std::string> Take() { return std::exchange(m_calls, {}); }

private:
    static std::string Name(HWND window) {
        return std::to_string(reinterpret_cast<UINT_PTR>(window));
    }

    static BOOL WINAPI Track(TRACKMOUSEEVENT* request) {
        const std::string kind = request->dwFlags == TME_LEAVE    ? "track "
                                 : request->dwFlags == TME_CANCEL ? "cancel "
                                                                  : "other ";
        EXPECT_EQ(request->cbSize, sizeof *request);
        EXPECT_EQ(request->dwHoverTime, 0u);
        g_log->m_calls.push_back(kind + Name(request->hwndTrack));
        return TRUE;
    }

    static BOOL WINAPI Invalidate(HWND window, const RECT* rect, BOOL erase) {
        EXPECT_EQ(rect, nullptr);
        EXPECT_FALSE(erase);
        g_log->m_calls.push_back("repaint " + Name(window));
        return TRUE;
    }

    static BOOL WINAPI Position(HWND window, HWND, int, int, int, int, UINT flags) {
        EXPECT_EQ(flags, UINT{SWP_NOSIZE | SWP_NOMOVE | SWP_NOZORDER | SWP_FRAMECHANGED});
        g_log->m_calls.push_back("frame " + Name(window));
        return TRUE;
    }

    static inline CallLog* g_log = nullptr;
    std::vector<std::string> m_calls;
    ImportPatch m_patch;
};

using Calls = std::vector<std::string>;

const HWND kOwner = reinterpret_cast<HWND>(1);
const HWND kField = reinterpret_cast<HWND>(2);

TEST(MouseHoverTracker, FollowsTheMouseIntoAnotherWindow) {
    CallLog log;
    CMouseHoverTracker tracker;
    tracker.Attach(kOwner, CMouseHoverTracker::kRepaint);
    EXPECT_FALSE(tracker.OnMouseLeave()) << "nothing was tracked";
    EXPECT_TRUE(tracker.OnMouseMove(kOwner));
    EXPECT_FALSE(tracker.OnMouseMove()) << "null stands for the owner: no change";
    EXPECT_TRUE(tracker.IsHover());
    EXPECT_EQ(log.Take(), (Calls{"repaint 1", "track 1"}));

    EXPECT_FALSE(tracker.OnMouseMove(kField));
    EXPECT_EQ(log.Take(), (Calls{"cancel 1", "track 2"}));
    EXPECT_FALSE(tracker.OnMouseLeave(kOwner)) << "the late leave of the window left behind";
    EXPECT_TRUE(tracker.IsHover());
    EXPECT_EQ(log.Take(), Calls());
    EXPECT_TRUE(tracker.OnMouseLeave(kField));
    EXPECT_FALSE(tracker.IsHover());
}

TEST(MouseHoverTracker, OptionsSayWhatIsRefreshed) {
    struct {
        WORD options;
        Calls calls;
    } const cases[] = {
        {0, {"track 1"}},
        {CMouseHoverTracker::kRepaint, {"repaint 1", "track 1"}},
        {CMouseHoverTracker::kRecalcFrame, {"frame 1", "track 1"}},
        {CMouseHoverTracker::kRepaint | CMouseHoverTracker::kRecalcFrame,
         {"repaint 1", "frame 1", "track 1"}},
    };
    for (const auto& c : cases) {
        CallLog log;
        CMouseHoverTracker tracker;
        tracker.Attach(kOwner, c.options);
        tracker.OnMouseMove();
        EXPECT_EQ(log.Take(), c.calls) << c.options;
        tracker.OnMouseLeave();
        EXPECT_EQ(log.Take(), Calls(c.calls.begin(), c.calls.end() - 1)) << c.options;
    }
}

} // namespace
