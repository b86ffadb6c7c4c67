// SPDX-License-Identifier: MIT
#pragma once

#include <afx.h>
#include <atltypes.h>

class CBitmap;
class CBrush;
class CFont;
class CGdiObject;
class CPen;
class CRgn;
class CWnd;

/// A device context and the duty to delete it.
///
/// There are two handles, normally the same: output goes to m_hDC, questions about the state go to
/// m_hAttribDC, and what changes the state goes to both. Coordinates are logical ones unless
/// another space is named; the right and bottom edges of a rectangle are outside it.
///
/// Without a device context every call fails as the Win32 function of that name does: nothing is
/// drawn, and zero, null or the function's own error value comes back. Pointers to objects that a
/// function returns may be temporary, see CGdiObject.
///
/// The forms that take a CString, a POINT or a RECT call the virtual form where there is one, so that
/// a derived class overrides one function to see all calls.
class CDC : public CObject {
    DECLARE_DYNAMIC(CDC)

public:
    CDC();

    /// Deletes the device context m_hDC, if one is held.
    ~CDC() override;

    HDC m_hDC;       ///< Output; null without one.
    HDC m_hAttribDC; ///< Attributes; null without one.

    operator HDC() const;

    /// The output handle; null for a null pointer.
    HDC GetSafeHdc() const;

    /// The attached CDC of a handle, else a temporary one. Null for a null handle.
    static CDC* PASCAL FromHandle(HDC hDC);

    /// Destroys the calling thread's temporary objects; their device contexts stay.
    static void PASCAL DeleteTempMap();

    /// @name Holding a device context; zero on failure
    /// @{

    /// Takes over `hDC` for output and attributes. Zero for a null handle.
    BOOL Attach(HDC hDC);

    /// Gives the output handle, and the duty to delete it, back to the caller.
    HDC Detach();

    /// Points output or attributes elsewhere without taking the handle over.
    /// @note The output handle may only be set or released while none is attached.
    virtual void SetOutputDC(HDC hDC);
    virtual void SetAttribDC(HDC hDC);
    virtual void ReleaseOutputDC();
    virtual void ReleaseAttribDC();

    /// A memory context with a monochrome bitmap of one pixel selected.
    /// @param pDC  device to be compatible with; null for the screen.
    BOOL CreateCompatibleDC(CDC* pDC);
    BOOL DeleteDC();

    /// Pushes the state; its number, zero on failure.
    virtual int SaveDC();

    /// Pops down to the state `nSavedDC`; -1 for the last one pushed.
    virtual BOOL RestoreDC(int nSavedDC);
    int GetDeviceCaps(int nIndex) const;
    /// @}

    /// @name Selecting: the object that was selected before, null on failure
    /// @{
    virtual CGdiObject* SelectStockObject(int nIndex);
    CPen* SelectObject(CPen* pPen);
    CBrush* SelectObject(CBrush* pBrush);
    virtual CFont* SelectObject(CFont* pFont);

    /// Into the output context only, since a bitmap can be in one context at a time.
    CBitmap* SelectObject(CBitmap* pBitmap);

    /// Same as SelectClipRgn().
    int SelectObject(CRgn* pRgn);

    /// By the kind of GDI object. Always null for a region, which replaces no object.
    CGdiObject* SelectObject(CGdiObject* pObject);

    CPen* GetCurrentPen() const;
    CBrush* GetCurrentBrush() const;
    CFont* GetCurrentFont() const;
    CBitmap* GetCurrentBitmap() const;
    /// @}

    /// @name Colours and modes: the setters return the previous value
    /// @{
    COLORREF GetTextColor() const;
    virtual COLORREF SetTextColor(COLORREF crColor);
    COLORREF GetBkColor() const;
    virtual COLORREF SetBkColor(COLORREF crColor);
    int GetBkMode() const;
    int SetBkMode(int nBkMode);

    /// Origin of brush patterns, in device units.
    CPoint GetBrushOrg() const;
    CPoint SetBrushOrg(int x, int y);
    CPoint SetBrushOrg(POINT point);
    /// @}

    /// @name Mapping: viewport in device units, window in logical ones; previous value returned
    /// @{
    int GetMapMode() const;
    virtual int SetMapMode(int nMapMode);
    CPoint GetViewportOrg() const;
    virtual CPoint SetViewportOrg(int x, int y);
    CSize GetViewportExt() const;
    virtual CSize SetViewportExt(int cx, int cy);

    CPoint GetWindowOrg() const;
    CPoint SetWindowOrg(int x, int y);
    CPoint SetWindowOrg(POINT point);
    CSize GetWindowExt() const;
    virtual CSize SetWindowExt(int cx, int cy);
    /// @}

    /// @name Clipping: int results are NULLREGION, SIMPLEREGION, COMPLEXREGION or ERROR
    /// @{
    virtual int GetClipBox(LPRECT lpRect) const;
    virtual BOOL PtVisible(int x, int y) const;
    BOOL PtVisible(POINT point) const;

    /// Nonzero if any part of the rectangle is inside the clipping region.
    virtual BOOL RectVisible(LPCRECT lpRect) const;

