#include "record_feed.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <charconv>
#include <cmath>

namespace draft {

namespace {

/// dxflib stops reading for good at a line of 1024 characters; names are cut before.
constexpr std::size_t kLongestValue = 1000;
/// A normal this close to the z axis counts as along it.
constexpr double kTiltSlack = 1e-6;

constexpr int kHandle = 5;
constexpr int kColor = 62;
constexpr int kPolylineFlags = 70;
constexpr int kMeshFlags = 16 | 64;  ///< a polyline that is a surface
constexpr int kFrameVertexFlag = 16; ///< a vertex of the frame of a spline, not of its curve

constexpr std::array<std::string_view, 9> kUnderstood = {
    "LINE", "CIRCLE", "ARC", "ELLIPSE", "LWPOLYLINE", "POLYLINE", "INSERT", "VERTEX", "SEQEND"};

bool isUnderstood(std::string_view kind) {
    return std::find(kUnderstood.begin(), kUnderstood.end(), kind) != kUnderstood.end();
}

/// The codes from which dxflib makes the entities above; names, numbers and the normal.
bool isFed(int code) {
    constexpr int kLinetypeScale = 48;
    return code == 2 || code == 8 || (code >= 10 && code <= 59 && code != kLinetypeScale) ||
           (code >= 70 && code <= 79) || (code >= 210 && code <= 230);
}

/// A height of zero is what dxflib takes a missing one for, and in most drawings all are zero.
bool isMissed(const Group &group) {
    return group.code < 30 || group.code >= 40 ||
           group.value.find_first_not_of("+-.0") != std::string_view::npos;
}

bool isTilted(const Record &record) {
    const double x = record.real(210, 0.0);
    const double y = record.real(220, 0.0);
    const double z = record.real(230, 1.0);
    return std::hypot(x, y) > kTiltSlack * std::fabs(z);
}

void append(std::string &out, int code, std::string_view value) {
    out += std::to_string(code);
    out += '\n';
    out += value.substr(0, kLongestValue);
    out += '\n';
}

std::string hexadecimal(std::size_t number) {
    std::array<char, 2 * sizeof(number)> digits{};
    const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), number, 16);
    return {digits.data(), end.ptr};
}

} // namespace

std::string blockKey(std::string_view name) {
    std::string key(name.substr(0, kLongestValue));
    std::transform(key.begin(), key.end(), key.begin(), [](char c) {
        return static_cast<char>(std::toupper(static_cast<unsigned char>(c)));
    });
    return key;
}

RecordFeed::RecordFeed(std::string_view text, TallyByBlock &leftOut, std::vector<Source> &sources)
    : scanner_(text), leftOut_(leftOut), sources_(sources), progress_("reading", text.size()) {}

RecordFeed::int_type RecordFeed::underflow() {
    chunk_.clear();
    try {
        while (chunk_.empty() && scanner_.next(record_)) {
            take(record_);
            progress_.add(record_.end - record_.begin);
        }
    } catch (...) {
        failure_ = std::current_exception();
        chunk_.clear();
    }
    if (chunk_.empty()) return traits_type::eof();
    setg(chunk_.data(), chunk_.data(), chunk_.data() + chunk_.size());
    return traits_type::to_int_type(*gptr());
}

void RecordFeed::rethrow() const {
    if (failure_) std::rethrow_exception(failure_);
}

void RecordFeed::take(const Record &record) {
    const bool isBlock = record.kind == "BLOCK" || record.kind == "ENDBLK";
    if (record.kind == "EOF") {
        feed(record);
    } else if (record.kind == "SECTION" || record.kind == "ENDSEC") {
        takeSection(record);
    } else if (section_ == Section::tables) {
        if (record.kind == "LAYER") feed(record);
    } else if (section_ == Section::blocks && isBlock) {
        takeBlock(record);
    } else if (section_ != Section::other) {
        takeEntity(record);
    }
}

void RecordFeed::takeSection(const Record &record) {
    const std::string_view name = record.kind == "SECTION" ? record.value(2) : "";
    section_ = name == "TABLES"     ? Section::tables
               : name == "BLOCKS"   ? Section::blocks
               : name == "ENTITIES" ? Section::entities
                                    : Section::other;
    holder_ = section_ == Section::entities ? Holder::drawing : Holder::none;
    sawEntities_ = sawEntities_ || section_ == Section::entities;
    polyline_ = Polyline::none;
    block_.clear();
}

