// compile_lookup SOURCE...: compiles lookup sources, dBASE tables of codes and descriptions, to the .lbn files beside them.
// The tables are case sensitive, validate, accept empty cells and sort their menus. An old table is overwritten. The
// result is 0 when all could be compiled.
#include "DbfDataSource.h"
#include "editorcore/QuietAppInterface.h"
#include "lookup/LookupTableFileCompiler.h"

#include <cstdio>

#include <afxwin.h>

namespace {

// Whoever calls this wants the table compiled, whatever there was before.
class App : public CWinApp {
public:
    int DoMessageBox(LPCTSTR text, UINT type, UINT) override {
        if (type & MB_YESNO)
            return IDYES;
        std::fprintf(stderr, "%s\n", text);
        return IDOK;
    }
};

class Host : public CQuietAppInterface {
public:
    bool EditLookupTableProperties(bool *, bool *, bool *, bool *) override { return true; }
};

bool compile(Host &host, const char *path) {
    CDbfDataSource source({[](const std::string &text) { std::fprintf(stderr, "%s\n", text.c_str()); }, {}, {}, {}, {}});
    if (source.Open(path, "-view") != GRID_SUCCESS)
        return false;
    CLookupTableFileCompiler compiler(&host);
    compiler.AttachDataSource(&source);
    int col;
    long row;
    CString errorText;
    const bool compiled = compiler.Compile(col, row, errorText);
    if (!compiled && row >= 0)
        std::fprintf(stderr, "%s: record %ld, field %d: %s\n", path, row + 1, col + 1, errorText.GetString());
    else if (!compiled)
        std::fprintf(stderr, "%s: %s\n", path, errorText.GetString());
    compiler.DetachDataSource();
    return compiled;
}

} // namespace

int main(int count, char **arguments) {
    App app;
    Host host;
    CLookupTableFile::SetAppInterface(&host);
    bool all = count > 1;
    for (int i = 1; i < count; ++i)
        all = compile(host, arguments[i]) && all;
    return all ? 0 : 1;
}
