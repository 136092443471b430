#include "FileStore.h"

#include <algorithm>
#include <utility>

#include <windows.h>

#include <aclapi.h>

namespace dbf {
namespace {

std::string systemText(DWORD error) {
    char text[512] = "";
    const DWORD length = FormatMessageA(FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS, nullptr,
                                        error, 0, text, sizeof text, nullptr);
    std::string result(text, length);
    while (!result.empty() && (result.back() == '\n' || result.back() == '\r' || result.back() == '.')) {
        result.pop_back();
    }
    return result.empty() ? "error " + std::to_string(error) : result;
}

std::string reason(const char *what, const std::string &path) {
    const DWORD error = GetLastError();
    return std::string(what) + " \"" + path + "\": " + systemText(error);
}

class Handle {
public:
    explicit Handle(HANDLE handle) : handle_(handle == INVALID_HANDLE_VALUE ? nullptr : handle) {}
    Handle(Handle &&other) noexcept : handle_(std::exchange(other.handle_, nullptr)) {}
    Handle &operator=(const Handle &) = delete;
    ~Handle() { close(); }
    HANDLE get() const { return handle_; }
    void close() {
        if (handle_) {
            CloseHandle(std::exchange(handle_, nullptr));
        }
    }

private:
    HANDLE handle_;
};

class WinMapping final : public MappedFile {
public:
    WinMapping(Handle file, std::size_t size) : file_(std::move(file)), size_(size) {}
    ~WinMapping() override {
        if (base_) {
            UnmapViewOfFile(base_);
        }
    }

    bool attach() {
        if (size_ == 0) { // a mapping of no bytes cannot be made
            return true;
        }
        Handle section(CreateFileMappingA(file_.get(), nullptr, PAGE_READONLY, 0, 0, nullptr));
        base_ = section.get() ? MapViewOfFile(section.get(), FILE_MAP_READ, 0, 0, 0) : nullptr;
        return base_ != nullptr;
    }
    Bytes bytes() const override { return {static_cast<const std::uint8_t *>(base_), size_}; }

private:
    // Held open with reading shared and nothing else, so that nobody shortens the file under the mapping.
    Handle file_;
    std::size_t size_;
    void *base_ = nullptr;
};

class WinWriter final : public FileWriter {
public:
    WinWriter(Handle file, std::string path) : file_(std::move(file)), path_(std::move(path)) {}

    Result write(Bytes bytes) override {
        while (!bytes.empty()) {
            const auto portion = static_cast<DWORD>(std::min<std::size_t>(bytes.size(), 1u << 30));
            DWORD written = 0;
            if (!WriteFile(file_.get(), bytes.data(), portion, &written, nullptr) || written == 0) {
                return Result::failure(reason("Cannot write", path_));
            }
            bytes = bytes.subspan(written);
        }
        return Result::success();
    }

    Result flush() override {
        return FlushFileBuffers(file_.get()) ? Result::success()
                                             : Result::failure(reason("Cannot flush", path_));
    }

    const std::string &path() const override { return path_; }

private:
    Handle file_;
    std::string path_;
};

// Who may do what with a file.
class Permissions {
public:
    // Without any where the file system knows none, or where there is no such file.
    explicit Permissions(std::string path) {
        if (GetNamedSecurityInfoA(path.data(), SE_FILE_OBJECT, DACL_SECURITY_INFORMATION, nullptr, nullptr,
                                  &list_, nullptr, &descriptor_) != ERROR_SUCCESS) {
            list_ = nullptr;
        }
    }
    Permissions(const Permissions &) = delete;
    Permissions &operator=(const Permissions &) = delete;
    ~Permissions() { LocalFree(descriptor_); }

    // Did somebody set them, so that they are other than what the folder gives to new files?
    bool areOwn() const {
        for (WORD i = 0; list_ && i < list_->AceCount; ++i) {
            void *entry = nullptr;
            if (GetAce(list_, i, &entry) && !(static_cast<ACE_HEADER *>(entry)->AceFlags & INHERITED_ACE)) {
                return true;
            }
        }
        return list_ && (control() & SE_DACL_PROTECTED);
    }

