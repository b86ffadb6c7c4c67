// SPDX-License-Identifier: MIT
#pragma once

#include <afxwin.h>

#include <memory>

#include "image/IsImage.h"

/// A static control that shows a picture file stretched to exactly fill it.
///
///     class CMyDialog : public CDialog {
///         CImageStatic m_picture;
///         void DoDataExchange(CDataExchange* exchange) override {
///             DDX_Control(exchange, IDC_PICTURE, m_picture);
///         }
///         BOOL OnInitDialog() override {
///             CDialog::OnInitDialog();
///             m_picture.SetImage("logo.png");
///             return TRUE;
///         }
///     };
///
/// Subclass any static of a dialog with it.  The proportions of the picture are not kept.  The picture
/// is brought to the control's size at the first paint and kept so; a control that changes its size
/// resamples what it then holds, so one that grows again calls SetImage for a sharp picture.
///
/// The control has no background of its own: where the picture is transparent, or there is none, the
/// dialog shows.  To show another such picture, invalidate the control's area of the dialog.
class CImageStatic : public CStatic {
public:
    ~CImageStatic() override;

    /// Loads a BMP, PNG or JPEG file in place of the current picture.
    ///
    /// Nothing is invalidated: the new picture shows at the next paint.  A file of no known
    /// format gives a black placeholder, one that is damaged leaves the control blank; until the
    /// next paint the last-error text of GetImage says why.
    /// @param path  narrow path
    void SetImage(const char* path);

    /// The picture as it is held now, null before the first SetImage.  The control's own: it changes
    /// with the next paint and goes with the next SetImage.
    const IsImage* GetImage() const { return m_image.get(); }

protected:
    afx_msg void OnPaint();
    DECLARE_MESSAGE_MAP()

private:
    std::unique_ptr<IsImage> m_image;
};
