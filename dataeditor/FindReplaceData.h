// CFindReplaceData: one search or replacement, as the host's dialog hands it to the editor.
#pragma once

#include <afx.h>

#include <memory>

// Directions.
constexpr int kSearchUp = 0;
constexpr int kSearchDown = 1;
constexpr int kSearchAll = 2; // wraps round
constexpr int kSearchSelection = 3;

class ORVANE_API CFindReplaceData {
public:
    CFindReplaceData();
    ~CFindReplaceData();
    CFindReplaceData(const CFindReplaceData &) = delete;
    CFindReplaceData &operator=(const CFindReplaceData &other);
    // The object of this address, as a window message carries it; null where none lives there, for anybody can send
    // one. Objects live on the user-interface thread.
    static const CFindReplaceData *FromMessage(WPARAM address);

    // `find` and `replace` as typed; they are converted here. `matchMode` is one of Search::MatchMode. `useRegex` says
    // that `find` is a regular expression and not wildcard text, and `replace` its format.
    void SetData(const char *find, const char *replace, bool matchCase, bool allFields, int direction, int matchMode,
                 bool useRegex);
    void GetFindString(CString &pattern) const;
    void GetReplaceString(CString &format) const;
    void GetOriginalFindString(CString &typed) const;
    bool IsMatchingCase() const;
    bool IsSearchingAllFields() const;
    bool IsUsingRegex() const; // written by nobody, so false
    int GetDirection() const;
    void SetDirection(int direction);

private:
    class CImpl;
    std::unique_ptr<CImpl> m_pImpl;
};
