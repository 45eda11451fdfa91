#pragma once

#include <algorithm>
#include <iterator>
#include <random>
#include <sstream>
#include <string>
#include <string_view>
#include <vector>

#include "history/RowPairs.h"

namespace zy::test {

// Short lists to compare, each row a word: "a1 b2" is a row of the key "a" with the text "1", and one of the
// key "b" with the text "2".

inline RowTexts List(const std::vector<std::string>& words) {
    RowTexts rows(2);
    for (const auto& word : words) {
        rows.Add(std::string_view(word).substr(0, 1));
        rows.Add(std::string_view(word).substr(1));
    }
    return rows;
}

inline RowTexts List(const std::string& words) {
    std::istringstream stream(words);
    return List(std::vector<std::string>(std::istream_iterator<std::string>(stream), {}));
}

inline std::string Key(const RowTexts& rows, int row) {
    return std::string(rows.Text(row, 0));
}

inline std::string Word(const RowTexts& rows, int row) {
    return Key(rows, row) + std::string(rows.Text(row, 1));
}

inline std::vector<std::string> WordsOf(const RowTexts& rows) {
    std::vector<std::string> words;
    for (int row = 0; row < rows.Rows(); ++row) {
        words.push_back(Word(rows, row));
    }
    return words;
}

inline std::string Joined(const std::vector<std::string>& words) {
    std::string all;
    for (const auto& word : words) {
        all += (all.empty() ? "" : " ") + word;
    }
    return all;
}

/// Lists of a few words of so few keys and texts that the same ones come again and again.
class RandomLists {
  public:
    explicit RandomLists(unsigned seed) : random_(seed) {}

    int Below(int end) { return std::uniform_int_distribution<>(0, end - 1)(random_); }

    RowTexts Any() {
        std::vector<std::string> words;
        for (int count = Below(7); count > 0; --count) {
            words.push_back(AnyWord());
        }
        return List(words);
    }

    /// What somebody makes of a list, who does a few things to it.
    RowTexts Edited(const RowTexts& list) {
        auto words = WordsOf(list);
        for (int count = Below(4); count > 0; --count) {
            Edit(words);
        }
        return List(words);
    }

  private:
    std::string AnyWord() { return {static_cast<char>('a' + Below(4)), static_cast<char>('1' + Below(3))}; }

    void Edit(std::vector<std::string>& words) {
        const auto place = words.begin() + Below(static_cast<int>(words.size()) + 1);
        if (place == words.end() || Below(4) == 0) {
            words.insert(place, AnyWord());
            return;
        }
        switch (Below(3)) {
        case 0:
            words.erase(place);
            break;
        case 1:
            *place = AnyWord();
            break;
        default:
            std::rotate(words.begin(), place, place + 1);
        }
    }

    std::mt19937 random_;
};

} // namespace zy::test
