// SPDX-License-Identifier: MIT
#pragma once

#include <windows.h>

#include <string>
#include <thread>

#include "automation/Picture.h"

/// Walks through the gallery as a person would, with real mouse and keyboard input, and writes a
/// picture of every scene under three schemes of system colours, and one sheet of all schemes.
///
/// It runs on a thread of its own, so that the window's thread handles the input exactly as always;
/// it touches the windows only through their handles.
class PictureTour {
public:
    /// @param folder  where the pictures go; made when it is not there
    explicit PictureTour(std::string folder);
    ~PictureTour();

    PictureTour(const PictureTour&) = delete;
    PictureTour& operator=(const PictureTour&) = delete;

    /// Starts the tour: it waits for the gallery's window, walks through it and closes it at the end.
    void Start();

    /// Waits for the end of the tour.
    /// @return true when every picture was written
    bool Finish();

    // For the scenes of the tour:

    HWND Gallery() const { return m_gallery; }

    HWND ToolBar() const;
    HWND StatusBar() const;

    /// The page that the gallery shows now.
    HWND Page() const;

    /// Chooses a scene by a click on its title in the list.
    void ChooseScene(const char* title) const;

    /// Moves the mouse to where it touches nothing.
    void ParkMouse() const;

    /// Waits until the gallery is at rest, then takes what the screen shows of a control and a margin
    /// around it.
    automation::Picture PictureOf(HWND control) const;

    /// Writes "<name>.png".
    void Write(const automation::Picture& picture, const std::string& name);

private:
    void Run();
    void VisitScenes(const std::string& scheme);
    HWND Contents() const;

    std::string m_folder;
    HWND m_gallery = nullptr;
    bool m_complete = true;
    std::thread m_thread;
};
