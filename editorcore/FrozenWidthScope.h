// CFrozenWidthScope: the side heading keeps step with the frozen columns while columns change. They are drawn inside it,
// so that it is as wide as its own part, which shows the record numbers, and they together.
#pragma once

#include "editorcore/EditorCore.h"
#include "editorcore/MemoryGuard.h"

class CFrozenWidthScope {
public:
    explicit CFrozenWidthScope(CEditorCore *editor)
        : m_editor(editor), m_ownWidth(editor->GetSH_Width() - editor->FrozenSpan()) {}
    ~CFrozenWidthScope() {
        RunInMemory([this] { m_editor->FitSideHeading(m_ownWidth); }); // often on the way out of an exception
    }
    CFrozenWidthScope(const CFrozenWidthScope &) = delete;
    CFrozenWidthScope &operator=(const CFrozenWidthScope &) = delete;

private:
    CEditorCore *m_editor;
    int m_ownWidth; // pixels; below 0 where the user made the heading narrower than the columns in it
};
