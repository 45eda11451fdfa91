#include <algorithm>
#include <exception>
#include <iostream>
#include <numeric>
#include <string>
#include <vector>

#include "Duel.h"
#include "Median.h"
#include "Row.h"
#include "basics/Int16.h"
#include "history/RowComparison.h"
#include "history/RowMerge.h"

// history_bench: how two lists of 32,767 rows differ, and what three of them become together.

namespace zy::bench {
namespace {

constexpr int kRounds = 51;
constexpr double kGoal = 16; ///< milliseconds, for all lists that somebody could have made of one another
constexpr double kUsualGoal = 4;

std::string Key(const RowTexts& rows, int row) {
    return std::string(rows.Text(row, 0));
}

/// Users, each with the text that `textOf` gives to its row, in an order of rows.
template <typename TextOf>
RowTexts Users(const std::vector<int>& order, const TextOf& textOf) {
    RowTexts users(3);
    for (const int row : order) {
        users.Add("USER" + std::to_string(row));
        users.Add(textOf(row));
        users.Add("27-01-31");
    }
    return users;
}

std::vector<int> FirstToLast() {
    std::vector<int> order(kMaxItems);
    std::iota(order.begin(), order.end(), 0);
    return order;
}
std::vector<int> LastToFirst() {
    auto order = FirstToLast();
    std::reverse(order.begin(), order.end());
    return order;
}

std::string Secret(int row) {
    return "secret" + std::to_string(row);
}
std::string OtherSecret(int row) {
    return "other" + std::to_string(row);
}
/// The first and the last user have another one.
std::string SecretOfMost(int row) {
    return row == 0 || row == kMaxItems - 1 ? OtherSecret(row) : Secret(row);
}

template <typename Work>
void Measure(const std::string& name, double goal, const Work& work) {
    std::vector<double> times;
    for (int round = 0; round < kRounds; ++round) {
        times.push_back(WorkingSeconds(work));
    }
    const double median = Median(times);
    PrintRow(name + ", median in ms", Milliseconds(median), "", median * 1000, goal);
}

void Run() {
    const auto users = CountOf(kMaxItems, "users");
    const auto base = Users(FirstToLast(), Secret);
    const auto edited = Users(FirstToLast(), SecretOfMost);
    const auto changed = Users(FirstToLast(), OtherSecret);
    const auto reversed = Users(LastToFirst(), Secret);
    const auto compare = [&](const std::string& what, double goal, const RowTexts& after) {
        Measure("compare " + users + ", " + what, goal, [&] { return CompareRows(base, after, Key); });
    };
    compare("none changed", kUsualGoal, base);
    compare("the first and the last changed", kGoal, edited);
    compare("all changed", kGoal, changed);
    compare("in reverse", kGoal, reversed);
    Measure("merge " + users + ", all changed and in reverse", 3 * kGoal,
            [&] { return RowMerge(base, changed, reversed, Key).Result(); });
}

} // namespace
} // namespace zy::bench

int main() {
    try {
        zy::bench::Run();
    } catch (const std::exception& error) {
        std::cerr << "history_bench: " << error.what() << '\n';
        return 1;
    }
}
