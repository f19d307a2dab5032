#include "output_file.h"

#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <system_error>

#include <sys/stat.h>
#include <unistd.h>

#include "failure.h"

namespace draft {

namespace {

namespace fs = std::filesystem;

[[noreturn]] void fail(const std::string &path, const std::string &why) {
    throw Failure(path + ": cannot be written: " + why);
}

void writeTo(const std::string &place, const std::string &content, const std::string &path) {
    std::ofstream out(place, std::ios::binary | std::ios::trunc);
    if (out) out << content;
    out.close();
    if (!out) fail(path, std::strerror(errno));
}

/// What a new file may be, by the wish of whoever runs the program.
fs::perms usualPermissions() {
    constexpr mode_t kReadAndWrite = 0666;
    const mode_t mask = umask(0);
    umask(mask);
    return static_cast<fs::perms>(kReadAndWrite & ~mask);
}

/// A file of a new name beside the target, gone unless it takes the target's place.
class PartialFile {
  public:
    explicit PartialFile(const std::string &target) : name_(target + ".XXXXXX") {
        const int descriptor = mkstemp(name_.data());
        if (descriptor < 0) fail(target, std::strerror(errno));
        close(descriptor);
    }
    ~PartialFile() {
        std::error_code ignored;
        if (!name_.empty()) fs::remove(name_, ignored);
    }
    PartialFile(const PartialFile &) = delete;
    PartialFile &operator=(const PartialFile &) = delete;

    const std::string &name() const { return name_; }

    void replace(const std::string &target, fs::perms permissions) {
        std::error_code error;
        fs::permissions(name_, permissions, error);
        fs::rename(name_, target, error);
        if (error) fail(target, error.message());
        name_.clear();
    }

  private:
    std::string name_;
};

} // namespace

void writeFile(const std::string &path, const std::string &content) {
    std::error_code error;
    const fs::file_status status = fs::status(path, error);
    const bool exists = fs::exists(status);
    if (fs::is_directory(status)) fail(path, "it is a directory");
    if (exists && access(path.c_str(), W_OK) != 0) fail(path, std::strerror(errno));
    // A device or a pipe cannot be replaced by a file.
    if (exists && !fs::is_regular_file(status)) return writeTo(path, content, path);
    // What a link points at is written, and the link stays.
    const std::string target = exists ? fs::canonical(path, error).string() : path;
    PartialFile partial(target);
    writeTo(partial.name(), content, path);
    partial.replace(target, exists ? status.permissions() : usualPermissions());
}

} // namespace draft
