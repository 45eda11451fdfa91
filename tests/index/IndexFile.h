#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace zy::dbase {

/// An index file, for reading. Nothing in it is believed before it is checked; what does not hold is error
/// 3274, with the page.
class IndexFile {
  public:
    struct Entry {
        std::string_view key;
        std::uint32_t record; ///< counted from 1
    };

    /// Takes the bytes of a file and checks its header. The path is for the errors' texts.
    IndexFile(std::string file, std::string path);

    const std::string& Path() const { return path_; }
    /// What the keys are made of: a column's name as a rule.
    std::string_view Expression() const;
    std::size_t KeyLength() const { return keyLength_; }
    /// Only the first of equal keys is listed.
    bool IsUnique() const;

    /// All entries, in their order, once every page that leads to them has been checked. They refer to this
    /// object.
    std::vector<Entry> Walk() const;

    /// The first record with a key. Only the pages on the way are checked.
    std::optional<std::uint32_t> Find(std::string_view key) const;

  private:
    class Walker;
    class Searcher;
    struct PageView;

    void CheckHeader() const;
    PageView View(std::uint32_t number) const;
    [[noreturn]] void Refuse(std::string_view why) const;
    [[noreturn]] void RefusePage(std::uint32_t page, std::string_view why) const;

    std::string file_;
    std::string path_;
    std::uint32_t pages_ = 0;
    std::size_t keyLength_ = 0;
    std::size_t entrySize_ = 0;
};

} // namespace zy::dbase
