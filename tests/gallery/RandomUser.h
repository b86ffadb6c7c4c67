// SPDX-License-Identifier: MIT
#pragma once

#include <windows.h>

#include <random>
#include <string>

#include "automation/Picture.h"

/// A user who tries everything: mouse, keys, menus, and what the system does meanwhile.  The same seed
/// gives the same inputs.
///
/// To be used from another thread than the gallery's, so that menus and dialogs handle their input.
class RandomUser {
public:
    RandomUser(HWND gallery, unsigned seed) : m_gallery(gallery), m_random(seed) {}

    /// Does one thing.  Ends the program, with its last inputs on stderr, when the gallery does not
    /// answer any more.
    void Act();

    /// Closes what is open and puts the windows where they can be used.
    void CalmDown();

    /// Brings the gallery into the state that it is compared in: colours, bars, focus.
    void Settle();

    /// What the whole window looks like with one of the pages whose state can be put back: "Colours",
    /// "Bitmap buttons", "Menus".
    automation::Picture PictureOf(const char* scene);

    /// For a WH_GETMESSAGE hook of the gallery's thread: tells the user how far its input was handled.
    static void OnMessage(const MSG& message);

    /// The last inputs, one a line.
    static std::string LastInputs();

    /// Message boxes and the like that nobody expects, by title; empty when there were none.
    const std::string& Surprises() const { return m_surprises; }

private:
    using Deed = void (RandomUser::*)();

    void Move();
    void ClickSomewhere();
    void RightClick();
    void DoubleClick();
    void Drag();
    void Wheel();
    void TypeSomething();
    void OpenMenu();
    void Command();
    void ChangeScheme();
    void TellOfChange();
    void Resize();
    void DragToolBar();
    void OpenMenusFrame();

    bool IsBusy();
    int Below(int limit);
    POINT SomewhereIn(HWND window);
    HWND AnyWindow();
    void MoveTo(POINT point);
    void Post(UINT message, WPARAM wParam, LPARAM lParam = 0);
    void ExpectAnswer();
    void WaitUntilHandled();
    void Note(const std::string& input);

    HWND m_gallery;
    std::mt19937 m_random; // its numbers are the same everywhere; those of distributions are not
    std::string m_surprises;
};
