#pragma once

#include <optional>
#include <string>

namespace zy::bench {

// bench/: this program's work measured against that of others. It owns the made-up data and the peers, prints
// one row of a table for each piece of work, and may call every room.

/// Prints a row of the table, its columns parted by TABs for bench/run to lay out: what was done, what it
/// took us, what it took the peer, how often the peer's goes into ours, the most that may be, and whether it
/// is met. Without a goal the row is there to be read.
void PrintRow(const std::string& work, const std::string& ours, const std::string& peer, double ratio,
              std::optional<double> goal);

/// A time, a size, a count and a number, as the table shows them.
std::string Milliseconds(double seconds);
std::string Mebibytes(double bytes);
std::string Millions(double count);
std::string TwoDecimals(double number);
/// A number of things, with a comma for thousands: "32,767 rules".
std::string CountOf(int number, const std::string& things);

} // namespace zy::bench
