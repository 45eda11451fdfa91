#pragma once

#include <string>

namespace zy::bench {

/// The most rules that a list holds, and the lines of a rules file for each.
constexpr int kManyRules = 32767;
constexpr int kLinesPerRule = 9;

/// A rules file of that many rules as the program writes it, with codes of their own and descriptions of
/// about 40 characters.
std::string RulesFileOf(int rules);
/// The same lines, but with a number in every header, for readers that take equal headers for one section.
std::string KeyFileOf(int rules);

} // namespace zy::bench
