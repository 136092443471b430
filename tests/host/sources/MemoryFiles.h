// A file system in memory whose operations can be made to fail, one at a time.
#pragma once

#include "dbf/FileStore.h"

#include <map>
#include <set>
#include <string>

class MemoryFiles final : public dbf::FileStore {
public:
    std::map<std::string, std::string> files;
    std::set<std::string> readOnly;

    // The operation of this number, counted from 1 since the last call, fails; 0: none does. With `lasting`
    // all later ones fail too.
    void failAt(int operation, bool lasting = false) {
        failAt_ = operation;
        lasting_ = lasting;
        done_ = 0;
        failed_ = false;
    }
    bool hasFailed() const { return failed_; }
    int mapped() const { return mapped_; }
    // Makes a file look as if somebody else had written it.
    void touch(const std::string &path) { times_[path] = ++clock_; }

    dbf::Result map(const std::string &path, std::unique_ptr<dbf::MappedFile> &file,
                    dbf::FileStamp &stamp) override {
        if (fails() || !files.count(path)) {
            return dbf::Result::failure("Cannot open \"" + path + "\"");
        }
        file = std::make_unique<Mapping>(*this, path, files[path]);
        stat(path, stamp);
        return dbf::Result::success();
    }
    bool stat(const std::string &path, dbf::FileStamp &stamp) override {
        const auto found = files.find(path);
        if (found == files.end()) {
            return false;
        }
        stamp = {found->second.size(), times_[path]};
        return true;
    }
    bool isWritable(const std::string &path) override { return !readOnly.count(path); }
    dbf::Result createBeside(const std::string &target, std::unique_ptr<dbf::FileWriter> &writer) override {
        if (fails()) {
            return dbf::Result::failure("Cannot create");
        }
        const std::string path = target + ".tmp" + std::to_string(++created_);
        files[path];
        writer = std::make_unique<Writer>(*this, path);
        return dbf::Result::success();
    }
    dbf::Result replace(const std::string &from, const std::string &to) override {
        if (fails() || !files.count(from) || mappings_.count(from) || mappings_.count(to)) {
            return dbf::Result::failure("Cannot replace \"" + to + "\"");
        }
        files[to] = std::move(files[from]);
        files.erase(from);
        times_[to] = ++clock_;
        return dbf::Result::success();
    }
    void remove(const std::string &path) override { files.erase(path); }

private:
    class Mapping final : public dbf::MappedFile {
    public:
        Mapping(MemoryFiles &owner, std::string path, std::string bytes)
            : owner_(owner), path_(std::move(path)), bytes_(std::move(bytes)) {
            owner_.mappings_.insert(path_);
            ++owner_.mapped_;
        }
        ~Mapping() override {
            owner_.mappings_.erase(owner_.mappings_.find(path_));
            --owner_.mapped_;
        }
        dbf::Bytes bytes() const override {
            return {reinterpret_cast<const std::uint8_t *>(bytes_.data()), bytes_.size()};
        }

    private:
        MemoryFiles &owner_;
        std::string path_;
        std::string bytes_;
    };

    class Writer final : public dbf::FileWriter {
    public:
        Writer(MemoryFiles &owner, std::string path) : owner_(owner), path_(std::move(path)) {}
        dbf::Result write(dbf::Bytes bytes) override {
            if (owner_.fails()) {
                return dbf::Result::failure("Cannot write");
            }
            owner_.files[path_].append(reinterpret_cast<const char *>(bytes.data()), bytes.size());
            return dbf::Result::success();
        }
        dbf::Result flush() override {
            return owner_.fails() ? dbf::Result::failure("Cannot flush") : dbf::Result::success();
        }
        const std::string &path() const override { return path_; }

    private:
        MemoryFiles &owner_;
        std::string path_;
    };

    bool fails() {
        if (failAt_ == 0) {
            return false;
        }
        ++done_;
        const bool now = lasting_ ? done_ >= failAt_ : done_ == failAt_;
        failed_ = failed_ || now;
        return now;
    }

    std::map<std::string, std::int64_t> times_;
    std::multiset<std::string> mappings_;
    std::int64_t clock_ = 0;
    int created_ = 0;
    int mapped_ = 0;
    int failAt_ = 0;
    int done_ = 0;
    bool lasting_ = false;
    bool failed_ = false;
};
