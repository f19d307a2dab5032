#include "dxf_edit.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>

#include "dxf_records.h"

namespace draft {

namespace {

constexpr double kRadPerDeg = 0.017453292519943295;
constexpr double kFullTurnDeg = 360.0;
constexpr double kHalfTurnDeg = 180.0;

constexpr int kHandle = 5;
constexpr int kTableHandle = 105;
constexpr int kVariable = 9;
constexpr int kSubclass = 100;
constexpr int kBelongings = 102; ///< a bracket around handles of what belongs to an entity
constexpr int kFirstExtended = 1000;
constexpr const char *kHandleSeed = "$HANDSEED";

std::string textOf(double number) {
    std::array<char, 40> digits{};
    const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), number);
    std::string text(digits.data(), end.ptr);
    if (text.find_first_of(".e") == std::string::npos) text += ".0";
    return text;
}

/// In [0, 360).
double reduced(double deg) {
    const double rest = std::fmod(deg, kFullTurnDeg);
    return rest < 0.0 ? rest + kFullTurnDeg : rest;
}

using Values = std::vector<std::pair<int, double>>;

/// The heights at the ends of a part of a line that rises.
Values heightsOf(const DTLINE &part, const Record &record) {
    const double x1 = record.real(10, 0.0);
    const double y1 = record.real(20, 0.0);
    const double z1 = record.real(30, 0.0);
    const double dx = record.real(11, 0.0) - x1;
    const double dy = record.real(21, 0.0) - y1;
    const double dz = record.real(31, 0.0) - z1;
    const double squared = dx * dx + dy * dy;
    if (dz == 0.0 || squared == 0.0) return {};
    const auto heightAt = [&](double x, double y) {
        const double t = ((x - x1) * dx + (y - y1) * dy) / squared;
        return t == 1.0 ? z1 + dz : z1 + t * dz;
    };
    return {{30, heightAt(part.x1, part.y1)}, {31, heightAt(part.x2, part.y2)}};
}

/// The groups that tell a shape which takes the place of a record's own.
Values geometryOf(const DTLINE &line, const Record &record) {
    Values values = {{10, line.x1}, {20, line.y1}, {11, line.x2}, {21, line.y2}};
    const Values heights = heightsOf(line, record);
    values.insert(values.end(), heights.begin(), heights.end());
    return values;
}

bool isSeenFromBehind(const Record &record) { return record.real(230, 1.0) < 0.0; }

Values geometryOf(const DTARC &arc, const Record &record) {
    const bool fromBehind = isSeenFromBehind(record);
    const double start = fromBehind ? kHalfTurnDeg - arc.end : arc.start;
    const double end = fromBehind ? kHalfTurnDeg - arc.start : arc.end;
    return {{50, reduced(start)}, {51, reduced(end)}};
}
Values geometryOf(const DTELLIPSE &e, const Record &record) {
    const bool fromBehind = isSeenFromBehind(record);
    const double start = fromBehind ? -e.end : e.start;
    const double end = fromBehind ? -e.start : e.end;
    return {{41, reduced(start) * kRadPerDeg}, {42, reduced(end) * kRadPerDeg}};
}

/// One record as text. What does not change keeps its blanks and line ends.
class RecordText {
  public:
    explicit RecordText(const Record &record) : record_(record) {}

    /// The record with another shape in place of its own.
    std::string with(const Shape &shape) { return with(shape, true, ""); }
    /// The same as a further entity, with a handle unless it is empty, and without what belongs
    /// to one entity alone.
    std::string further(const Shape &shape, const std::string &handle) {
        return with(shape, false, handle);
    }

  private:
    std::string with(const Shape &shape, bool isOwn, const std::string &handle) {
        missing_ = std::visit([&](const auto &s) { return geometryOf(s, record_); }, shape);
        const bool isOpened = record_.kind == "CIRCLE";
        addChanged(record_.head, isOpened ? "ARC" : record_.kind);
        bool isInExtended = false;
        bool isInBelongings = false;
        for (const Group &group : record_.groups) {
            if (!isInExtended && group.code >= kFirstExtended) {
                addMissing(isOpened);
                isInExtended = true;
            }
            const bool isBracket = group.code == kBelongings;
            if (isBracket) isInBelongings = group.value.substr(0, 1) == "{";
            if (isOwn || !(isBracket || isInBelongings)) addGroup(group, handle);
        }
        if (!isInExtended) addMissing(isOpened);
        return text_;
    }

