/// One question put to the library and to its peers: the same inputs, the answers counted and
/// compared beside the times.
#pragma once

#include <functional>
#include <optional>
#include <utility>
#include <vector>

#include "../inputs.h"

namespace bench {

/// How many solutions a call found, and a sum over them that does not depend on their order.
struct Answer {
    int count = 0;
    double sum = 0.0;

    void add(double value) {
        ++count;
        sum += value;
    }
    void add(double x, double y) { add(x + 2.0 * y); }
    void add(const DTPOINT &p) { add(p.x, p.y); }

    bool agreesWith(const Answer &other, double tolerance) const {
        return count == other.count &&
               std::fabs(sum - other.sum) <= tolerance * (1.0 + std::fabs(sum));
    }
};

/// Rows `peers/TASK/WHO`, the first of them ours, with counters: `solutions` found over the table,
/// and `agree`, the number of inputs to which the answer is that of our first row. Nothing is asked
/// before a row runs.
template <class Make> class Comparison {
  public:
    using Input = std::invoke_result_t<Make, Random &>;

    Comparison(std::string task, Make make, double tolerance = 1e-6)
        : task_(std::move(task)), make_(make), tolerance_(tolerance) {}

    /// `call(input)` gives an Answer.
    template <class Call> Comparison &ours(const char *function, Call call) {
        return peer(
            std::string("planegeo:") + function, [](const Input &in) { return in; }, call);
    }

    /// The peer's own objects are made of the inputs beforehand, by `convert(input)`: a program
    /// that uses the peer holds its geometry in them.
    template <class Convert, class Call>
    Comparison &peer(const std::string &who, Convert convert, Call call) {
        const auto answers = [make = make_, convert, call] {
            std::vector<Answer> all;
            for (const Input &input : table(make)) {
                all.push_back(call(convert(input)));
            }
            return all;
        };
        if (!reference_) reference_ = answers;
        const auto countOnce = [answers, reference = reference_, tolerance = tolerance_,
                                counts = std::make_shared<std::optional<Counts>>()] {
            if (!*counts) *counts = Counts::of(answers(), reference(), tolerance);
            return **counts;
        };
        using Own = std::decay_t<std::invoke_result_t<Convert, const Input &>>;
        const auto own = std::make_shared<std::vector<Own>>();
        const std::string name = "peers/" + task_ + "/" + who;
        benchmark::RegisterBenchmark(name.c_str(), [name, own, countOnce, make = make_, convert,
                                                    call](benchmark::State &state) {
            if (own->empty()) {
                for (const Input &input : table(make)) {
                    own->push_back(convert(input));
                }
            }
            run(state, name, *own, [call](const Own &in) {
                const Answer answer = call(in);
                return answer.count + answer.sum;
            });
            const Counts counts = countOnce();
            state.counters["solutions"] = counts.solutions;
            state.counters["agree"] = counts.agree;
        });
        return *this;
    }

    operator int() const { return 0; }

  private:
    struct Counts {
        double solutions = 0.0;
        double agree = 0.0;

        static Counts of(const std::vector<Answer> &answers, const std::vector<Answer> &reference,
                         double tolerance) {
            Counts counts;
            for (std::size_t i = 0; i < answers.size(); ++i) {
                counts.solutions += answers[i].count;
                counts.agree += reference[i].agreesWith(answers[i], tolerance) ? 1.0 : 0.0;
            }
            return counts;
        }
    };

    std::string task_;
    Make make_;
    double tolerance_;
    std::function<std::vector<Answer>()> reference_;
};

} // namespace bench
