/// Calls of exported functions with arguments made from bytes.
#pragma once

#include <array>
#include <chrono>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <tuple>
#include <type_traits>
#include <utility>
#include <vector>

#include "arena.h"
#include "bytes.h"
#include "planegeo.h"

namespace fuzz {

/// A result of any kind, and what the call took of the processor.
struct Outcome {
    std::int64_t code = 0;
    std::array<double, 2> value = {};
    std::chrono::nanoseconds time = {};
};

inline std::chrono::nanoseconds processorTime() {
    timespec now = {};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &now);
    return std::chrono::nanoseconds(now.tv_sec * 1'000'000'000 + now.tv_nsec);
}

/// What one argument points at.
struct Piece {
    enum class Kind { number, point, line, arc, ellipse, word };
    Kind kind;
    bool isInput;
    std::size_t count;
    std::size_t size; ///< bytes of all elements
    unsigned char *at;
};

/// Where one thread makes its calls.
struct Frame {
    static constexpr std::size_t kMostPieces = 20;
    Arena arena;
    std::array<Piece, kMostPieces> pieces = {}; ///< by argument
    std::size_t arguments = 0;
    std::vector<unsigned char> before;
    std::vector<unsigned char> after;
    bool tells = false; ///< prints every call before it is made
};

/// One exported function: its name, how to call it, and what its signature does not tell. A
/// `const double *` holds two numbers and every other pointer one element, unless told otherwise.
class Entry {
  public:
    using Invoke = Outcome (*)(const Entry &, Bytes &, Frame &);

    Entry(const char *name, Invoke invoke) : name_(name), invoke_(invoke) {}

    /// An argument points at `count` elements.
    Entry room(std::size_t argument, std::size_t count) const {
        return with(&Entry::rooms_, Room{argument, kFixed, 0, count, 0});
    }
    /// An argument points at times * n + plus elements, n being the value of the argument `by`, or
    /// 0 where that lies outside [1, most].
    Entry roomBy(std::size_t argument, std::size_t by, std::size_t times, std::size_t plus,
                 std::int64_t most) const {
        return with(&Entry::rooms_, Room{argument, by, times, plus, most});
    }
    /// The documented results. Without a list every result will do.
    template <class... Codes> Entry codes(Codes... codes) const {
        Entry changed = *this;
        changed.codes_ = {codes...};
        return changed;
    }
    /// The documented values of the count or side that is written.
    template <class... Words> Entry writes(Words... words) const {
        Entry changed = *this;
        changed.words_ = {words...};
        return changed;
    }
    Entry nullable(std::size_t argument) const {
        Entry changed = *this;
        changed.nullable_ |= 1u << argument;
        return changed;
    }
    /// An output must be storage of its own.
    Entry separate() const {
        Entry changed = *this;
        changed.isSeparate_ = true;
        return changed;
    }
    /// Calls change what others see: not for several threads at once, and not for shared storage.
    Entry alone() const {
        Entry changed = separate();
        changed.isAlone_ = true;
        return changed;
    }

    const char *name() const { return name_; }
    bool isAlone() const { return isAlone_; }
    bool isSeparate() const { return isSeparate_; }
    bool isNullable(std::size_t argument) const { return (nullable_ >> argument & 1u) != 0; }
    const std::vector<std::int64_t> &codes() const { return codes_; }
    const std::vector<std::int64_t> &words() const { return words_; }

    template <std::size_t N>
    std::size_t roomOf(std::size_t argument, std::size_t usual,
                       const std::array<std::int64_t, N> &scalars) const {
        for (const Room &room : rooms_) {
            if (room.argument != argument) continue;
            if (room.by == kFixed) return room.plus;
            const std::int64_t n = scalars.at(room.by);
            return (n >= 1 && n <= room.most ? static_cast<std::size_t>(n) : 0) * room.times +
                   room.plus;
        }
        return usual;
    }

    Outcome call(Bytes &in, Frame &frame) const { return invoke_(*this, in, frame); }

  private:
    static constexpr std::size_t kFixed = ~std::size_t{0};
    struct Room {
        std::size_t argument, by, times, plus;
        std::int64_t most;
    };

    template <class List, class Item> Entry with(List Entry::*list, Item item) const {
        Entry changed = *this;
        (changed.*list).push_back(item);
        return changed;
    }