    // The handle has WRITE_DAC. Everything as it is, what came from the folder too: the functions that work
    // it out anew add to what was given.
    bool giveTo(HANDLE file) const {
        const SECURITY_DESCRIPTOR_CONTROL inherited =
            control() & SE_DACL_AUTO_INHERITED ? SE_DACL_AUTO_INHERIT_REQ : 0;
        return SetSecurityDescriptorControl(descriptor_, SE_DACL_AUTO_INHERIT_REQ, inherited) &&
               SetKernelObjectSecurity(file, DACL_SECURITY_INFORMATION, descriptor_);
    }

private:
    SECURITY_DESCRIPTOR_CONTROL control() const {
        SECURITY_DESCRIPTOR_CONTROL bits = 0;
        DWORD revision = 0;
        return GetSecurityDescriptorControl(descriptor_, &bits, &revision) ? bits : 0;
    }

    PSECURITY_DESCRIPTOR descriptor_ = nullptr;
    ACL *list_ = nullptr; // within the descriptor
};

std::int64_t ticks(const FILETIME &time) {
    return static_cast<std::int64_t>(time.dwHighDateTime) << 32 | time.dwLowDateTime;
}

class WinFiles final : public FileStore {
public:
    Result map(const std::string &path, std::unique_ptr<MappedFile> &file, FileStamp &stamp) override {
        Handle handle(CreateFileA(path.c_str(), GENERIC_READ, FILE_SHARE_READ, nullptr, OPEN_EXISTING,
                                  FILE_ATTRIBUTE_NORMAL, nullptr));
        LARGE_INTEGER size{};
        FILETIME modified{};
        if (!handle.get()) {
            return Result::failure(reason("Cannot open", path));
        }
        const bool known =
            GetFileSizeEx(handle.get(), &size) && GetFileTime(handle.get(), nullptr, nullptr, &modified);
        auto mapping = std::make_unique<WinMapping>(std::move(handle), static_cast<std::size_t>(size.QuadPart));
        if (!known || !mapping->attach()) {
            return Result::failure(reason("Cannot map", path));
        }
        stamp = {static_cast<std::uint64_t>(size.QuadPart), ticks(modified)};
        file = std::move(mapping);
        return Result::success();
    }

    bool stat(const std::string &path, FileStamp &stamp) override {
        WIN32_FILE_ATTRIBUTE_DATA info{};
        if (!GetFileAttributesExA(path.c_str(), GetFileExInfoStandard, &info)) {
            return false;
        }
        stamp = {static_cast<std::uint64_t>(info.nFileSizeHigh) << 32 | info.nFileSizeLow,
                 ticks(info.ftLastWriteTime)};
        return true;
    }

    bool isWritable(const std::string &path) override {
        const DWORD attributes = GetFileAttributesA(path.c_str());
        return attributes != INVALID_FILE_ATTRIBUTES && !(attributes & FILE_ATTRIBUTE_READONLY);
    }

    Result createBeside(const std::string &target, std::unique_ptr<FileWriter> &writer) override {
        const Permissions permissions(target);
        for (int attempt = 0; attempt < 1000; ++attempt) {
            const std::string path =
                target + "." + std::to_string(GetCurrentProcessId()) + "-" + std::to_string(attempt) + ".tmp";
            Handle handle(CreateFileA(path.c_str(), GENERIC_WRITE | WRITE_DAC, 0, nullptr, CREATE_NEW,
                                      FILE_ATTRIBUTE_NORMAL, nullptr));
            if (handle.get()) {
                // Before anything is written; until the handle is closed nobody else can open the file.
                if (permissions.areOwn() && !permissions.giveTo(handle.get())) {
                    Result refused = Result::failure(reason("Cannot set the permissions of", path));
                    handle.close();
                    remove(path);
                    return refused;
                }
                writer = std::make_unique<WinWriter>(std::move(handle), path);
                return Result::success();
            }
            if (GetLastError() != ERROR_FILE_EXISTS && GetLastError() != ERROR_ALREADY_EXISTS) {
                return Result::failure(reason("Cannot create", path));
            }
        }
        return Result::failure("Cannot create a new file beside \"" + target + "\"");
    }

    // MoveFileEx and not ReplaceFile: the latter goes through states in which neither file has the name. What
    // it would do for the permissions, createBeside has done.
    Result replace(const std::string &from, const std::string &to) override {
        if (!MoveFileExA(from.c_str(), to.c_str(), MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH)) {
            return Result::failure(reason("Cannot replace", to));
        }
        return Result::success();
    }

    void remove(const std::string &path) override { DeleteFileA(path.c_str()); }
};

} // namespace

FileStore &systemFiles() {
    static WinFiles files;
    return files;
}

} // namespace dbf