    void addChanged(const Group &group, std::string_view value) {
        const auto from = static_cast<std::size_t>(group.value.data() - group.lines.data());
        text_ += group.lines.substr(0, from);
        text_ += value;
        text_ += group.lines.substr(from + group.value.size());
    }

    void addGroup(const Group &group, const std::string &handle) {
        const auto isThis = [&](const auto &told) { return told.first == group.code; };
        const auto told = std::find_if(missing_.begin(), missing_.end(), isThis);
        if (told != missing_.end()) {
            const bool isSame = record_.real(group.code, 0.0) == told->second;
            addChanged(group, isSame ? std::string(group.value) : textOf(told->second));
            missing_.erase(told);
        } else if (group.code == kHandle && !handle.empty()) {
            addChanged(group, handle);
        } else {
            text_ += group.lines;
        }
    }

    /// In the manner of the record's first group: its code line, but for the code.
    void addNew(int code, std::string_view value) {
        const std::string_view like = record_.head.lines;
        const std::size_t zero = like.find('0');
        const std::string digits = std::to_string(code);
        const std::size_t blanks = zero + 1 > digits.size() ? zero + 1 - digits.size() : 0;
        const auto valueAt = static_cast<std::size_t>(record_.head.value.data() - like.data());
        const std::string_view lineEnd = like.substr(valueAt + record_.head.value.size());
        text_ += std::string(blanks, ' ') + digits;
        text_ += lineEnd;
        text_ += value;
        text_ += lineEnd;
    }

    /// What the record has had no group for, as a circle has none for a range.
    void addMissing(bool isOpened) {
        if (isOpened && !record_.value(kSubclass).empty()) addNew(kSubclass, "AcDbArc");
        for (const auto &[code, number] : missing_)
            addNew(code, textOf(number));
        missing_.clear();
    }

    const Record &record_;
    Values missing_;
    std::string text_;
};

/// New handles lie above every one of the file, and above the seed that tells so.
class Handles {
  public:
    explicit Handles(std::string_view text) {
        RecordScanner scanner(text);
        for (Record record; scanner.next(record);) {
            std::string_view variable;
            for (const Group &group : record.groups) {
                if (group.code == kVariable) variable = group.value;
                if (group.code != kHandle && group.code != kTableHandle) continue;
                const bool isSeed = variable == kHandleSeed;
                if (isSeed) seed_ = group.value;
                see(group.value, isSeed ? 0 : 1);
            }
        }
    }

    std::string take() {
        isTaken_ = true;
        return textOf(next_++);
    }

    /// Writes the seed anew where it is told and has moved.
    void updateSeed(std::string_view text, std::string &changed) const {
        if (!isTaken_ || seed_.empty()) return;
        // It stands in the header, before every change.
        const auto place = static_cast<std::size_t>(seed_.data() - text.data());
        changed.replace(place, seed_.size(), textOf(next_));
    }

  private:
    void see(std::string_view digits, unsigned above) {
        unsigned long long handle = 0;
        std::from_chars(digits.data(), digits.data() + digits.size(), handle, 16);
        next_ = std::max(next_, handle + above);
    }

    static std::string textOf(unsigned long long handle) {
        std::array<char, 2 * sizeof(handle)> digits{};
        const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), handle, 16);
        std::string text(digits.data(), end.ptr);
        std::transform(text.begin(), text.end(), text.begin(),
                       [](char c) { return c >= 'a' ? static_cast<char>(c - 'a' + 'A') : c; });
        return text;
    }

    unsigned long long next_ = 1;
    std::string_view seed_; ///< its value in the text
    bool isTaken_ = false;
};

} // namespace

std::string edited(const DxfFile &file, const Replacements &replacements) {
    const std::string_view text = file.text;
    std::map<std::size_t, const std::vector<Shape> *> byPlace;
    for (const auto &[source, shapes] : replacements)
        byPlace[file.sources[source].begin] = &shapes;

    Handles handles(text);
    std::string changed;
    std::size_t done = 0;
    RecordScanner scanner(text);
    for (Record record; scanner.next(record);) {
        const auto found = byPlace.find(record.begin);
        if (found == byPlace.end()) continue;
        changed += text.substr(done, record.begin - done);
        done = record.end;
        const std::vector<Shape> &shapes = *found->second;
        changed += RecordText(record).with(shapes.front());
        const bool hasHandle = !record.value(kHandle).empty();
        for (std::size_t i = 1; i < shapes.size(); ++i)
            changed += RecordText(record).further(shapes[i], hasHandle ? handles.take() : "");
    }
    changed += text.substr(done);
    handles.updateSeed(text, changed);
    return changed;
}

} // namespace draft
