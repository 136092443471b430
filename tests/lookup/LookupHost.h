// LookupHost: the host's services as far as lookup tables ask for them; the others answer nothing. It is the host of
// the tables as long as it lives.
#pragma once

#include "editorcore/QuietAppInterface.h"
#include "lookup/LookupTableFile.h"

#include <functional>
#include <string>

class LookupHost : public CQuietAppInterface {
public:
    LookupHost() { CLookupTableFile::SetAppInterface(this); }
    ~LookupHost() { CLookupTableFile::SetAppInterface(nullptr); }

    int CheckAbort() override {
        ++m_abortChecks;
        return m_abortAt != 0 && m_abortChecks >= m_abortAt;
    }
    bool EditLookupTableProperties(bool *caseSensitive, bool *acceptEmptyCells, bool *enableValidation,
                                   bool *sortMenuItems) override {
        ++m_propertyQuestions;
        if (m_onProperties)
            m_onProperties(caseSensitive, acceptEmptyCells, enableValidation, sortMenuItems);
        return m_propertyAnswer;
    }
    void DoWaitCursor(int step) override { m_waits += (m_waits.empty() ? "" : " ") + std::to_string(step); }

    std::string m_waits; // the steps of the wait cursor
    long m_abortChecks = 0;
    long m_abortAt = 0; // the check from which on the operation is to stop; 0 for none
    int m_propertyQuestions = 0;
    bool m_propertyAnswer = true;
    std::function<void(bool *, bool *, bool *, bool *)> m_onProperties;
};
