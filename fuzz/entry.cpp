#include "entry.h"

#include <cinttypes>

namespace fuzz {

namespace {

/// How often a host's own integrand answers before it ends the integration: a call that asks it
/// takes as long as it is asked.
constexpr int kMostSamples = 20000;
constexpr std::int32_t kEnough = 77;
thread_local int samples = 0;

template <class Value> std::int32_t sampled(double &value, Value of) {
    if (++samples > kMostSamples) return kEnough;
    value = of;
    return 0;
}
std::int32_t PLANEGEO_CALL wave(double deg, double *value) {
    return sampled(*value, std::sin(deg * 0.1));
}
std::int32_t PLANEGEO_CALL pole(double deg, double *value) { return sampled(*value, 1.0 / deg); }
std::int32_t PLANEGEO_CALL none(double, double *value) { return sampled(*value, 0.0); }
std::int32_t PLANEGEO_CALL root(double deg, double *value) {
    return sampled(*value, std::sqrt(deg));
}

const char *wordFault(const Entry &entry, const Piece &piece, const unsigned char *before) {
    std::int64_t written = 0;
    if (std::memcmp(piece.at, before, piece.size) == 0) return nullptr;
    if (piece.size == sizeof(std::uint16_t)) {
        std::uint16_t word;
        std::memcpy(&word, piece.at, sizeof word);
        written = word;
    } else {
        std::uint32_t word;
        std::memcpy(&word, piece.at, sizeof word);
        written = word;
    }
    const auto &words = entry.words();
    return words.empty() || std::count(words.begin(), words.end(), written) > 0
               ? nullptr
               : "wrote a count or side that is not documented";
}

} // namespace

void read(Bytes &in, PLANEGEO_INTEGRAND &integrand) {
    constexpr PLANEGEO_INTEGRAND kAll[] = {ca_lengelp, ca_AreaElp, ca_lengelp, ca_AreaElp,
                                           wave,       pole,       none,       root};
    samples = 0;
    integrand = kAll[in.byte() % 8];
}

void show(double x) { std::fprintf(stderr, " %.17g", x); }
void show(std::int64_t n) { std::fprintf(stderr, " %" PRId64, n); }
void show(const Piece &piece) {
    constexpr std::size_t kMostShown = 512;
    std::fputs(piece.isInput ? " {" : " out{", stderr);
    for (std::size_t i = 0; i + 8 <= std::min(piece.size, kMostShown); i += 8) {
        double x;
        std::memcpy(&x, piece.at + i, sizeof x);
        const bool isAttribute =
            i == 0 && piece.kind != Piece::Kind::number && piece.kind != Piece::Kind::point;
        std::uint32_t word;
        std::memcpy(&word, piece.at + i, sizeof word);
        isAttribute ? show(std::int64_t{word}) : show(x);
    }
    std::fputs("}", stderr);
}

void fail(const char *name, const char *what) {
    std::fprintf(stderr, "FINDING %s: %s\n", name, what);
    std::abort();
}

void remember(const Frame &frame, std::vector<unsigned char> &image) {
    image.clear();
    for (std::size_t i = 0; i < frame.arguments; ++i) {
        const Piece &piece = frame.pieces[i];
        image.insert(image.end(), piece.at, piece.at + piece.size);
    }
}

void recall(const Frame &frame, const std::vector<unsigned char> &image) {
    const unsigned char *from = image.data();
    for (std::size_t i = 0; i < frame.arguments; ++i) {
        const Piece &piece = frame.pieces[i];
        if (piece.size == 0) continue;
        std::memcpy(piece.at, from, piece.size);
        from += piece.size;
    }
}

const char *fault(const Entry &entry, const Outcome &outcome, const Frame &frame) {
    const auto &codes = entry.codes();
    if (!codes.empty() && std::count(codes.begin(), codes.end(), outcome.code) == 0) {
        return "returned a code that is not documented";
    }
    const unsigned char *before = frame.before.data();
    for (std::size_t i = 0; i < frame.arguments; ++i) {
        const Piece &piece = frame.pieces[i];
        if (piece.at == nullptr) continue;
        if (!Arena::isIntact(piece.at, piece.size)) return "wrote beside an argument";
        if (piece.isInput && std::memcmp(piece.at, before, piece.size) != 0) {
            return "changed an input";
        }
        if (!piece.isInput && piece.kind == Piece::Kind::word) {
            if (const char *what = wordFault(entry, piece, before)) return what;
        }
        before += piece.size;
    }
    return nullptr;
}

bool agree(const Outcome &p, const Outcome &q, const std::vector<unsigned char> &a,
           const std::vector<unsigned char> &b) {
    const auto same = [](double x, double y) {
        std::uint64_t xBits, yBits;
        std::memcpy(&xBits, &x, sizeof x);
        std::memcpy(&yBits, &y, sizeof y);
        return xBits == yBits || (std::isnan(x) && std::isnan(y));
    };
    if (p.code != q.code || !same(p.value[0], q.value[0]) || !same(p.value[1], q.value[1])) {
        return false;
    }
    if (a == b) return true;
    // Words of two or four bytes come last in every signature: up to them all is in doubles.
    for (std::size_t i = 0; i < a.size(); i += sizeof(double)) {
        const std::size_t size = std::min(sizeof(double), a.size() - i);
        if (std::memcmp(&a[i], &b[i], size) == 0) continue;
        double x, y;
        if (size < sizeof x) return false;
        std::memcpy(&x, &a[i], sizeof x);
        std::memcpy(&y, &b[i], sizeof y);
        if (!same(x, y)) return false;
    }
    return true;
}

unsigned char *chooseShared(Bytes &in, const Frame &frame, std::size_t &input) {
    if (frame.arguments == 0) return nullptr;
    const std::size_t first = in.byte() % frame.arguments;
    const std::size_t second = in.byte() % frame.arguments;
    const std::size_t slot = in.byte();
    input = std::min(first, second);
    const Piece &from = frame.pieces[input];
    const Piece &to = frame.pieces[std::max(first, second)];
    if (!from.isInput || to.isInput || from.kind != to.kind || from.count == 0 ||
        from.count > to.count) {
        return nullptr;
    }
    const std::size_t places = to.count - from.count + 1;
    return to.at + slot % places * (from.size / from.count);
}

} // namespace fuzz
