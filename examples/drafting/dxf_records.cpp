#include "dxf_records.h"

#include <array>
#include <cerrno>
#include <charconv>
#include <cmath>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <system_error>

#include "failure.h"

namespace draft {

namespace {

/// Beyond it neighbouring doubles lie a tenth of a thousandth apart, so that nothing of a
/// drawing's accuracy is left.
constexpr double kLargestNumber = 1e12;
constexpr int kLargestCode = 1071;
constexpr int kSmallestCode = -5;
constexpr int kComment = 999;

std::string_view trimmed(std::string_view text) {
    constexpr std::string_view kBlanks = " \t\r\n\v\f";
    const std::size_t from = text.find_first_not_of(kBlanks);
    if (from == std::string_view::npos) return {};
    return text.substr(from, text.find_last_not_of(kBlanks) - from + 1);
}

bool startsWith(std::string_view text, std::string_view head) {
    return text.substr(0, head.size()) == head;
}

/// A piece of a bad file that is fit for a message.
std::string quoted(std::string_view text) {
    constexpr std::size_t kLongest = 24;
    std::string out = "'";
    for (const char c : text.substr(0, kLongest))
        out += (c >= ' ' && c <= '~') ? c : '?';
    return out + (text.size() > kLongest ? "...'" : "'");
}

[[noreturn]] void fail(std::size_t line, const std::string &what) {
    throw Failure("line " + std::to_string(line) + ": " + what);
}

template <typename Number> bool parse(std::string_view text, Number &out) {
    if (startsWith(text, "+")) text.remove_prefix(1);
    const char *end = text.data() + text.size();
    const auto result = std::from_chars(text.data(), end, out);
    return result.ec == std::errc() && result.ptr == end;
}

bool holdsReal(int code) {
    return (code >= 10 && code <= 59) || (code >= 110 && code <= 149) ||
           (code >= 210 && code <= 239) || (code >= 460 && code <= 469);
}
bool holdsInteger(int code) {
    return (code >= 60 && code <= 79) || (code >= 90 && code <= 99) ||
           (code >= 170 && code <= 179) || (code >= 370 && code <= 389);
}

void checkNumber(const Group &group, std::size_t line) {
    if (holdsReal(group.code)) {
        double number = 0.0;
        if (!parse(group.value, number) || !std::isfinite(number))
            fail(line, quoted(group.value) + " is not a number");
        if (std::fabs(number) > kLargestNumber)
            fail(line, quoted(group.value) + " is too large for a drawing (the limit is 1e12)");
    } else if (holdsInteger(group.code)) {
        long long number = 0;
        if (!parse(group.value, number)) fail(line, quoted(group.value) + " is not a whole number");
    }
}

void refuseOtherFormats(std::string_view text) {
    constexpr std::string_view kBinarySentinel = "AutoCAD Binary DXF";
    constexpr std::size_t kSampled = 4096;
    if (text.empty()) throw Failure("the file is empty");
    if (startsWith(text, kBinarySentinel))
        throw Failure("this is a binary DXF; please save the drawing as a text (ASCII) DXF");
    if (startsWith(text, "AC10"))
        throw Failure("this is a DWG drawing; please save it as a text (ASCII) DXF");
    if (startsWith(text, "\xFF\xFE") || startsWith(text, "\xFE\xFF"))
        throw Failure("this is UTF-16 text; please save the drawing as ASCII or UTF-8 DXF");
    if (text.substr(0, kSampled).find('\0') != std::string_view::npos)
        throw Failure("this is not a text file, so no DXF that can be read here");
}

} // namespace

std::string_view Record::value(int code) const {
    for (const Group &group : groups)
        if (group.code == code) return group.value;
    return {};
}

int Record::integer(int code, int otherwise) const {
    int number = otherwise;
    return parse(value(code), number) ? number : otherwise;
}

double Record::real(int code, double otherwise) const {
    double number = otherwise;
    return parse(value(code), number) ? number : otherwise;
}

void checkNumbers(const Record &record) {
    std::size_t line = record.line + 1;
    for (const Group &group : record.groups)
        checkNumber(group, line += 2);
}

RecordScanner::RecordScanner(std::string_view text) : text_(text), rest_(text) {
    constexpr std::string_view kUtf8Mark = "\xEF\xBB\xBF";
    if (startsWith(rest_, kUtf8Mark)) rest_.remove_prefix(kUtf8Mark.size());
    do {
        pendingPlace_ = place();
        pending_ = readGroup();
    } while (pending_.code == kComment);
    if (pending_.code != 0 || pending_.value != "SECTION")
        fail(line_, "a DXF starts with a section, which is missing here");
    pendingLine_ = line_ - 1;
}

bool RecordScanner::readLine(std::string_view &out) {
    if (rest_.empty()) return false;
    const std::size_t end = rest_.find('\n');
    out = trimmed(rest_.substr(0, end));
    rest_ = end == std::string_view::npos ? std::string_view{} : rest_.substr(end + 1);
    ++line_;
    return true;
}

Group RecordScanner::readGroup() {
    std::string_view code;
    Group group{};
    const std::size_t from = place();
    if (!readLine(code)) fail(line_, "the file breaks off; its end (EOF) is missing");
    if (!parse(code, group.code) || group.code < kSmallestCode || group.code > kLargestCode)
        fail(line_, quoted(code) + " is no DXF group code; the file is no DXF or is damaged");
    if (!readLine(group.value)) fail(line_, "the file breaks off; its end (EOF) is missing");
    group.lines = text_.substr(from, place() - from);
    return group;
}

bool RecordScanner::next(Record &record) {
    if (ended_) return false;
    record.kind = pending_.value;
    record.head = pending_;
    record.line = pendingLine_;
    record.begin = pendingPlace_;
    record.groups.clear();
    ended_ = record.kind == "EOF";
    while (!ended_) {
        const std::size_t at = place();
        const Group group = readGroup();
        if (group.code == 0) {
            pending_ = group;
            pendingLine_ = line_ - 1;
            pendingPlace_ = at;
            break;
        }
        record.groups.push_back(group);
    }
    record.end = ended_ ? text_.size() : pendingPlace_;
    return true;
}

std::string loadText(const std::string &path) {
    std::error_code ignored;
    if (std::filesystem::is_directory(path, ignored)) throw Failure("this is a directory");
    std::ifstream in(path, std::ios::binary);
    if (!in) throw Failure(std::strerror(errno));
    std::string loaded;
    const auto size = std::filesystem::file_size(path, ignored); // a guess: a pipe has none
    if (!ignored) loaded.reserve(size);
    std::array<char, 1 << 16> buffer{};
    while (in.read(buffer.data(), buffer.size()) || in.gcount() > 0)
        loaded.append(buffer.data(), static_cast<std::size_t>(in.gcount()));
    if (in.bad()) throw Failure("the file cannot be read");
    refuseOtherFormats(loaded);
    return loaded;
}

} // namespace draft
