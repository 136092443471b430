// A folder of files for one test, which goes with it.
#pragma once

#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>
#include <string>

class TempFiles {
public:
    explicit TempFiles(const std::string &name) {
        // Tests run side by side, as processes that are otherwise alike.
        std::random_device random;
        m_folder = std::filesystem::temp_directory_path() /
                   ("orvane_" + name + "_" + std::to_string(random()) + "_" + std::to_string(random()));
        std::filesystem::create_directories(m_folder);
    }
    ~TempFiles() {
        std::error_code ignored;
        std::filesystem::remove_all(m_folder, ignored);
    }

    std::string Path(const std::string &name) const { return (m_folder / name).string(); }
    std::string Make(const std::string &name, const std::string &bytes) const {
        std::ofstream(Path(name), std::ios::binary) << bytes;
        return Path(name);
    }
    static std::string Read(const std::string &path) {
        std::ifstream file(path, std::ios::binary);
        return std::string(std::istreambuf_iterator<char>(file), {});
    }
    static bool Exists(const std::string &path) { return std::filesystem::exists(path); }
    // Moves the file's time by some seconds.
    static void Age(const std::string &path, int seconds) {
        std::filesystem::last_write_time(path,
                                         std::filesystem::last_write_time(path) + std::chrono::seconds(seconds));
    }

private:
    std::filesystem::path m_folder;
};
