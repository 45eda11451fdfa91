#pragma once

#include <stdexcept>
#include <string_view>

namespace zy::fuzz {

// fuzz/: what must hold for every input. A target takes any bytes and throws BrokenPromise when a property
// does not hold; the sanitizers see to the rest. It owns the inputs kept in corpus/, one folder a target,
// which the ordinary suite replays. It may call every room but desktop/ and app/.

/// The texts of the system's file names, into the program and back.
void FileNames(std::string_view input);
/// The reader of index files, walking against searching.
void IndexFile(std::string_view input);
/// A settings file of the INI kind through load, save and load again, against the plainest way to read it.
void IniFile(std::string_view input);
/// The journal of a session that ended before it could save, as any bytes and piece by piece: what the next
/// session makes of it.
void Journal(std::string_view input);
/// Steps of a session that breaks off, done again by the next one.
void JournalSteps(std::string_view input);
/// The parser of numbers, against the C library's.
void Numbers(std::string_view input);
/// A text pasted into a grid, copied from there, and pasted into another one.
void PastedCells(std::string_view input);
/// Reading a rules file block by block, against reading it whole.
void RulesBlocks(std::string_view input);
/// A rules file through load, save and load again.
void RulesFile(std::string_view input);
/// The parser of SQL statements, against a statement written out again.
void SqlStatement(std::string_view input);
/// A table through reading, adding a row, and an index of its own.
void TableFile(std::string_view input);
/// Fields, quotes, NULs and paths.
void Texts(std::string_view input);
/// The text of a units file, against the plainest way to read it, and written again from a grid.
void UnitsText(std::string_view input);
/// Which of the earlier versions of a file are kept.
void VersionPlan(std::string_view input);

class BrokenPromise : public std::logic_error {
  public:
    using std::logic_error::logic_error;
};

inline void Require(bool holds, const char* promise) {
    if (!holds) {
        throw BrokenPromise(promise);
    }
}

} // namespace zy::fuzz
