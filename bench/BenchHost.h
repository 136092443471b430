// CBenchHost: a quiet host whose tables are dBASE files.
#pragma once

#include "QuietHost.h"

class CBenchHost final : public QuietHost {
public:
    CUGDataSource *CreateDataSource(const char *path) override;
};
