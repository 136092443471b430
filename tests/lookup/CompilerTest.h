// The fixture of the compiler's tests.
#pragma once

#include "LookupHost.h"
#include "LookupTestSupport.h"
#include "TempFiles.h"
#include "TextSource.h"
#include "lookup/LookupTableFileCompiler.h"

#include <gtest/gtest.h>

#include <memory>

class TestCompiler : public CLookupTableFileCompiler {
public:
    using CLookupTableFileCompiler::CLookupTableFileCompiler;
    using CLookupTableFileCompiler::m_bAttached;
    using CLookupTableFileCompiler::m_pDataSource;
    using CLookupTableFileCompiler::m_sSourcePath;

    // "true code|description column text" under the rules that are not in force.
    bool ParseStrictly(long row, int columns, CString &code, CString &description, int &column, CString &text) {
        return ParseRow({false, false}, row, columns, code, description, column, text);
    }
};

class CompilerTest : public testing::Test {
protected:
    void Open(int columns, const TextSource::Rows &rows, const std::string &name = "table.dat") {
        m_source = std::make_unique<TextSource>(m_files.Path(name), columns, rows);
        m_compiler.AttachDataSource(m_source.get());
    }
    // "ok", or "(col,row) text".
    std::string Compile() {
        int col = 99;
        long row = 99;
        CString text = "left over";
        if (m_compiler.Compile(col, row, text))
            return "ok" + std::string(text);
        return "(" + std::to_string(col) + "," + std::to_string(row) + ") " + std::string(text);
    }
    std::string Compile(int columns, const TextSource::Rows &rows) {
        Open(columns, rows);
        return Compile();
    }
    std::string Menu(bool orders = false) { return Outline(m_compiler.m_MenuTree, orders); }
    std::string Trie() { return TrieText(m_compiler.m_LookupTree); }
    bool HasTable() { return TempFiles::Exists(m_files.Path("table.lbn")); }
    // What the file holds, as a fresh table reads it.
    std::unique_ptr<CLookupTableFile> Loaded() {
        auto table = std::make_unique<CLookupTableFile>();
        CString text;
        EXPECT_TRUE(table->SerializeFile(m_files.Path("table.lbn").c_str(), text, false)) << text;
        return table;
    }

    BoxApp m_app;
    LookupHost m_host;
    TempFiles m_files{"compiler"};
    TestCompiler m_compiler{&m_host};
    std::unique_ptr<TextSource> m_source;
};