    /// A copy of the region is used, in device units. Null clips no more.
    int SelectClipRgn(CRgn* pRgn);
    int ExcludeClipRect(int x1, int y1, int x2, int y2);
    int ExcludeClipRect(LPCRECT lpRect);
    int IntersectClipRect(int x1, int y1, int x2, int y2);
    int IntersectClipRect(LPCRECT lpRect);
    /// @}

    /// @name Lines and shapes: drawn with the pen, filled with the brush
    /// @{

    /// The previous position.
    CPoint MoveTo(int x, int y);

    /// The end point itself is not drawn.
    BOOL LineTo(int x, int y);
    BOOL Polyline(LPPOINT lpPoints, int nCount);

    BOOL Rectangle(int x1, int y1, int x2, int y2);
    BOOL Rectangle(LPCRECT lpRect);

    BOOL Ellipse(int x1, int y1, int x2, int y2);
    /// @}

    /// @name Filling and framing
    /// @{
    void FillRect(LPCRECT lpRect, CBrush* pBrush);

    /// Leaves `clr` as the background colour.
    void FillSolidRect(LPCRECT lpRect, COLORREF clr);
    void FillSolidRect(int x, int y, int cx, int cy, COLORREF clr);

    /// A frame of one unit inside the rectangle.
    void FrameRect(LPCRECT lpRect, CBrush* pBrush);

    /// A frame of one unit inside the rectangle. The corners upper right and lower left belong to
    /// right and bottom. Leaves `clrBottomRight` as the background colour.
    void Draw3dRect(LPCRECT lpRect, COLORREF clrTopLeft, COLORREF clrBottomRight);
    void Draw3dRect(int x, int y, int cx, int cy, COLORREF clrTopLeft, COLORREF clrBottomRight);

    /// Drawn by exclusive or: a second call removes it.
    void DrawFocusRect(LPCRECT lpRect);

    BOOL DrawFrameControl(LPRECT lpRect, UINT nType, UINT nState);
    /// @}

    /// @name Pixels and pictures
    /// @{

    /// CLR_INVALID outside the clipping region.
    COLORREF GetPixel(int x, int y) const;

    /// The colour really set, (COLORREF)-1 on failure.
    COLORREF SetPixel(int x, int y, COLORREF crColor);
    BOOL SetPixelV(int x, int y, COLORREF crColor);

    /// @param pSrcDC  null only for a raster operation without source.
    BOOL BitBlt(int x, int y, int nWidth, int nHeight, CDC* pSrcDC, int xSrc, int ySrc,
                DWORD dwRop);

    /// Draw a picture in a state (DSS_NORMAL, DSS_DISABLED ... in `nFlags`; the DST_ type is added
    /// here).
    /// @param size            of the picture; zero for its own size.
    /// @param hBrush, pBrush  for DSS_MONO only.
    /// @{
    BOOL DrawState(CPoint pt, CSize size, CBitmap* pBitmap, UINT nFlags, CBrush* pBrush = NULL);
    BOOL DrawState(CPoint pt, CSize size, HICON hIcon, UINT nFlags, HBRUSH hBrush = NULL);
    /// @}
    /// @}

    /// @name Text: counts are bytes
    /// @{
    virtual BOOL TextOut(int x, int y, LPCTSTR lpszString, int nCount);

    /// @param nOptions    ETO_CLIPPED, ETO_OPAQUE.
    /// @param lpRect      the rectangle of these options, or null.
    /// @param lpDxWidths  `nCount` distances between characters, or null.
    virtual BOOL ExtTextOut(int x, int y, UINT nOptions, LPCRECT lpRect, LPCTSTR lpszString,
                            UINT nCount, LPINT lpDxWidths);

    /// Size of the text drawn.
    /// @param nTabOrigin  x-coordinate that tab stops are counted from.
    virtual CSize TabbedTextOut(int x, int y, LPCTSTR lpszString, int nCount, int nTabPositions,
                                LPINT lpnTabStopPositions, int nTabOrigin);

    /// Height of the text, zero on failure. With DT_CALCRECT nothing is drawn and `lpRect` becomes
    /// as large as the text. The CString form never changes the string (no DT_MODIFYSTRING).
    /// @param nCount  -1 for a terminated text.
    virtual int DrawText(LPCTSTR lpszString, int nCount, LPRECT lpRect, UINT nFormat);
    int DrawText(const CString& str, LPRECT lpRect, UINT nFormat);
    virtual int DrawTextEx(LPTSTR lpszString, int nCount, LPRECT lpRect, UINT nFormat,
                           LPDRAWTEXTPARAMS lpDTParams);

    /// @param pBrush      for the dimming; null for the window text colour.
    /// @param lpfnOutput  draws `lpData`; null if `lpData` is the text itself.
    virtual BOOL GrayString(CBrush* pBrush, BOOL(CALLBACK* lpfnOutput)(HDC, LPARAM, int),
                            LPARAM lpData, int nCount, int x, int y, int nWidth, int nHeight);
    virtual int Escape(int nEscape, int nCount, LPCSTR lpszInData, LPVOID lpOutData);

    /// Size of one line in the current font of the attribute context, (0, 0) on failure.
    CSize GetTextExtent(LPCTSTR lpszString, int nCount) const;
    CSize GetTextExtent(const CString& str) const;
    /// @}
};