void RecordFeed::takeBlock(const Record &record) {
    polyline_ = Polyline::none;
    checkNumbers(record);
    const bool wasOpen = holder_ == Holder::block;
    block_ = record.kind == "BLOCK" ? blockKey(record.value(2)) : "";
    // dxflib ignores a block without a name and would take its contents for the drawing's.
    holder_ = block_.empty() ? Holder::none : Holder::block;
    if (wasOpen || holder_ == Holder::block) feed(record);
}

void RecordFeed::takeEntity(const Record &record) {
    if (holder_ == Holder::none) return leaveOut(std::string(record.kind) + " in no named block");
    if (record.kind == "VERTEX" || record.kind == "SEQEND") return takeVertex(record);
    if (isUnderstood(record.kind)) checkNumbers(record);
    const bool isPolyline = record.kind == "POLYLINE";
    polyline_ = Polyline::none;
    const std::string reason = reasonToLeaveOut(record);
    if (!reason.empty()) {
        leaveOut(reason);
        if (isPolyline) polyline_ = Polyline::leftOut;
        return;
    }
    if (isPolyline) polyline_ = Polyline::fed;
    feedEntity(record);
}

void RecordFeed::takeVertex(const Record &record) {
    checkNumbers(record);
    const bool ends = record.kind == "SEQEND";
    const bool isCurve = (record.integer(kPolylineFlags, 0) & kFrameVertexFlag) == 0;
    if (polyline_ == Polyline::fed) {
        if (isCurve) feed(record);
        if (holder_ == Holder::drawing) sources_.back().end = record.end;
    }
    if (polyline_ == Polyline::none && !ends) leaveOut("VERTEX without a polyline");
    if (ends) polyline_ = Polyline::none;
}

std::string RecordFeed::reasonToLeaveOut(const Record &record) const {
    std::string kind(record.kind);
    if (!isUnderstood(record.kind)) return kind;
    if (record.integer(67, 0) == 1) return kind + " in paper space";
    if (record.integer(60, 0) == 1) return kind + " (invisible)";
    if (kind == "POLYLINE" && (record.integer(kPolylineFlags, 0) & kMeshFlags) != 0)
        return kind + " (mesh)";
    if (kind == "INSERT" && record.value(2).empty()) return kind + " without a name";
    if (kind != "LINE" && isTilted(record)) return kind + " in a tilted plane";
    return {};
}

void RecordFeed::feed(const Record &record) {
    append(chunk_, 0, record.kind);
    feedGroups(record);
}

void RecordFeed::feedGroups(const Record &record) {
    const bool hasColor = record.kind == "LAYER";
    for (const Group &group : record.groups) {
        const bool isColor = hasColor && group.code == kColor;
        if (isColor || (isFed(group.code) && isMissed(group)))
            append(chunk_, group.code, group.value);
    }
}

void RecordFeed::feedEntity(const Record &record) {
    const bool isLight = record.kind == "LWPOLYLINE";
    append(chunk_, 0, record.kind);
    if (holder_ == Holder::drawing) {
        const auto kind = isLight || record.kind == "POLYLINE" ? Source::Kind::polyline
                          : record.kind == "INSERT"            ? Source::Kind::insert
                                                               : Source::Kind::entity;
        append(chunk_, kHandle, hexadecimal(sources_.size()));
        sources_.push_back({kind, record.begin, record.end});
    }
    isLight ? feedVertices(record) : feedGroups(record);
}

void RecordFeed::feedVertices(const Record &record) {
    const auto isVertex = [](const Group &group) { return group.code == 10; };
    const auto vertices = std::count_if(record.groups.begin(), record.groups.end(), isVertex);
    append(chunk_, 90, std::to_string(vertices));
    bool inVertex = false;
    for (const Group &group : record.groups) {
        inVertex = inVertex || isVertex(group);
        const bool belongsToVertex = group.code >= 20 && group.code <= 42;
        if (isFed(group.code) && (inVertex || !belongsToVertex))
            append(chunk_, group.code, group.value);
    }
}

} // namespace draft
