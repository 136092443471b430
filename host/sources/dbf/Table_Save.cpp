// Writing a table to its file or to another one.
#include "Table.h"

#include "Endian.h"

#include <algorithm>
#include <cstring>
#include <limits>

namespace dbf {
namespace {

constexpr std::size_t kWriteBufferBytes = 1024 * 1024;

// Collects small pieces into large writes.
class BufferedWriter {
public:
    explicit BufferedWriter(FileWriter &writer) : writer_(writer) { buffer_.reserve(kWriteBufferBytes); }

    Result add(Bytes bytes) {
        if (buffer_.size() + bytes.size() > kWriteBufferBytes) {
            if (Result emptied = empty(); !emptied) {
                return emptied;
            }
        }
        buffer_.insert(buffer_.end(), bytes.begin(), bytes.end());
        return Result::success();
    }

    Result empty() {
        Result written = writer_.write(buffer_);
        buffer_.clear();
        return written;
    }

private:
    FileWriter &writer_;
    std::vector<std::uint8_t> buffer_;
};

std::string extensionOf(const std::string &path) {
    const auto dot = path.find_last_of("./\\");
    return dot != std::string::npos && path[dot] == '.' ? path.substr(dot) : std::string();
}

std::string withExtension(const std::string &path, const std::string &extension) {
    return path.substr(0, path.size() - extensionOf(path).size()) + extension;
}

} // namespace

// What a save has put on the disk so far. Its files of passing use are removed when it ends.
struct Table::SaveJob {
    FileStore &files;
    std::string target;
    std::string memoTarget;
    std::string written;     // the new table, until it is in place
    std::string memoWritten; // the new memo file, until it is in place
    std::string memoBefore;  // the memo file that had the name before

    SaveJob(FileStore &store, std::string path) : files(store), target(std::move(path)) {}
    SaveJob(const SaveJob &) = delete;
    SaveJob &operator=(const SaveJob &) = delete;
    ~SaveJob() {
        for (const std::string *path : {&written, &memoWritten, &memoBefore}) {
            if (!path->empty()) {
                files.remove(*path);
            }
        }
    }

