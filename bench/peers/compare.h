/// One question put to the library and to its peers: the same inputs, the answers counted and
/// compared beside the times.
#pragma once

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
/// and `agree`, the number of inputs to which the answer is that of our first row.
template <class Make> class Comparison {
  public:
    using Input = std::invoke_result_t<Make, Random &>;

    Comparison(std::string task, Make make, double tolerance = 1e-6)
        : task_(std::move(task)), inputs_(table(make)), tolerance_(tolerance) {}

    /// `call(input)` gives an Answer.
    template <class Call> Comparison &ours(const char *function, Call call) {
        return peer(
            std::string("planegeo:") + function, [](const Input &in) { return in; }, call);
    }

    /// The peer's own objects are made of the inputs beforehand, by `convert(input)`: a program
    /// that uses the peer holds its geometry in them.
    template <class Convert, class Call>
    Comparison &peer(const std::string &who, Convert convert, Call call) {
        using Own = std::decay_t<std::invoke_result_t<Convert, const Input &>>;
        auto own = std::make_shared<std::vector<Own>>();
        for (const Input &input : inputs_) {
            own->push_back(convert(input));
        }
        double solutions = 0.0, agree = 0.0;
        const bool isFirst = answers_.empty();
        for (std::size_t i = 0; i < own->size(); ++i) {
            const Answer answer = call((*own)[i]);
            if (isFirst) answers_.push_back(answer);
            solutions += answer.count;
            agree += answers_[i].agreesWith(answer, tolerance_) ? 1.0 : 0.0;
        }
        const std::string name = "peers/" + task_ + "/" + who;
        benchmark::RegisterBenchmark(name.c_str(),
                                     [name, own, call, solutions, agree](benchmark::State &state) {
                                         run(state, name, *own, [call](const Own &in) {
                                             const Answer answer = call(in);
                                             return answer.count + answer.sum;
                                         });
                                         state.counters["solutions"] = solutions;
                                         state.counters["agree"] = agree;
                                     });
        return *this;
    }

    operator int() const { return 0; }

  private:
    std::string task_;
    Table<Make> inputs_;
    double tolerance_;
    std::vector<Answer> answers_;
};

} // namespace bench
