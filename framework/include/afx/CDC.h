// SPDX-License-Identifier: MIT
#pragma once

#include <afx.h>
#include <atltypes.h>

class CBitmap;
class CBrush;
class CFont;
class CGdiObject;
class CPalette;
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
/// The forms that take a CString, a POINT or a SIZE call the virtual form, so that a derived class
/// overrides one function to see all calls.
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

    /// The window that output goes to; null for a memory context. May be temporary.
    CWnd* GetWindow() const;

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

    BOOL CreateDC(LPCTSTR lpszDriverName, LPCTSTR lpszDeviceName, LPCTSTR lpszOutput,
                  const void* lpInitData);
    BOOL CreateIC(LPCTSTR lpszDriverName, LPCTSTR lpszDeviceName, LPCTSTR lpszOutput,
                  const void* lpInitData);

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
    CPalette* GetCurrentPalette() const;

    /// @param bForceBackground  nonzero to realize it as a background palette at all times.
    CPalette* SelectPalette(CPalette* pPalette, BOOL bForceBackground);

    /// Number of palette entries that changed.
    UINT RealizePalette();
    void UpdateColors();
    /// @}

    /// @name Colours and modes: the setters return the previous value
    /// @{
    COLORREF GetNearestColor(COLORREF crColor) const;
    COLORREF GetTextColor() const;
    virtual COLORREF SetTextColor(COLORREF crColor);
    COLORREF GetBkColor() const;
    virtual COLORREF SetBkColor(COLORREF crColor);
    int GetBkMode() const;
    int SetBkMode(int nBkMode);
    COLORREF GetDCBrushColor() const;
    COLORREF SetDCBrushColor(COLORREF crColor);
    COLORREF GetDCPenColor() const;
    COLORREF SetDCPenColor(COLORREF crColor);
    int GetROP2() const;
    int SetROP2(int nDrawMode);
    int GetPolyFillMode() const;
    int SetPolyFillMode(int nPolyFillMode);
    int GetStretchBltMode() const;
    int SetStretchBltMode(int nStretchMode);
    int GetArcDirection() const;
    int SetArcDirection(int nArcDirection);
    int GetGraphicsMode() const;
    int SetGraphicsMode(int iMode);
    DWORD GetLayout() const;
    DWORD SetLayout(DWORD dwLayout);

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
    CPoint SetViewportOrg(POINT point);
    virtual CPoint OffsetViewportOrg(int nWidth, int nHeight);
    CSize GetViewportExt() const;
    virtual CSize SetViewportExt(int cx, int cy);
    CSize SetViewportExt(SIZE size);

    /// Multiplies the extents by num / denom.
    virtual CSize ScaleViewportExt(int xNum, int xDenom, int yNum, int yDenom);
    CPoint GetWindowOrg() const;
    CPoint SetWindowOrg(int x, int y);
    CPoint SetWindowOrg(POINT point);
    CPoint OffsetWindowOrg(int nWidth, int nHeight);
    CSize GetWindowExt() const;
    virtual CSize SetWindowExt(int cx, int cy);
    CSize SetWindowExt(SIZE size);
    virtual CSize ScaleWindowExt(int xNum, int xDenom, int yNum, int yDenom);

    /// Convert in place. A size is scaled by the extents and keeps its signs.
    void DPtoLP(LPPOINT lpPoints, int nCount = 1) const;
    void DPtoLP(LPRECT lpRect) const;
    void DPtoLP(LPSIZE lpSize) const;
    void LPtoDP(LPPOINT lpPoints, int nCount = 1) const;
    void LPtoDP(LPRECT lpRect) const;
    void LPtoDP(LPSIZE lpSize) const;
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
    int SelectClipRgn(CRgn* pRgn, int nMode);
    int ExcludeClipRect(int x1, int y1, int x2, int y2);
    int ExcludeClipRect(LPCRECT lpRect);
    int ExcludeUpdateRgn(CWnd* pWnd);
    int IntersectClipRect(int x1, int y1, int x2, int y2);
    int IntersectClipRect(LPCRECT lpRect);
    int OffsetClipRgn(int x, int y);
    int OffsetClipRgn(SIZE size);
    /// @}

    /// @name Lines and shapes: drawn with the pen, filled with the brush
    /// @{
    CPoint GetCurrentPosition() const;

    /// The previous position.
    CPoint MoveTo(int x, int y);
    CPoint MoveTo(POINT point);

    /// The end point itself is not drawn.
    BOOL LineTo(int x, int y);
    BOOL LineTo(POINT point);
    BOOL Polyline(LPPOINT lpPoints, int nCount);
    BOOL Polygon(LPPOINT lpPoints, int nCount);

    /// @param lpPolyCounts  number of points of each of the `nCount` polygons.
    BOOL PolyPolygon(LPPOINT lpPoints, LPINT lpPolyCounts, int nCount);
    BOOL PolyBezier(const POINT* lpPoints, int nCount);
    BOOL Rectangle(int x1, int y1, int x2, int y2);
    BOOL Rectangle(LPCRECT lpRect);

    /// @param x3, y3, point  width and height of the ellipse that rounds the corners.
    BOOL RoundRect(int x1, int y1, int x2, int y2, int x3, int y3);
    BOOL RoundRect(LPCRECT lpRect, POINT point);
    BOOL Ellipse(int x1, int y1, int x2, int y2);
    BOOL Ellipse(LPCRECT lpRect);

    /// Parts of the ellipse within (x1, y1)-(x2, y2), from the ray through (x3, y3) to the one
    /// through (x4, y4).
    BOOL Arc(int x1, int y1, int x2, int y2, int x3, int y3, int x4, int y4);
    BOOL Arc(LPCRECT lpRect, POINT ptStart, POINT ptEnd);
    BOOL Chord(int x1, int y1, int x2, int y2, int x3, int y3, int x4, int y4);
    BOOL Chord(LPCRECT lpRect, POINT ptStart, POINT ptEnd);
    BOOL Pie(int x1, int y1, int x2, int y2, int x3, int y3, int x4, int y4);
    BOOL Pie(LPCRECT lpRect, POINT ptStart, POINT ptEnd);

    /// Drawing calls between these two define a path instead of drawing.
    BOOL BeginPath();
    BOOL EndPath();
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
    void InvertRect(LPCRECT lpRect);

    /// Drawn by exclusive or: a second call removes it.
    void DrawFocusRect(LPCRECT lpRect);

    /// @param nEdge   EDGE_RAISED ...
    /// @param nFlags  BF_RECT ...; BF_ADJUST shrinks the rectangle to what is inside.
    BOOL DrawEdge(LPRECT lpRect, UINT nEdge, UINT nFlags);
    BOOL DrawFrameControl(LPRECT lpRect, UINT nType, UINT nState);
    BOOL FillRgn(CRgn* pRgn, CBrush* pBrush);

    /// @param nWidth, nHeight  thickness of vertical and horizontal parts.
    BOOL FrameRgn(CRgn* pRgn, CBrush* pBrush, int nWidth, int nHeight);
    BOOL InvertRgn(CRgn* pRgn);
    BOOL PaintRgn(CRgn* pRgn);
    BOOL FloodFill(int x, int y, COLORREF crColor);
    BOOL ExtFloodFill(int x, int y, COLORREF crColor, UINT nFillType);
    BOOL GradientFill(TRIVERTEX* pVertices, ULONG nVertices, void* pMesh, ULONG nMeshElements,
                      DWORD dwMode);

    /// A brush of alternating pixels in the text and background colour. One for the whole program:
    /// do not delete it. Null if it could not be made.
    static CBrush* PASCAL GetHalftoneBrush();
    /// @}

    /// @name Pixels and pictures
    /// @{

    /// CLR_INVALID outside the clipping region.
    COLORREF GetPixel(int x, int y) const;
    COLORREF GetPixel(POINT point) const;

    /// The colour really set, (COLORREF)-1 on failure.
    COLORREF SetPixel(int x, int y, COLORREF crColor);
    COLORREF SetPixel(POINT point, COLORREF crColor);
    BOOL SetPixelV(int x, int y, COLORREF crColor);
    BOOL SetPixelV(POINT point, COLORREF crColor);
    BOOL PatBlt(int x, int y, int nWidth, int nHeight, DWORD dwRop);

    /// @param pSrcDC  null only for a raster operation without source.
    BOOL BitBlt(int x, int y, int nWidth, int nHeight, CDC* pSrcDC, int xSrc, int ySrc,
                DWORD dwRop);
    BOOL StretchBlt(int x, int y, int nWidth, int nHeight, CDC* pSrcDC, int xSrc, int ySrc,
                    int nSrcWidth, int nSrcHeight, DWORD dwRop);

    /// @param maskBitmap  monochrome; ones take the foreground operation of MAKEROP4.
    BOOL MaskBlt(int x, int y, int nWidth, int nHeight, CDC* pSrcDC, int xSrc, int ySrc,
                 CBitmap& maskBitmap, int xMask, int yMask, DWORD dwRop);
    BOOL AlphaBlend(int xDest, int yDest, int nDestWidth, int nDestHeight, CDC* pSrcDC, int xSrc,
                    int ySrc, int nSrcWidth, int nSrcHeight, BLENDFUNCTION blend);

    /// @param clrTransparent  colour of the source that is not copied.
    BOOL TransparentBlt(int xDest, int yDest, int nDestWidth, int nDestHeight, CDC* pSrcDC,
                        int xSrc, int ySrc, int nSrcWidth, int nSrcHeight, UINT clrTransparent);
    BOOL DrawIcon(int x, int y, HICON hIcon);
    BOOL DrawIcon(POINT point, HICON hIcon);

    /// Draw a picture or text in a state (DSS_NORMAL, DSS_DISABLED ... in `nFlags`; the DST_ type
    /// is added here).
    /// @param size      of the picture; zero for its own size.
    /// @param nTextLen  bytes; zero for a terminated text.
    /// @param hBrush, pBrush  for DSS_MONO only.
    /// @{
    BOOL DrawState(CPoint pt, CSize size, HBITMAP hBitmap, UINT nFlags, HBRUSH hBrush = NULL);
    BOOL DrawState(CPoint pt, CSize size, CBitmap* pBitmap, UINT nFlags, CBrush* pBrush = NULL);
    BOOL DrawState(CPoint pt, CSize size, HICON hIcon, UINT nFlags, HBRUSH hBrush = NULL);
    BOOL DrawState(CPoint pt, CSize size, HICON hIcon, UINT nFlags, CBrush* pBrush = NULL);
    BOOL DrawState(CPoint pt, CSize size, LPCTSTR lpszText, UINT nFlags, BOOL bPrefixText = TRUE,
                   int nTextLen = 0, HBRUSH hBrush = NULL);
    BOOL DrawState(CPoint pt, CSize size, LPCTSTR lpszText, UINT nFlags, BOOL bPrefixText = TRUE,
                   int nTextLen = 0, CBrush* pBrush = NULL);
    BOOL DrawState(CPoint pt, CSize size, DRAWSTATEPROC lpDrawProc, LPARAM lData, UINT nFlags,
                   HBRUSH hBrush = NULL);
    BOOL DrawState(CPoint pt, CSize size, DRAWSTATEPROC lpDrawProc, LPARAM lData, UINT nFlags,
                   CBrush* pBrush = NULL);
    /// @}

    /// Moves the pixels of a window.
    /// @param lpRectScroll, lpRectClip  null for the whole client area.
    /// @param pRgnUpdate, lpRectUpdate  receive the uncovered part, or null.
    BOOL ScrollDC(int dx, int dy, LPCRECT lpRectScroll, LPCRECT lpRectClip, CRgn* pRgnUpdate,
                  LPRECT lpRectUpdate);
    /// @}

    /// @name Text: counts are bytes
    /// @{
    virtual BOOL TextOut(int x, int y, LPCTSTR lpszString, int nCount);
    BOOL TextOut(int x, int y, const CString& str);

    /// @param nOptions    ETO_CLIPPED, ETO_OPAQUE.
    /// @param lpRect      the rectangle of these options, or null.
    /// @param lpDxWidths  `nCount` distances between characters, or null.
    virtual BOOL ExtTextOut(int x, int y, UINT nOptions, LPCRECT lpRect, LPCTSTR lpszString,
                            UINT nCount, LPINT lpDxWidths);
    BOOL ExtTextOut(int x, int y, UINT nOptions, LPCRECT lpRect, const CString& str,
                    LPINT lpDxWidths);

    /// Size of the text drawn.
    /// @param nTabOrigin  x-coordinate that tab stops are counted from.
    virtual CSize TabbedTextOut(int x, int y, LPCTSTR lpszString, int nCount, int nTabPositions,
                                LPINT lpnTabStopPositions, int nTabOrigin);
    CSize TabbedTextOut(int x, int y, const CString& str, int nTabPositions,
                        LPINT lpnTabStopPositions, int nTabOrigin);

    /// Height of the text, zero on failure. With DT_CALCRECT nothing is drawn and `lpRect` becomes
    /// as large as the text. The CString forms never change the string (no DT_MODIFYSTRING).
    /// @param nCount  -1 for a terminated text.
    virtual int DrawText(LPCTSTR lpszString, int nCount, LPRECT lpRect, UINT nFormat);
    int DrawText(const CString& str, LPRECT lpRect, UINT nFormat);
    virtual int DrawTextEx(LPTSTR lpszString, int nCount, LPRECT lpRect, UINT nFormat,
                           LPDRAWTEXTPARAMS lpDTParams);
    int DrawTextEx(const CString& str, LPRECT lpRect, UINT nFormat, LPDRAWTEXTPARAMS lpDTParams);

    /// @param pBrush      for the dimming; null for the window text colour.
    /// @param lpfnOutput  draws `lpData`; null if `lpData` is the text itself.
    virtual BOOL GrayString(CBrush* pBrush, BOOL(CALLBACK* lpfnOutput)(HDC, LPARAM, int),
                            LPARAM lpData, int nCount, int x, int y, int nWidth, int nHeight);
    virtual int Escape(int nEscape, int nCount, LPCSTR lpszInData, LPVOID lpOutData);
    int Escape(int nEscape, int nInputSize, LPCSTR lpszInputData, int nOutputSize,
               LPSTR lpszOutputData);

    /// Size of one line in the current font of the attribute context, (0, 0) on failure; the Output
    /// forms ask the output context.
    CSize GetTextExtent(LPCTSTR lpszString, int nCount) const;
    CSize GetTextExtent(const CString& str) const;
    CSize GetOutputTextExtent(LPCTSTR lpszString, int nCount) const;
    CSize GetOutputTextExtent(const CString& str) const;
    CSize GetTabbedTextExtent(LPCTSTR lpszString, int nCount, int nTabPositions,
                              LPINT lpnTabStopPositions) const;
    CSize GetTabbedTextExtent(const CString& str, int nTabPositions,
                              LPINT lpnTabStopPositions) const;
    BOOL GetTextMetrics(LPTEXTMETRIC lpMetrics) const;
    BOOL GetOutputTextMetrics(LPTEXTMETRIC lpMetrics) const;

    /// Widths of the characters from `nFirstChar` to `nLastChar`, one entry each.
    BOOL GetCharWidth(UINT nFirstChar, UINT nLastChar, LPINT lpBuffer) const;
    BOOL GetCharABCWidths(UINT nFirstChar, UINT nLastChar, LPABC lpabc) const;

    /// Name of the font in use; bytes copied without the terminator.
    int GetTextFace(int nCount, LPTSTR lpszFacename) const;
    int GetTextFace(CString& rString) const;
    UINT GetTextAlign() const;
    UINT SetTextAlign(UINT nFlags);
    int GetTextCharacterExtra() const;
    int SetTextCharacterExtra(int nCharExtra);
    int SetTextJustification(int nBreakExtra, int nBreakCount);
    /// @}
};