    const char *name_;
    Invoke invoke_;
    std::vector<Room> rooms_ = {};
    std::vector<std::int64_t> codes_ = {};
    std::vector<std::int64_t> words_ = {};
    unsigned nullable_ = 0;
    bool isSeparate_ = false;
    bool isAlone_ = false;
};

/// One per exported name, in the order of the header.
extern const std::vector<Entry> kEntries;

// Reading of arguments.

inline void read(Bytes &in, double &x) { x = in.number(); }
inline void read(Bytes &in, std::int16_t &n) { n = static_cast<std::int16_t>(in.integer()); }
inline void read(Bytes &in, std::uint16_t &n) { n = static_cast<std::uint16_t>(in.integer()); }
inline void read(Bytes &in, std::int32_t &n) { n = static_cast<std::int32_t>(in.integer()); }
inline void read(Bytes &in, std::uint32_t &n) { n = static_cast<std::uint32_t>(in.integer()); }
inline void read(Bytes &in, DTPOINT &p) { p = {in.number(), in.number()}; }
inline void read(Bytes &in, DTCOMPLEX &z) { z = {in.number(), in.number()}; }
inline std::uint32_t attributes(Bytes &in) {
    const std::uint8_t choice = in.byte();
    return choice < 192 ? static_cast<std::uint32_t>(choice % 4) << 28 : in.word<std::uint32_t>();
}
// Records are set member by member: their padding stays as it is.
inline void read(Bytes &in, DTLINE &l) {
    l.attr = attributes(in);
    for (double *x : {&l.x1, &l.y1, &l.x2, &l.y2})
        read(in, *x);
}
inline void read(Bytes &in, DTARC &a) {
    a.attr = attributes(in);
    for (double *x : {&a.cx, &a.cy, &a.r, &a.start, &a.end})
        read(in, *x);
}
inline void read(Bytes &in, DTELLIPSE &e) {
    e.attr = attributes(in);
    for (double *x : {&e.cx, &e.cy, &e.a, &e.b, &e.start, &e.end, &e.rot})
        read(in, *x);
}
/// The library's integrands, and a host's own.
void read(Bytes &in, PLANEGEO_INTEGRAND &integrand);

template <class T> constexpr Piece::Kind kindOf() {
    if constexpr (std::is_same_v<T, double>) return Piece::Kind::number;
    if constexpr (std::is_same_v<T, DTPOINT>) return Piece::Kind::point;
    if constexpr (std::is_same_v<T, DTLINE>) return Piece::Kind::line;
    if constexpr (std::is_same_v<T, DTARC>) return Piece::Kind::arc;
    if constexpr (std::is_same_v<T, DTELLIPSE>) return Piece::Kind::ellipse;
    return Piece::Kind::word;
}

template <class T>
inline constexpr bool kIsPiece =
    std::is_pointer_v<T> && !std::is_function_v<std::remove_pointer_t<T>>;

// Printing of arguments, for who looks at a finding.

void show(double x);
void show(std::int64_t n);
inline void show(DTCOMPLEX z) { show(z.re), show(z.im); }
inline void show(PLANEGEO_INTEGRAND) { std::fputs(" integrand", stderr); }
void show(const Piece &piece);

/// Ends the process with a finding.
[[noreturn]] void fail(const char *name, const char *what);

// What every call is held to.

void remember(const Frame &frame, std::vector<unsigned char> &image);
void recall(const Frame &frame, const std::vector<unsigned char> &image);
/// Inputs unchanged, nothing written beside outputs, documented codes and counts. What is wrong,
/// or null.
const char *fault(const Entry &entry, const Outcome &outcome, const Frame &frame);
/// The same results and outputs as images tell them. NaN equals NaN.
bool agree(const Outcome &p, const Outcome &q, const std::vector<unsigned char> &a,
           const std::vector<unsigned char> &b);
/// Chooses an input to be moved into an output of its kind; says where to, or null.
unsigned char *chooseShared(Bytes &in, const Frame &frame, std::size_t &input);

template <class Function, Function function> class Invoker;

template <class Result, class... Arguments, Result (*function)(Arguments...)>
class Invoker<Result (*)(Arguments...), function> {
    using Tuple = std::tuple<Arguments...>;
    static constexpr std::size_t kCount = sizeof...(Arguments);
    static_assert(kCount <= Frame::kMostPieces);

    template <class Visit, std::size_t... I>
    static void each(Tuple &arguments, [[maybe_unused]] Visit visit, std::index_sequence<I...>) {
        (visit(std::get<I>(arguments), I), ...);
    }
    template <class Visit> static void each(Tuple &arguments, Visit visit) {
        each(arguments, visit, std::make_index_sequence<kCount>());
    }

