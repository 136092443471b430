#include "FileStore.h"

#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <sys/mman.h>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>

namespace dbf {
namespace {

std::string reason(const char *what, const std::string &path) {
    return std::string(what) + " \"" + path + "\": " + std::strerror(errno);
}

class Descriptor {
public:
    explicit Descriptor(int fd) : fd_(fd) {}
    Descriptor(Descriptor &&other) noexcept : fd_(std::exchange(other.fd_, -1)) {}
    Descriptor &operator=(const Descriptor &) = delete;
    ~Descriptor() {
        if (fd_ >= 0) {
            ::close(fd_);
        }
    }
    int get() const { return fd_; }

private:
    int fd_;
};

class PosixMapping final : public MappedFile {
public:
    // A mapping of no bytes cannot be made. Where the system refuses one, bytes() have no address.
    PosixMapping(int file, std::size_t size)
        : base_(size > 0 ? ::mmap(nullptr, size, PROT_READ, MAP_PRIVATE, file, 0) : nullptr), size_(size) {
        if (base_ == MAP_FAILED) {
            base_ = nullptr;
        }
    }
    ~PosixMapping() override {
        if (base_) {
            ::munmap(base_, size_);
        }
    }
    Bytes bytes() const override { return {static_cast<const std::uint8_t *>(base_), size_}; }

private:
    void *base_;
    std::size_t size_;
};

class PosixWriter final : public FileWriter {
public:
    PosixWriter(Descriptor fd, std::string path) : file_(std::move(fd)), path_(std::move(path)) {}

    Result write(Bytes bytes) override {
        while (!bytes.empty()) {
            const ssize_t written = ::write(file_.get(), bytes.data(), bytes.size());
            if (written < 0 && errno == EINTR) {
                continue;
            }
            if (written <= 0) {
                return Result::failure(reason("Cannot write", path_));
            }
            bytes = bytes.subspan(static_cast<std::size_t>(written));
        }
        return Result::success();
    }

    Result flush() override {
        return ::fsync(file_.get()) == 0 ? Result::success() : Result::failure(reason("Cannot flush", path_));
    }

    const std::string &path() const override { return path_; }

private:
    Descriptor file_;
    std::string path_;
};

FileStamp stampOf(const struct stat &info) {
    return {static_cast<std::uint64_t>(info.st_size),
            static_cast<std::int64_t>(info.st_mtim.tv_sec) * 1'000'000'000 + info.st_mtim.tv_nsec};
}

std::string folderOf(const std::string &path) {
    const auto slash = path.rfind('/');
    return slash == std::string::npos ? "." : path.substr(0, slash + 1);
}

class PosixFiles final : public FileStore {
public:
    Result map(const std::string &path, std::unique_ptr<MappedFile> &file, FileStamp &stamp) override {
        Descriptor fd(::open(path.c_str(), O_RDONLY | O_CLOEXEC));
        struct stat info {};
        if (fd.get() < 0 || ::fstat(fd.get(), &info) != 0) {
            return Result::failure(reason("Cannot open", path));
        }
        if (!S_ISREG(info.st_mode)) {
            return Result::failure("Cannot open \"" + path + "\": it is not a file");
        }
        const auto size = static_cast<std::size_t>(info.st_size);
        auto mapping = std::make_unique<PosixMapping>(fd.get(), size);
        if (size > 0 && mapping->bytes().data() == nullptr) {
            return Result::failure(reason("Cannot map", path));
        }
        file = std::move(mapping);
        stamp = stampOf(info);
        return Result::success();
    }

    bool stat(const std::string &path, FileStamp &stamp) override {
        struct stat info {};
        if (::stat(path.c_str(), &info) != 0) {
            return false;
        }
        stamp = stampOf(info);
        return true;
    }

    bool isWritable(const std::string &path) override { return ::access(path.c_str(), W_OK) == 0; }

    Result createBeside(const std::string &target, std::unique_ptr<FileWriter> &writer) override {
        struct stat info {};
        const bool exists = ::stat(target.c_str(), &info) == 0;
        const mode_t mode = exists ? info.st_mode & 0777 : 0666;
        for (int attempt = 0; attempt < 1000; ++attempt) {
            const std::string path =
                target + "." + std::to_string(::getpid()) + "-" + std::to_string(attempt) + ".tmp";
            Descriptor fd(::open(path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, mode));
            if (fd.get() >= 0) {
                // What the process takes away from the mode of new files, it does not take away from a file
                // there is.
                if (exists && ::fchmod(fd.get(), mode) != 0) {
                    Result refused = Result::failure(reason("Cannot set the permissions of", path));
                    remove(path);
                    return refused;
                }
                writer = std::make_unique<PosixWriter>(std::move(fd), path);
                return Result::success();
            }
            if (errno != EEXIST) {
                return Result::failure(reason("Cannot create", path));
            }
        }
        return Result::failure("Cannot create a new file beside \"" + target + "\"");
    }

    Result replace(const std::string &from, const std::string &to) override {
        if (::rename(from.c_str(), to.c_str()) != 0) {
            return Result::failure(reason("Cannot replace", to));
        }
        // The new name is durable only when the folder is. The replacement has happened either way, so a
        // folder that cannot be flushed is no failure.
        Descriptor folder(::open(folderOf(to).c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
        if (folder.get() >= 0) {
            ::fsync(folder.get());
        }
        return Result::success();
    }

    void remove(const std::string &path) override { ::unlink(path.c_str()); }
};

} // namespace

FileStore &systemFiles() {
    static PosixFiles files;
    return files;
}

} // namespace dbf
