// SPDX-License-Identifier: MIT
#include "tests/support/GdiLedger.h"

namespace {

GdiLedger* g_ledger = nullptr;

// One type per redirected function: it holds the real one.
#define TINTKIT_REAL(function)                         \
    struct Real##function {                            \
        using Function = decltype(&::function);        \
        static constexpr const char* name = #function; \
        static inline Function call = nullptr;         \
    };

#define TINTKIT_MAKERS(X)     \
    X(CreatePen)              \
    X(CreatePenIndirect)      \
    X(ExtCreatePen)           \
    X(CreateSolidBrush)       \
    X(CreateHatchBrush)       \
    X(CreateBrushIndirect)    \
    X(CreatePatternBrush)     \
    X(CreateFontA)            \
    X(CreateFontIndirectA)    \
    X(CreateBitmap)           \
    X(CreateCompatibleBitmap) \
    X(CreateDIBSection)       \
    X(CreateDIBitmap)         \
    X(CreateRectRgn)          \
    X(CreateRectRgnIndirect)  \
    X(CreateCompatibleDC)     \
    X(CreateDCA)

TINTKIT_MAKERS(TINTKIT_REAL)
TINTKIT_REAL(SelectObject)
TINTKIT_REAL(DeleteObject)
TINTKIT_REAL(DeleteDC)
TINTKIT_REAL(GetDC)
TINTKIT_REAL(GetDCEx)
TINTKIT_REAL(GetWindowDC)
TINTKIT_REAL(ReleaseDC)
TINTKIT_REAL(BeginPaint)
TINTKIT_REAL(EndPaint)
TINTKIT_REAL(SetClipboardData)

/// Stands in for a function that makes an object (or hands out a device context).
template <class Real, class Function = typename Real::Function>
struct Maker;

template <class Real, class Result, class... Arguments>
struct Maker<Real, Result(WINAPI*)(Arguments...)> {
    static Result WINAPI Call(Arguments... arguments) {
        const Result made = Real::call(arguments...);
        g_ledger->OnMade(made, Real::name);
        return made;
    }
};

HANDLE DefaultBitmap() {
    const HDC dc = ::CreateCompatibleDC(nullptr);
    const HANDLE bitmap = ::GetCurrentObject(dc, OBJ_BITMAP);
    ::DeleteDC(dc);
    return bitmap;
}

HGDIOBJ WINAPI LedgerSelectObject(HDC dc, HGDIOBJ object) {
    const HGDIOBJ previous = RealSelectObject::call(dc, object);
    if (previous != nullptr && previous != HGDI_ERROR)
        g_ledger->OnSelected(dc, object);
    return previous;
}

BOOL WINAPI LedgerDeleteObject(HGDIOBJ object) {
    g_ledger->OnDeleted(object);
    return RealDeleteObject::call(object);
}

BOOL WINAPI LedgerDeleteDC(HDC dc) {
    g_ledger->OnGivenBack(dc);
    return RealDeleteDC::call(dc);
}

int WINAPI LedgerReleaseDC(HWND window, HDC dc) {
    g_ledger->OnGivenBack(dc);
    return RealReleaseDC::call(window, dc);
}

/// What the clipboard has taken is its own.
HANDLE WINAPI LedgerSetClipboardData(UINT format, HANDLE data) {
    const HANDLE taken = RealSetClipboardData::call(format, data);
    if (taken != nullptr && format == CF_BITMAP)
        g_ledger->OnDeleted(data);
    return taken;
}

HDC WINAPI LedgerBeginPaint(HWND window, PAINTSTRUCT* paint) {
    const HDC dc = RealBeginPaint::call(window, paint);
    g_ledger->OnMade(dc, RealBeginPaint::name);
    return dc;
}

BOOL WINAPI LedgerEndPaint(HWND window, const PAINTSTRUCT* paint) {
    g_ledger->OnGivenBack(paint->hdc);
    return RealEndPaint::call(window, paint);
}

} // namespace

