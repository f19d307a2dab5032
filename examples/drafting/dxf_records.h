// A DXF text taken apart into its records, and everything refused that no reader could trust:
// other formats, broken pairs, numbers that are none, a missing end.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace draft {

/// One pair of lines: a code that tells the meaning, and a value.
struct Group {
    int code;
    std::string_view value; ///< without surrounding blanks
    std::string_view lines; ///< both lines as they stand, with their ends
};

/// What stands from one group with code 0 up to the next.
struct Record {
    std::string_view kind;     ///< LINE, SECTION, ...
    Group head{};              ///< the first group
    std::vector<Group> groups; ///< without the first
    std::size_t line = 0;      ///< where the first group stands in the text, counted from 1
    std::size_t begin = 0;     ///< the same as a place in the text
    std::size_t end = 0;       ///< where the next record begins

    /// The value of the first group with a code; empty when there is none.
    std::string_view value(int code) const;
    int integer(int code, int otherwise) const;
    double real(int code, double otherwise) const;
};

/// Throws Failure, with the line, where a record holds a number that is none or that is too
/// large for a drawing.
void checkNumbers(const Record &record);

/// Steps through the records of a text, which must outlive it. Throws Failure with the line.
class RecordScanner {
  public:
    explicit RecordScanner(std::string_view text);

    /// The next record up to EOF, which is the last; false after it.
    bool next(Record &record);

  private:
    bool readLine(std::string_view &out);
    Group readGroup();

    std::size_t place() const { return text_.size() - rest_.size(); }

    std::string_view text_, rest_;
    std::size_t line_ = 0; ///< of the line read last
    Group pending_{};
    std::size_t pendingLine_ = 0;
    std::size_t pendingPlace_ = 0;
    bool ended_ = false;
};

/// The text of a drawing file. Throws Failure when it cannot be read or is of another format.
std::string loadText(const std::string &path);

} // namespace draft
