// The engine's whole contact with the file system: map a file for reading, write a new file beside another,
// put one file in the place of another in one step. Tests replace it by one that lives in memory or fails on
// purpose.
#pragma once

#include "Result.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <span>
#include <string>

namespace dbf {

using Bytes = std::span<const std::uint8_t>;

// Tells whether a file is still the one that was read.
struct FileStamp {
    std::uint64_t size = 0;
    std::int64_t modified = 0; // the platform's own tick, only good for comparing

    bool operator==(const FileStamp &) const = default;
};

// A file's bytes, readable as long as the object lives. Destroying it releases the file.
class MappedFile {
public:
    virtual ~MappedFile() = default;
    virtual Bytes bytes() const = 0;
};

// A new file being written from front to back. Destroying it closes the file and leaves it where it is.
class FileWriter {
public:
    virtual ~FileWriter() = default;
    virtual Result write(Bytes bytes) = 0;
    // The bytes written so far are on the disk when this returns success.
    virtual Result flush() = 0;
    // Full name of the file being written.
    virtual const std::string &path() const = 0;
};

class FileStore {
public:
    virtual ~FileStore() = default;

    // Maps the file for reading. Others may read the file meanwhile. `stamp` is that of the mapped bytes.
    virtual Result map(const std::string &path, std::unique_ptr<MappedFile> &file, FileStamp &stamp) = 0;
    // False when there is no such file.
    virtual bool stat(const std::string &path, FileStamp &stamp) = 0;
    virtual bool isWritable(const std::string &path) = 0;
    // Makes a new file of an unused name in the folder of `target`, with the permissions of `target` where
    // there is one.
    virtual Result createBeside(const std::string &target, std::unique_ptr<FileWriter> &writer) = 0;
    // Gives `from` the name `to` in one step, in place of what had that name; durable on success. On failure
    // both files are as they were. Neither may be mapped.
    virtual Result replace(const std::string &from, const std::string &to) = 0;
    // Removes a file; a failure is of no consequence to the caller.
    virtual void remove(const std::string &path) = 0;
};

// The real file system.
FileStore &systemFiles();

} // namespace dbf
