// The table as the source of a lookup table.
#include "host/TableEditor.h"

#include "host/HostApp.h"
#include "lookup/LookupTableFileCompiler.h"

void CTableEditor::CompileLookupTable() {
    CUGDataSource *source = GetCurrentDataSrc(true);
    if (source == nullptr)
        return;
    CLookupTableFileCompiler compiler(&GetHostApp()->Service());
    compiler.AttachDataSource(source);
    int col = -1;
    long row = -1;
    CString text;
    try {
        if (compiler.Compile(col, row, text)) {
            CString name;
            compiler.GetLookupFileName(name);
            text.Format("Successfully compiled to the file '%s'!", static_cast<const char *>(name));
            AfxMessageBox(text, MB_ICONINFORMATION);
            return;
        }
    } catch (CMemoryException *e) { // of independent levels, and told already
        e->Delete();
        return;
    }
    // The compiler counts the source's fields, the user may see them in another order or not at all.
    const int shown = col >= 0 ? GetGridField(col) : 0;
    if (row >= 0)
        GotoCell(shown >= 0 ? shown : GetCurrentCol(), row);
    if (!text.IsEmpty())
        AfxMessageBox(text, MB_ICONHAND);
}