    Result setMemoAside();
    void takeMemoBack(Result &failure);
    Result putInPlace();
};

// The memo file that has the name already is kept aside until the table is in place too: the two belong
// together, and a new memo file beside an old table would show wrong texts.
Result Table::SaveJob::setMemoAside() {
    FileStamp stamp;
    if (!files.stat(memoTarget, stamp)) {
        return Result::success();
    }
    std::unique_ptr<FileWriter> aside;
    if (Result made = files.createBeside(memoTarget, aside); !made) {
        return made;
    }
    std::string name = aside->path();
    aside.reset();
    Result moved = files.replace(memoTarget, name);
    if (moved) {
        memoBefore = std::move(name);
    } else {
        files.remove(name);
    }
    return moved;
}

void Table::SaveJob::takeMemoBack(Result &failure) {
    if (memoBefore.empty()) {
        files.remove(memoTarget);
        return;
    }
    if (!files.replace(memoBefore, memoTarget)) {
        failure.message += "; the memo file \"" + memoTarget + "\" is now named \"" + memoBefore + "\"";
    }
    memoBefore.clear(); // whatever its name, it stays
}

Result Table::SaveJob::putInPlace() {
    const bool withMemo = !memoWritten.empty();
    if (withMemo) {
        if (Result aside = setMemoAside(); !aside) {
            return aside;
        }
        if (Result placed = files.replace(memoWritten, memoTarget); !placed) {
            takeMemoBack(placed);
            return placed;
        }
        memoWritten.clear();
    }
    Result placed = files.replace(written, target);
    if (placed) {
        written.clear();
    } else if (withMemo) {
        takeMemoBack(placed);
    }
    return placed;
}

bool Table::isForeign() const {
    FileStamp now;
    return files_->stat(path_, now) && now != file_->stamp();
}

// The header of the file with the count of records, the date and what is no longer true changed.
std::vector<std::uint8_t> Table::headerFor(Row count) const {
    const Bytes old = file_->header();
    std::vector<std::uint8_t> header(old.begin(), old.end());
    const Date date = today_();
    header[kUpdateDateAt] = static_cast<std::uint8_t>(date.year - 1900);
    header[kUpdateDateAt + 1] = static_cast<std::uint8_t>(date.month);
    header[kUpdateDateAt + 2] = static_cast<std::uint8_t>(date.day);
    putLittleU32(&header[kRecordCountAt], static_cast<std::uint32_t>(count));
    // The index was made for the old records. Who opens the table with it would be led to wrong ones.
    header[kTableFlagsAt] &= static_cast<std::uint8_t>(~kHasIndexFlag);
    return header;
}

Result Table::writeRecords(FileWriter &writer, const RowPredicate &keep) const {
    const Row rows = rowCount();
    Row kept = rows;
    if (keep) {
        kept = 0;
        for (Row row = 0; row < rows; ++row) {
            kept += keep(row) ? 1 : 0;
        }
    }
    BufferedWriter buffer(writer);
    Result result = buffer.add(headerFor(kept));
    for (Row row = 0; row < rows && result; ++row) {
        if (!keep || keep(row)) {
            result = buffer.add(recordBytes(row));
        }
    }
    if (result) {
        result = buffer.add(Bytes(&kFileEnd, 1));
    }
    return result ? buffer.empty() : result;
}

Result Table::writeTable(SaveJob &job, const RowPredicate &keep) const {
    std::unique_ptr<FileWriter> writer;
    if (Result made = files_->createBeside(job.target, writer); !made) {
        return made;
    }
    job.written = writer->path();
    Result written = writeRecords(*writer, keep);
    return written ? writer->flush() : written;
}

// Copies the memo file to the side of the new table.
Result Table::writeMemo(SaveJob &job) const {
    const MemoFile *memo = file_->memo();
    if (!memo) {
        return Result::success();
    }
    job.memoTarget = withExtension(job.target, extensionOf(memo->path()));
    if (job.memoTarget == memo->path()) {
        return Result::success();
    }
    std::unique_ptr<FileWriter> writer;
    if (Result made = files_->createBeside(job.memoTarget, writer); !made) {
        return made;
    }
    job.memoWritten = writer->path();
    Result written = writer->write(memo->bytes());
    return written ? writer->flush() : written;
}

// Puts what was written in the place of its target and opens that.
Result Table::replaceAndReopen(SaveJob &job) {
    std::string name = job.target;
    file_->release(); // a mapped file cannot be replaced everywhere
    Result result = job.putInPlace();
    if (result) {
        reopen_.swap(name);
        result = ensureOpen();
        return result ? result : Result::failure("\"" + job.target + "\" is saved, but: " + result.message);
    }
    if (Result back = file_->reattach(); !back) {
        result.message += "; what was to be saved is in \"" + job.written + "\"";
        job.written.clear(); // so that it stays
    }
    return result;
}

Result Table::saveTo(const std::string &path, const RowPredicate &keep, bool overwriteForeign) {
    if (Result open = ensureOpen(); !open) {
        return open;
    }
    if (path == path_ && !overwriteForeign && isForeign()) {
        return Result::failure(
            "\"" + path_ + "\" was changed by another program since it was opened; it is not overwritten");
    }
    SaveJob job(*files_, path);
    if (Result memo = writeMemo(job); !memo) {
        return memo;
    }
    if (Result table = writeTable(job, keep); !table) {
        return table;
    }
    try {
        return replaceAndReopen(job);
    } catch (const std::bad_alloc &) {
        const bool placed = !reopen_.empty();
        if (Result open = ensureOpen(); placed && open) {
            return open; // nothing was lost but the first try to open what is saved
        }
        throw;
    }
}

Result Table::save(bool overwriteForeign) {
    if (readOnly_) {
        return Result::failure("\"" + path_ + "\" was opened for viewing only");
    }
    if (!writable_) {
        return Result::failure("\"" + path_ + "\" may not be written");
    }
    return saveTo(path_, {}, overwriteForeign);
}

Result Table::saveAs(const std::string &path, const RowPredicate &keep, bool overwriteForeign) {
    return saveTo(path, keep, overwriteForeign);
}

} // namespace dbf
