// What the tests of lookup tables share: an application object that notes message boxes, trees as text.
#pragma once

#include "lookup/LookupTree.h"
#include "lookup/MenuTree.h"

#include <afxwin.h>

#include <deque>
#include <initializer_list>
#include <string>

// Answers message boxes in order, and with IDOK behind the last.
class BoxApp : public CWinApp {
public:
    int DoMessageBox(LPCTSTR text, UINT type, UINT) override {
        m_boxes += (m_boxes.empty() ? "" : "\n") + std::string(text) + "|" + std::to_string(type);
        if (m_answers.empty())
            return IDOK;
        const int answer = m_answers.front();
        m_answers.pop_front();
        return answer;
    }
    // The boxes shown since the last call, "text|flags" each, apart by newlines.
    std::string Take() {
        std::string boxes;
        boxes.swap(m_boxes);
        return boxes;
    }
    std::deque<int> m_answers;

private:
    std::string m_boxes;
};

// "A(B C) D", or with source orders "A:0".
inline std::string Outline(const CMenuTree &node, bool orders = false) {
    std::string text;
    for (int i = 0; i < node.GetChildCount(); ++i) {
        const CMenuTree &child = *node.GetChild(i);
        text += (i == 0 ? "" : " ") + std::string(child.m_sCode);
        if (orders)
            text += ":" + std::to_string(child.m_nSourceOrder);
        if (child.HasChildren())
            text += "(" + Outline(child, orders) + ")";
    }
    return text;
}

// "code,description,total" of the longest among the children.
inline std::string Widths(const CMenuTree &node) {
    return std::to_string(node.m_nMaxCode) + "," + std::to_string(node.m_nMaxDescription) + "," +
           std::to_string(node.m_nMaxTotal);
}

inline void Fill(CStringArray &array, std::initializer_list<const char *> texts) {
    array.RemoveAll();
    for (const char *text : texts)
        array.Add(text);
}

// "A|B".
inline std::string Joined(const CStringArray &array) {
    std::string text;
    for (int i = 0; i < array.GetSize(); ++i)
        text += (i == 0 ? "" : "|") + std::string(array[i]);
    return text;
}

// "a*{ab}(b c)": '*' a complete code ends, the code list in braces, '~' no single path, children in brackets.
inline std::string TrieText(const CLookupNode &node) {
    std::string text;
    for (unsigned i = 0; i < node.GetChildCount(); ++i) {
        const CLookupNode &child = *node.GetChild(i);
        text += (i == 0 ? "" : " ") + std::string(1, static_cast<char>(child.m_cChar));
        text += child.m_bEndOfCode ? "*" : "";
        text += child.m_bSinglePath ? "" : "~";
        CStringArray codes;
        child.GetCodeList().CopyTo(codes);
        if (codes.GetSize() > 0)
            text += "{" + Joined(codes) + "}";
        if (child.GetChildCount() > 0)
            text += "(" + TrieText(child) + ")";
    }
    return text;
}
