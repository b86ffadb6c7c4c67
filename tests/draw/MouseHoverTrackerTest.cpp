// SPDX-License-Identifier: MIT
#include "draw/MouseHoverTracker.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>

#include "tests/support/ImportPatch.h"

namespace {

/// Writes down the platform calls of a tracker instead of making them.
class CallLog {
public:
    CallLog() {
        g_calls.clear();
        m_patch.Redirect(
            "user32.dll", "TrackMouseEvent", +[](TRACKMOUSEEVENT* request) -> BOOL {
                EXPECT_EQ(request->cbSize + request->dwHoverTime, sizeof *request);
                return Note(request->dwFlags == TME_LEAVE ? "track " : "cancel ",
                            request->hwndTrack);
            });
        m_patch.Redirect(
            "user32.dll", "InvalidateRect", +[](HWND window, const RECT* rect, BOOL erase) -> BOOL {
                return Note(rect == nullptr && !erase ? "repaint " : "?", window);
            });
        m_patch.Redirect(
            "user32.dll", "SetWindowPos",
            +[](HWND window, HWND, int, int, int, int, UINT flags) -> BOOL {
                return Note(flags == (SWP_NOSIZE | SWP_NOMOVE | SWP_NOZORDER | SWP_FRAMECHANGED)
                                ? "frame "
                                : "?",
                            window);
            });
    }

    /// The calls since the last look.
    std::string Take() { return std::exchange(g_calls, {}); }

private:
    static BOOL Note(const char* call, HWND window) {
        g_calls += call + std::to_string(reinterpret_cast<UINT_PTR>(window)) + ' ';
        return TRUE;
    }

    static inline std::string g_calls;
    ImportPatch m_patch;
};

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
    EXPECT_EQ(log.Take(), "repaint 1 track 1 ");

    EXPECT_FALSE(tracker.OnMouseMove(kField));
    EXPECT_EQ(log.Take(), "cancel 1 track 2 ");
    EXPECT_FALSE(tracker.OnMouseLeave(kOwner)) << "the late leave of the window left behind";
    EXPECT_TRUE(tracker.IsHover());
    EXPECT_EQ(log.Take(), "");
    EXPECT_TRUE(tracker.OnMouseLeave(kField));
    EXPECT_FALSE(tracker.IsHover());

    tracker.OnMouseMove();
    tracker.Attach(kField, 0);
    EXPECT_FALSE(tracker.IsHover()) << "the first window went with the mouse over it";
}

TEST(MouseHoverTracker, OptionsSayWhatIsRefreshed) {
    const std::string refreshed[] = {"", "repaint 1 ", "frame 1 ", "repaint 1 frame 1 "};
    for (WORD options = 0; options < 4; ++options) {
        CallLog log;
        CMouseHoverTracker tracker;
        tracker.Attach(kOwner, options);
        tracker.OnMouseMove();
        EXPECT_EQ(log.Take(), refreshed[options] + "track 1 ");
        tracker.OnMouseLeave();
        EXPECT_EQ(log.Take(), refreshed[options]);
    }
}

} // namespace