    static void readAll(const Entry &entry, Bytes &in, Frame &frame, Tuple &arguments) {
        std::array<std::int64_t, kCount + 1> scalars = {};
        frame.arguments = kCount;
        each(arguments, [&](auto &argument, std::size_t i) {
            using Type = std::decay_t<decltype(argument)>;
            frame.pieces[i] = {Piece::Kind::word, true, 0, 0, nullptr};
            if constexpr (!kIsPiece<Type>) {
                read(in, argument);
                if constexpr (std::is_integral_v<Type>) scalars[i] = argument;
            }
        });
        each(arguments, [&](auto &argument, std::size_t i) {
            using Type = std::decay_t<decltype(argument)>;
            if constexpr (kIsPiece<Type>) {
                argument = piece<std::remove_pointer_t<Type>>(entry, in, frame, scalars, i);
            }
        });
    }

    template <class Pointee>
    static Pointee *piece(const Entry &entry, Bytes &in, Frame &frame,
                          const std::array<std::int64_t, kCount + 1> &scalars, std::size_t i) {
        using Element = std::remove_const_t<Pointee>;
        constexpr std::size_t kMostRead = 256;
        constexpr bool kIsInput = std::is_const_v<Pointee>;
        if (entry.isNullable(i) && in.byte() < 16) return nullptr;
        const std::size_t usual = std::is_same_v<Pointee, const double> ? 2 : 1;
        const std::size_t count = entry.roomOf(i, usual, scalars);
        const std::size_t size = count * sizeof(Element);
        unsigned char *at = frame.arena.take(size);
        std::memset(at, 0, size);
        frame.pieces[i] = {kindOf<Element>(), kIsInput, count, size, at};
        auto *elements = reinterpret_cast<Element *>(at);
        for (std::size_t k = 0; k < std::min(count, kMostRead); ++k)
            read(in, elements[k]);
        return elements;
    }

    static Outcome timed(const Tuple &arguments) {
        Outcome outcome;
        const auto began = processorTime();
        if constexpr (std::is_void_v<Result>) {
            std::apply(function, arguments);
        } else {
            const Result result = std::apply(function, arguments);
            if constexpr (std::is_integral_v<Result>) outcome.code = result;
            if constexpr (std::is_same_v<Result, double>) outcome.value[0] = result;
            if constexpr (std::is_same_v<Result, DTCOMPLEX>) outcome.value = {result.re, result.im};
        }
        outcome.time = processorTime() - began;
        return outcome;
    }

    static void showAll(const Entry &entry, Tuple &arguments, const Frame &frame) {
        std::fputs(entry.name(), stderr);
        each(arguments, [&](auto &argument, std::size_t i) {
            using Type = std::decay_t<decltype(argument)>;
            if constexpr (kIsPiece<Type>) {
                show(frame.pieces[i]);
            } else if constexpr (std::is_integral_v<Type>) {
                show(std::int64_t{argument});
            } else {
                show(argument);
            }
        });
        std::fputs("\n", stderr);
    }

    [[noreturn]] static void report(const Entry &entry, Tuple &arguments, const Frame &frame,
                                    const char *what) {
        recall(frame, frame.before);
        showAll(entry, arguments, frame);
        fail(entry.name(), what);
    }

    /// The call once more, with an input in the storage of an output.
    static void tryShared(const Entry &entry, Tuple &arguments, Frame &frame, std::size_t input,
                          unsigned char *storage, const Outcome &first) {
        remember(frame, frame.after);
        recall(frame, frame.before);
        Tuple shared = arguments;
        each(shared, [&](auto &argument, std::size_t i) {
            using Type = std::decay_t<decltype(argument)>;
            if constexpr (kIsPiece<Type>) {
                if (i == input) argument = reinterpret_cast<Type>(storage);
            }
        });
        const Outcome second = timed(shared);
        std::vector<unsigned char> image;
        remember(frame, image);
        if (!agree(first, second, frame.after, image)) {
            std::fprintf(stderr, "argument %zu shared: ", input);
            report(entry, arguments, frame, "answers otherwise where storage is shared");
        }
    }

  public:
    static Outcome invoke(const Entry &entry, Bytes &in, Frame &frame) {
        frame.arena.reset();
        Tuple arguments;
        readAll(entry, in, frame, arguments);
        std::size_t input = 0;
        unsigned char *storage = nullptr;
        if (!entry.isSeparate() && in.byte() < 64) {
            storage = chooseShared(in, frame, input);
        }
        if (storage != nullptr) {
            std::memcpy(storage, frame.pieces[input].at, frame.pieces[input].size);
        }
        remember(frame, frame.before);
        if (frame.tells) showAll(entry, arguments, frame);
        const Outcome outcome = timed(arguments);
        if (const char *what = fault(entry, outcome, frame)) {
            report(entry, arguments, frame, what);
        }
        if (storage != nullptr) tryShared(entry, arguments, frame, input, storage, outcome);
        return outcome;
    }
};

template <auto function> Entry entry(const char *name) {
    return {name, Invoker<std::decay_t<decltype(function)>, function>::invoke};
}

} // namespace fuzz
