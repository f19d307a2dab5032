// The records that dxflib shall see, as the stream that it reads from.
#pragma once

#include <exception>
#include <map>
#include <streambuf>
#include <string>
#include <string_view>
#include <vector>

#include "drawing.h"
#include "dxf_records.h"
#include "progress.h"

namespace draft {

/// Blocks are known by their name in capitals; the drawing itself by the empty name.
using TallyByBlock = std::map<std::string, Tally>;

std::string blockKey(std::string_view name);

/// What an entity was read from.
struct Source {
    enum class Kind {
        entity,   ///< one record of this entity alone
        polyline, ///< records of several entities
        insert    ///< of all entities of a block
    };

    Kind kind;
    std::size_t begin, end; ///< places in the text
};

/// Passes on the entities and blocks that the program understands, counts the others and
/// repairs what dxflib takes on trust: the number of vertices, the order of bulges, the length
/// of lines. An entity of the drawing itself carries the place of its source as its handle. A
/// failure ends the stream; whoever has read it asks for it by rethrow().
class RecordFeed : public std::streambuf {
  public:
    RecordFeed(std::string_view text, TallyByBlock &leftOut, std::vector<Source> &sources);

    bool sawEntities() const { return sawEntities_; }
    void rethrow() const;

  protected:
    int_type underflow() override;

  private:
    void take(const Record &record);
    void takeSection(const Record &record);
    void takeBlock(const Record &record);
    void takeEntity(const Record &record);
    void takeVertex(const Record &record);
    /// Why an entity is not understood, as its name in the tally; empty when it is.
    std::string reasonToLeaveOut(const Record &record) const;
    void feed(const Record &record);
    void feedGroups(const Record &record);
    void feedEntity(const Record &record);
    void feedVertices(const Record &record);
    void leaveOut(const std::string &kind) { ++leftOut_[block_][kind]; }

    enum class Section { other, tables, blocks, entities };
    enum class Holder { none, block, drawing };
    enum class Polyline { none, fed, leftOut };

    RecordScanner scanner_;
    TallyByBlock &leftOut_;
    std::vector<Source> &sources_;
    Section section_ = Section::other;
    Holder holder_ = Holder::none; ///< of the entities that follow
    Polyline polyline_ = Polyline::none;
    bool sawEntities_ = false;
    std::string block_;
    Record record_;
    std::string chunk_;
    Progress progress_;
    std::exception_ptr failure_; ///< dxflib would leak memory if it were thrown through it
};

} // namespace draft