GdiLedger::GdiLedger() : m_defaultBitmap(DefaultBitmap()) {
    g_ledger = this;
    const auto redirect = [this](auto real, const char* library, auto replacement) {
        using Real = decltype(real);
        // Known before the redirection takes effect: another thread may call at once.
        Real::call = reinterpret_cast<typename Real::Function>(
            reinterpret_cast<void*>(::GetProcAddress(::GetModuleHandleA(library), Real::name)));
        m_patch.Redirect<typename Real::Function>(library, Real::name, replacement);
    };

#define TINTKIT_REDIRECT_MAKER(function) \
    redirect(Real##function(), "gdi32.dll", &Maker<Real##function>::Call);
    TINTKIT_MAKERS(TINTKIT_REDIRECT_MAKER)
    redirect(RealSelectObject(), "gdi32.dll", &LedgerSelectObject);
    redirect(RealDeleteObject(), "gdi32.dll", &LedgerDeleteObject);
    redirect(RealDeleteDC(), "gdi32.dll", &LedgerDeleteDC);
    redirect(RealGetDC(), "user32.dll", &Maker<RealGetDC>::Call);
    redirect(RealGetDCEx(), "user32.dll", &Maker<RealGetDCEx>::Call);
    redirect(RealGetWindowDC(), "user32.dll", &Maker<RealGetWindowDC>::Call);
    redirect(RealReleaseDC(), "user32.dll", &LedgerReleaseDC);
    redirect(RealBeginPaint(), "user32.dll", &LedgerBeginPaint);
    redirect(RealEndPaint(), "user32.dll", &LedgerEndPaint);
    redirect(RealSetClipboardData(), "user32.dll", &LedgerSetClipboardData);
}

GdiLedger::~GdiLedger() = default;

std::string GdiLedger::Unreturned() const {
    const std::lock_guard lock(m_mutex);
    std::map<std::string, int> counts;
    for (const auto& [object, maker] : m_live)
        ++counts[maker];
    std::string text;
    for (const auto& [maker, count] : counts)
        text += maker + " x" + std::to_string(count) + "\n";
    return text;
}

std::string GdiLedger::Faults() const {
    const std::lock_guard lock(m_mutex);
    std::string text;
    for (const std::string& fault : m_faults)
        text += fault + "\n";
    return text;
}

int GdiLedger::Made() const {
    const std::lock_guard lock(m_mutex);
    return m_made;
}

void GdiLedger::OnMade(HANDLE object, const char* maker) {
    const std::lock_guard lock(m_mutex);
    if (object == nullptr || object == m_defaultBitmap)
        return;
    m_live[object] = maker;
    ++m_made;
}

void GdiLedger::OnSelected(HDC dc, HGDIOBJ object) {
    const DWORD type = ::GetObjectType(object);
    const std::lock_guard lock(m_mutex);
    if (type != OBJ_REGION) // a region is copied, not selected
        m_selected[dc][type] = object;
}

void GdiLedger::OnDeleted(HANDLE object) {
    const std::lock_guard lock(m_mutex);
    const auto live = m_live.find(object);
    if (live == m_live.end())
        return; // a stock object, or made before the ledger was opened
    if (IsSelected(object))
        m_faults.push_back(std::string("deleted while selected: made by ") + live->second);
    m_live.erase(live);
}

void GdiLedger::OnGivenBack(HDC dc) {
    const std::lock_guard lock(m_mutex);
    for (const auto& [type, object] : m_selected[dc]) {
        const auto live = m_live.find(object);
        if (live != m_live.end())
            m_faults.push_back(std::string("still selected in a context given back: made by ") +
                               live->second);
    }
    m_selected.erase(dc);
    m_live.erase(dc);
}

bool GdiLedger::IsSelected(HANDLE object) const {
    for (const auto& [dc, objects] : m_selected)
        for (const auto& [type, selected] : objects)
            if (selected == object)
                return true;
    return false;
}
