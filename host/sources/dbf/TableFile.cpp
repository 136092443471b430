#include "TableFile.h"

#include <algorithm>

namespace dbf {
namespace {

// What may lie beside a table of this version, likeliest first.
std::vector<MemoFormat> memoFormats(std::uint8_t version) {
    switch (version) {
    case 0x83: return {MemoFormat::dbase3, MemoFormat::foxpro};
    case 0x03: return {MemoFormat::dbase3, MemoFormat::foxpro};
    case 0x43:
    case 0x63:
    case 0x8B:
    case 0xCB: return {MemoFormat::dbase4};
    default: return {MemoFormat::foxpro};
    }
}

// The names the memo file may have, in the letter case of the table's own extension first.
std::vector<std::string> memoPaths(const std::string &table, MemoFormat format) {
    const auto dot = table.find_last_of("./\\");
    const bool hasExtension = dot != std::string::npos && table[dot] == '.';
    const std::string stem = hasExtension ? table.substr(0, dot) : table;
    const bool upper =
        hasExtension && dot + 1 < table.size() && table[dot + 1] >= 'A' && table[dot + 1] <= 'Z';
    const bool foxpro = format == MemoFormat::foxpro;
    const std::string small = stem + (foxpro ? ".fpt" : ".dbt");
    const std::string large = stem + (foxpro ? ".FPT" : ".DBT");
    return upper ? std::vector{large, small} : std::vector{small, large};
}

} // namespace

Result TableFile::open(FileStore &files, const std::string &path, int displayCodePage,
                       std::unique_ptr<TableFile> &opened) {
    std::unique_ptr<TableFile> table(new TableFile(files, path));
    if (Result mapped = files.map(path, table->file_, table->stamp_); !mapped) {
        return mapped;
    }
    if (Result parsed = parseLayout(table->file_->bytes(), table->layout_, table->warnings_); !parsed) {
        return Result::failure("Cannot open \"" + path + "\": " + parsed.message);
    }
    table->chooseCodePage(displayCodePage);
    table->makeBlankRecord();
    if (Result memo = table->openMemo(); !memo) {
        table->warnings_.push_back(memo.message + "; long texts are not shown");
    }
    if (table->layout_.hasIndex) {
        table->warnings_.push_back(
            "An index belongs to the table; it is not kept up to date, and the table no "
            "longer refers to it once saved");
    }
    opened = std::move(table);
    return Result::success();
}

void TableFile::chooseCodePage(int displayCodePage) {
    const int number = codePageOfLanguageDriver(layout_.languageDriver);
    const CodePage *page = number > 0 ? findCodePage(number) : nullptr;
    if (number != 0 && !page) {
        warnings_.push_back("The table's code page (language driver " +
                            std::to_string(layout_.languageDriver) +
                            ") is not known; its characters are shown as if they were of this system's page");
    }
    translator_ = TextTranslator(page, findCodePage(displayCodePage));
    for (Field &field : layout_.fields) {
        translator_.toDisplay(field.name);
    }
}

Result TableFile::openMemo() {
    if (!layout_.hasMemo()) {
        return Result::success();
    }
    Result opened = Result::failure("The memo file of \"" + path_ + "\" is missing");
    for (const MemoFormat format : memoFormats(layout_.version)) {
        for (const std::string &path : memoPaths(path_, format)) {
            FileStamp stamp;
            if (!files_.stat(path, stamp)) {
                continue;
            }
            opened = MemoFile::open(files_, path, format, memo_);
            if (opened) {
                return opened;
            }
        }
    }
    return opened;
}

void TableFile::makeBlankRecord() {
    blank_.assign(layout_.recordLength, kPresentMark);
    for (const Field &field : layout_.fields) {
        const bool textual =
            field.isEditable() || field.kind == FieldKind::varChar ||
            ((field.kind == FieldKind::memo || field.kind == FieldKind::blob) && field.width == 10);
        std::fill_n(&blank_[field.offset], field.width, static_cast<std::uint8_t>(textual ? ' ' : 0));
    }
    for (const Field &field : layout_.fields) {
        if (field.shorter.byte != 0) { // nothing of the field is used
            blank_[field.shorter.byte] |= field.shorter.mask;
            blank_[field.offset + field.width - 1] = 0;
        }
    }
}

const std::uint8_t *TableFile::record(std::uint64_t number) const {
    if (!file_) {
        return blank_.data();
    }
    return file_->bytes().data() + layout_.headerLength + number * layout_.recordLength;
}

void TableFile::release() {
    file_.reset();
    memo_.reset();
}

Result TableFile::reattach() {
    if (file_) {
        return Result::success();
    }
    std::unique_ptr<MappedFile> file;
    FileStamp stamp;
    if (Result mapped = files_.map(path_, file, stamp); !mapped) {
        return mapped;
    }
    if (stamp != stamp_) {
        return Result::failure("\"" + path_ + "\" was changed by another program");
    }
    openMemo();
    file_ = std::move(file);
    return Result::success();
}

} // namespace dbf
