#include "MemoFile.h"

#include "Endian.h"

#include <algorithm>
#include <array>

namespace dbf {
namespace {

constexpr std::size_t kDbase3BlockSize = 512;
constexpr std::size_t kDbase4BlockSizeAt = 20;
constexpr std::size_t kFoxproBlockSizeAt = 6;
constexpr std::size_t kBlockHeaderLength = 8;
constexpr std::array<std::uint8_t, 4> kDbase4Mark = {0xFF, 0xFF, 0x08, 0x00};
constexpr std::uint8_t kTextEnd = 0x1A;
constexpr char kSoftReturn = '\x8D';

Bytes beginningOf(Bytes bytes, std::uint64_t length = kLongestMemoText) {
    return bytes.first(static_cast<std::size_t>(std::min<std::uint64_t>({length, bytes.size(), kLongestMemoText})));
}

// The text editor of dBASE III breaks lines with 0x8D 0x0A; to everybody else that is a line end like others.
void hardenReturns(std::string &text) {
    for (std::size_t i = 0; i + 1 < text.size(); ++i) {
        if (text[i] == kSoftReturn && text[i + 1] == '\n') {
            text[i] = '\r';
        }
    }
}

} // namespace

MemoFile::MemoFile(std::string path, MemoFormat format, std::unique_ptr<MappedFile> file)
    : path_(std::move(path)), format_(format), file_(std::move(file)) {
    const Bytes all = file_->bytes();
    if (format_ == MemoFormat::foxpro) {
        blockSize_ = bigU16(&all[kFoxproBlockSizeAt]);
    } else if (format_ == MemoFormat::dbase4) {
        const std::size_t stated = littleU16(&all[kDbase4BlockSizeAt]);
        blockSize_ = stated ? stated : kDbase3BlockSize;
    }
}

Result MemoFile::open(FileStore &files, const std::string &path, MemoFormat format,
                      std::unique_ptr<MemoFile> &memo) {
    std::unique_ptr<MappedFile> file;
    FileStamp stamp;
    if (Result mapped = files.map(path, file, stamp); !mapped) {
        return mapped;
    }
    const std::size_t least = format == MemoFormat::dbase4 ? kDbase4BlockSizeAt + 2 : kBlockHeaderLength;
    if (file->bytes().size() < least) {
        return Result::failure("The memo file \"" + path + "\" is cut short");
    }
    memo.reset(new MemoFile(path, format, std::move(file)));
    if (memo->blockSize_ == 0) {
        memo.reset();
        return Result::failure("The memo file \"" + path + "\" states a block size of 0");
    }
    return Result::success();
}

std::string MemoFile::text(std::uint32_t block) const {
    const Bytes all = file_->bytes();
    const std::uint64_t at = static_cast<std::uint64_t>(block) * blockSize_;
    if (block == 0 || at >= all.size()) {
        return {};
    }
    const Bytes from = all.subspan(static_cast<std::size_t>(at));
    return format_ == MemoFormat::dbase3 ? textWithMark(from) : textWithLength(from);
}

std::string MemoFile::textWithMark(Bytes from) const {
    from = beginningOf(from);
    std::string text(from.begin(), std::find(from.begin(), from.end(), kTextEnd));
    hardenReturns(text);
    return text;
}

std::string MemoFile::textWithLength(Bytes from) const {
    if (from.size() < kBlockHeaderLength) {
        return {};
    }
    std::uint64_t length = 0;
    if (format_ == MemoFormat::foxpro) {
        length = bigU32(&from[4]);
    } else if (std::equal(kDbase4Mark.begin(), kDbase4Mark.end(), from.begin())) {
        const std::uint32_t whole = littleU32(&from[4]); // counts the eight bytes in front too
        length = whole > kBlockHeaderLength ? whole - kBlockHeaderLength : 0;
    } else {
        return textWithMark(from); // a text taken over from a dBASE III file
    }
    const Bytes stored = beginningOf(from.subspan(kBlockHeaderLength), length);
    std::string text(stored.begin(), stored.end());
    if (format_ == MemoFormat::dbase4) {
        hardenReturns(text);
    }
    return text;
}

} // namespace dbf
