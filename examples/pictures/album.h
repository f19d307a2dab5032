// The pictures by name, and the check that each exported function drew its own.
#pragma once

#include <map>
#include <string>
#include <vector>

#include "picture.h"

/// A function's name and address, which cannot go apart.
#define PICTURES_NAMED(function) #function, function

namespace pictures {

/// The function of a picture: counts its calls.
template <class Result, class... Arguments> class Call {
  public:
    using Function = Result(PLANEGEO_CALL *)(Arguments...);

    explicit Call(Function function) : function_(function) {}
    Result operator()(Arguments... arguments) {
        ++count_;
        return function_(arguments...);
    }
    int count() const { return count_; }
    /// For the functions that are handed to another one, which then calls them.
    Function handedOn() {
        ++count_;
        return function_;
    }

  private:
    Function function_;
    int count_ = 0;
};

class Album {
  public:
    /// `draw(Picture &, Call &)` draws the picture of the function.
    template <class Result, class... Arguments, class Draw>
    void add(const char *name, Result(PLANEGEO_CALL *function)(Arguments...), Draw draw) {
        Picture picture;
        Call<Result, Arguments...> call(function);
        draw(picture, call);
        store(name, picture, call.count());
    }

    /// Writes NAME.svg for each; false, having said why, where a name of the list has no picture,
    /// a picture no name, or its function was not called.
    bool write(const std::string &folder, const std::string &exportList) const;

  private:
    void store(const std::string &name, const Picture &picture, int calls);

    std::map<std::string, std::string> pictures_;
    std::vector<std::string> faults_;
};

void drawSettings(Album &album);
void drawAngles(Album &album);
void drawPoints(Album &album);
void drawLines(Album &album);
void drawLineCircle(Album &album);
void drawCircleCircle(Album &album);
void drawArcs(Album &album);
void drawCircleTangents(Album &album);
void drawSolvers(Album &album);
void drawEllipses(Album &album);
void drawEllipseQueries(Album &album);
void drawMeasure(Album &album);
void drawChains(Album &album);
void drawDivision(Album &album);
void drawExtents(Album &album);
void drawLineEllipse(Album &album);
void drawConics(Album &album);
void drawFeet(Album &album);
void drawEllipseTangents(Album &album);
void drawEllipseDistance(Album &album);

} // namespace pictures
