// The file beside a table that holds its long texts, by block number. Read only.
#pragma once

#include "FileStore.h"

namespace dbf {

enum class MemoFormat {
    dbase3, // .dbt: blocks of 512 bytes, a text ends at 0x1A
    dbase4, // .dbt: block size in the header, each text with its length in front
    foxpro, // .fpt: big-endian numbers
};

// Bytes of a text that are handed out: what cells, searches and filters look at. No cell is wide enough for more, and a
// memo file from a stranger may hold a text of any length.
inline constexpr std::size_t kLongestMemoText = 65'536;

class MemoFile {
public:
    static Result open(FileStore &files, const std::string &path, MemoFormat format,
                       std::unique_ptr<MemoFile> &memo);

    const std::string &path() const { return path_; }
    MemoFormat format() const { return format_; }
    Bytes bytes() const { return file_->bytes(); }
    // What stands at a block, its first kLongestMemoText bytes at most; empty for block 0 and for a block outside the
    // file. A length that runs past the end of the file is cut there.
    std::string text(std::uint32_t block) const;

private:
    MemoFile(std::string path, MemoFormat format, std::unique_ptr<MappedFile> file);
    std::string textWithMark(Bytes from) const;
    std::string textWithLength(Bytes from) const;

    std::string path_;
    MemoFormat format_;
    std::unique_ptr<MappedFile> file_;
    std::size_t blockSize_ = 512;
};

} // namespace dbf
