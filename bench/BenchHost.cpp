#include "bench/BenchHost.h"

#include "host/sources/DbfDataSource.h"

#include <cstdio>

CUGDataSource *CBenchHost::CreateDataSource(const char *) {
    CDbfDataSource::Hooks hooks;
    hooks.message = [](const std::string &text) { std::fprintf(stderr, "%s\n", text.c_str()); };
    return new CDbfDataSource(hooks);
}
