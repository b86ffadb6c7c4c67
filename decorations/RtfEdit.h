// SPDX-License-Identifier: MIT
#pragma once

#include <afxcmn.h>

/// A rich edit control that can show an RTF file; all else is the rich edit control's own.
///
///     BOOL CMyApp::InitInstance() {
///         AfxInitRichEdit2(); // before the dialog: a template names the class "RichEdit20A"
///         ...
///     class CMyDialog : public CDialog {
///         CRtfEdit m_text;
///         void DoDataExchange(CDataExchange* exchange) override {
///             DDX_Control(exchange, IDC_TEXT, m_text);
///         }
///         BOOL OnInitDialog() override {
///             CDialog::OnInitDialog();
///             m_text.LoadRtfFile("manual.rtf");
///             return TRUE;
///         }
///     };
///
/// The template decides about ES_MULTILINE, ES_READONLY and the scroll bars.  Windows cuts a document at
/// the control's limit: LimitText first, where one may be longer than 32,767 characters.
///
/// The parser is the system's, and not every system's survives a document made to break it; an overlong
/// font name is enough for Wine's.  No check is made here, which would have to know each parser's faults:
/// show files that the program came with or trusts.
class CRtfEdit : public CRichEditCtrl {
public:
    /// Replaces what the control holds by the RTF document in a file; an empty file empties it.
    ///
    /// A file that cannot be opened (missing, in use by another program) or read changes nothing, and
    /// nothing is reported.  What is not RTF shows as the control takes it, which may be not at all.
    /// @param path  narrow path
    void LoadRtfFile(const char* path);

    /// Hands the control the next bytes of a file, as an EDITSTREAMCALLBACK.
    /// @param cookie     the CFile
    /// @param buffer     room for `bytesWanted` bytes
    /// @param bytesRead  receives how many there were; 0 at the end of the file
    /// @return 0 to go on; anything else ends the transfer
    static DWORD CALLBACK StreamInCallback(DWORD_PTR cookie, LPBYTE buffer, LONG bytesWanted,
                                           LONG* bytesRead);

protected:
    DECLARE_MESSAGE_MAP()
};
