// A table's file as it was opened: the mapping, the layout, the memo file, the code page.
#pragma once

#include "CodePage.h"
#include "FileStore.h"
#include "Layout.h"
#include "MemoFile.h"

#include <memory>
#include <string>
#include <vector>

namespace dbf {

class TableFile {
public:
    static Result open(FileStore &files, const std::string &path, int displayCodePage,
                       std::unique_ptr<TableFile> &opened);

    const Layout &layout() const { return layout_; }
    const FileStamp &stamp() const { return stamp_; }
    const MemoFile *memo() const { return memo_.get(); } // null when there is none or it cannot be used
    const TextTranslator &translator() const { return translator_; }
    const std::vector<std::string> &warnings() const { return warnings_; }

    Bytes header() const { return file_->bytes().first(layout_.headerLength); }
    // A record of the file, by its number below layout().records; a blank one while the file is released.
    const std::uint8_t *record(std::uint64_t number) const;
    const std::uint8_t *blankRecord() const { return blank_.data(); }

    // Lets go of the files, so that they can be replaced, and takes hold of them again, which fails when the
    // table's file is no longer the same.
    void release();
    Result reattach();
    bool isAttached() const { return file_ != nullptr; }

private:
    TableFile(FileStore &files, std::string path) : files_(files), path_(std::move(path)) {}
    Result openMemo();
    void chooseCodePage(int displayCodePage);
    void makeBlankRecord();

    FileStore &files_;
    std::string path_;
    std::unique_ptr<MappedFile> file_;
    FileStamp stamp_;
    Layout layout_;
    std::unique_ptr<MemoFile> memo_;
    TextTranslator translator_;
    std::vector<std::uint8_t> blank_;
    std::vector<std::string> warnings_;
};

} // namespace dbf
