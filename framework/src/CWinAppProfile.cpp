// SPDX-License-Identifier: MIT
// CWinApp: settings in the registry or in an INI file.
#include <afxwin.h>

#include <cstdlib>
#include <cstring>
#include <vector>

namespace {

/// A registry key, closed at the end of the scope.
class RegistryKey {
public:
    explicit RegistryKey(HKEY key) : m_key(key) {}
    ~RegistryKey() {
        if (m_key != nullptr) {
            ::RegCloseKey(m_key);
        }
    }
    RegistryKey(const RegistryKey&) = delete;
    RegistryKey& operator=(const RegistryKey&) = delete;

    explicit operator bool() const { return m_key != nullptr; }
    operator HKEY() const { return m_key; }

private:
    const HKEY m_key;
};

HKEY CreateKey(HKEY parent, LPCTSTR name) {
    HKEY key = nullptr;
    const LSTATUS status = ::RegCreateKeyEx(parent, name, 0, nullptr, REG_OPTION_NON_VOLATILE,
                                            KEY_READ | KEY_WRITE, nullptr, &key, nullptr);
    return status == ERROR_SUCCESS ? key : nullptr;
}

// A profile is for settings: what is larger was not written by a program like ours.
constexpr DWORD MaxValueSize = 1 << 20;

/// Reads a value of that type. False when it is missing, of another type or too large.
bool ReadValue(HKEY key, LPCTSTR entry, DWORD type, std::vector<BYTE>& data) {
    DWORD found = 0;
    DWORD size = 0;
    if (::RegQueryValueEx(key, entry, nullptr, &found, nullptr, &size) != ERROR_SUCCESS ||
        found != type || size > MaxValueSize) {
        return false;
    }
    data.resize(size);
    if (size != 0 &&
        ::RegQueryValueEx(key, entry, nullptr, &found, data.data(), &size) != ERROR_SUCCESS) {
        return false;
    }
    data.resize(size);
    return found == type;
}

bool WriteValue(HKEY key, LPCTSTR entry, DWORD type, const void* data, DWORD size) {
    return ::RegSetValueEx(key, entry, 0, type, static_cast<const BYTE*>(data), size) ==
           ERROR_SUCCESS;
}

// An INI file has no lines longer than that.
constexpr DWORD MaxIniText = 0x8000;

/// Reads an entry of an INI file. False when it is missing.
bool ReadIni(LPCTSTR file, LPCTSTR section, LPCTSTR entry, CString& text) {
    // A default that no program writes tells a missing entry from an empty one.
    std::vector<char> buffer(MaxIniText);
    ::GetPrivateProfileString(section, entry, "\x01", buffer.data(), MaxIniText, file);
    if (buffer[0] == '\x01' && buffer[1] == '\0') {
        return false;
    }
    text = buffer.data();
    return true;
}

/// A decimal or hexadecimal number; 0 for a text that is none.
UINT ParseNumber(const CString& text) {
    const bool isHex = text.Left(2).CompareNoCase("0x") == 0;
    return isHex ? static_cast<UINT>(std::strtoul(text, nullptr, 16))
                 : static_cast<UINT>(std::strtol(text, nullptr, 10));
}

void Replace(LPCTSTR& name, LPCTSTR text) {
    std::free(const_cast<LPTSTR>(name));
    name = ::_strdup(text);
}

} // namespace

// ---- Where the settings are ---------------------------------------------------------------------

void CWinApp::SetRegistryKey(LPCTSTR lpszRegistryKey) {
    ASSERT(lpszRegistryKey != nullptr);
    Replace(m_pszRegistryKey, lpszRegistryKey);
    Replace(m_pszProfileName, m_pszAppName);
}

HKEY CWinApp::OpenAppKey() {
    const RegistryKey software(CreateKey(HKEY_CURRENT_USER, "Software"));
    const RegistryKey company(software ? CreateKey(software, m_pszRegistryKey) : nullptr);
    return company ? CreateKey(company, m_pszProfileName) : nullptr;
}

HKEY CWinApp::OpenSectionKey(LPCTSTR section) {
    const RegistryKey application(OpenAppKey());
    return application ? CreateKey(application, section) : nullptr;
}

LONG CWinApp::DelRegTree(HKEY hParentKey, const CString& strKeyName) {
    return ::RegDeleteTree(hParentKey, strKeyName);
}

// ---- Numbers ------------------------------------------------------------------------------------

UINT CWinApp::GetProfileInt(LPCTSTR lpszSection, LPCTSTR lpszEntry, int nDefault) {
    if (m_pszRegistryKey == nullptr) {
        CString text;
        return ReadIni(m_pszProfileName, lpszSection, lpszEntry, text)
                   ? ParseNumber(text)
                   : static_cast<UINT>(nDefault);
    }
    const RegistryKey section(OpenSectionKey(lpszSection));
    std::vector<BYTE> data;
    DWORD value = static_cast<DWORD>(nDefault);
    if (section && ReadValue(section, lpszEntry, REG_DWORD, data) && data.size() == sizeof(value)) {
        std::memcpy(&value, data.data(), sizeof(value));
    }
    return value;
}

BOOL CWinApp::WriteProfileInt(LPCTSTR lpszSection, LPCTSTR lpszEntry, int nValue) {
    if (m_pszRegistryKey == nullptr) {
        CString text;
        text.Format("%d", nValue);
        return ::WritePrivateProfileString(lpszSection, lpszEntry, text, m_pszProfileName);
    }
    const RegistryKey section(OpenSectionKey(lpszSection));
    return section && WriteValue(section, lpszEntry, REG_DWORD, &nValue, sizeof(nValue));
}

// ---- Strings ------------------------------------------------------------------------------------

CString CWinApp::GetProfileString(LPCTSTR lpszSection, LPCTSTR lpszEntry, LPCTSTR lpszDefault) {
    CString text(lpszDefault == nullptr ? "" : lpszDefault);
    if (m_pszRegistryKey == nullptr) {
        ReadIni(m_pszProfileName, lpszSection, lpszEntry, text);
        return text;
    }
    const RegistryKey section(OpenSectionKey(lpszSection));
    std::vector<BYTE> data;
    if (section && ReadValue(section, lpszEntry, REG_SZ, data)) {
        // The registry does not see to it that a string ends with a null.
        data.push_back('\0');
        text = reinterpret_cast<LPCTSTR>(data.data());
    }
    return text;
}

BOOL CWinApp::WriteProfileString(LPCTSTR lpszSection, LPCTSTR lpszEntry, LPCTSTR lpszValue) {
    if (m_pszRegistryKey == nullptr) {
        return ::WritePrivateProfileString(lpszSection, lpszEntry, lpszValue, m_pszProfileName);
    }
    if (lpszEntry == nullptr) {
        const RegistryKey application(OpenAppKey());
        return application && DelRegTree(application, lpszSection) == ERROR_SUCCESS;
    }
    const RegistryKey section(OpenSectionKey(lpszSection));
    if (!section) {
        return FALSE;
    }
    if (lpszValue == nullptr) {
        const LSTATUS status = ::RegDeleteValue(section, lpszEntry);
        return status == ERROR_SUCCESS || status == ERROR_FILE_NOT_FOUND;
    }
    return WriteValue(section, lpszEntry, REG_SZ, lpszValue,
                      static_cast<DWORD>(std::strlen(lpszValue) + 1));
}
