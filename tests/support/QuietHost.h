// QuietHost: the library's quiet host, with options. What a test or a benchmark wants otherwise it overrides.
#pragma once

#include "editorcore/QuietAppInterface.h"
#include "editorcore/QuietEditorOptions.h"

class QuietHost : public CQuietAppInterface {
public:
    CVEditorOptions *GetEditorOptions() override { return &m_quietOptions; }

private:
    CQuietEditorOptions m_quietOptions;
};
