#pragma once

#include <string>

namespace zy::bench {

/// A file that the program writes, made up with as many records as are wished. The text of fewer records is
/// the beginning of the text of more.
struct BigFile {
    const char* records; ///< what users call them
    const char* name;
    std::string (*text)(int count);
};

/// Rules of nine lines each, with codes of their own and descriptions of about 40 characters.
std::string RulesFileOf(int rules);
/// The same lines, but with a number in every header, for readers that take equal headers for one section.
std::string RulesKeyFileOf(int rules);
/// Units of about 6 characters with descriptions of about 20.
std::string UnitsFileOf(int units);
/// A table of users, none of them the administrator.
std::string UsersTableOf(int users);
/// Lines of about 19 characters, of which 32,767 in 300,000 are headers. No header stands there twice.
std::string IniFileOf(int lines);

constexpr int kLinesPerRule = 9;
constexpr int kManyIniLines = 300000;

constexpr BigFile kRulesFile{.records = "rules", .name = "ZYRules.sys", .text = RulesFileOf};
constexpr BigFile kUnitsFile{.records = "units", .name = "ZYUNITS.SYS", .text = UnitsFileOf};
constexpr BigFile kUsersTable{.records = "users", .name = "ZYSECURE.DBF", .text = UsersTableOf};
constexpr BigFile kIniFile{.records = "INI lines", .name = "Big.ini", .text = IniFileOf};

} // namespace zy::bench
