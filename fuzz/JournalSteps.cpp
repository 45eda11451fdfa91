#include <algorithm>
#include <string>
#include <vector>

#include "NotedList.h"
#include "Targets.h"

namespace zy::fuzz {
namespace {

/// The input, taken as decisions one after the other; zero when there are no more.
class Decisions {
  public:
    explicit Decisions(std::string_view input) : rest_(input) {}

    bool AnyLeft() const { return !rest_.empty(); }
    int Below(int end) {
        if (rest_.empty() || end < 1) {
            return 0;
        }
        const int byte = static_cast<unsigned char>(rest_.front());
        rest_.remove_prefix(1);
        return byte % end;
    }
    std::string Text() { return std::string(1, static_cast<char>('a' + Below(26))); }

  private:
    std::string_view rest_;
};

/// A moment of a session at which it may break off.
struct Moment {
    LeftBehind left;
    std::vector<Pair> list;
};

/// Somebody who does to a list what the input says.
class Somebody {
  public:
    Somebody(PairSession& session, Decisions& decisions) : session_(session), decisions_(decisions) {}

    void Act() {
        auto& list = session_.list;
        constexpr int kDeeds = 10;
        switch (decisions_.Below(kDeeds)) {
        case 0:
            list.Undo();
            break;
        case 1:
            list.Redo();
            break;
        case 2:
            session_.Save();
            break;
        case 3:
            session_.Save(decisions_.Below(list.Pairs() * 4));
            break;
        case 4:
            session_.SaveInVain();
            break;
        case 5:
            list.Insert(1 + decisions_.Below(list.Pairs() + 1), {decisions_.Text(), decisions_.Text()});
            break;
        default:
            ActOnRow(1 + decisions_.Below(list.Pairs()));
        }
    }

  private:
    void ActOnRow(int row) {
        auto& list = session_.list;
        if (list.Pairs() == 0) {
            return;
        }
        constexpr int kDeeds = 4;
        switch (decisions_.Below(kDeeds)) {
        case 0:
            list.Remove(row);
            break;
        case 1:
            list.Replace(row, {decisions_.Text(), ""});
            break;
        case 2:
            list.Set(row, decisions_.Below(2), decisions_.Text());
            break;
        default:
            list.Type(row, decisions_.Below(2), decisions_.Text());
        }
    }

    PairSession& session_;
    Decisions& decisions_;
};

/// What the next program finds is the list of the one before, and every step of that can be taken back.
void RequireRestored(const Moment& moment) {
    PairSession next(moment.left);
    Require(next.list.List() == moment.list, "what was done is done again");
    PairSession third(next.BreakOff());
    Require(third.list.List() == moment.list, "and is noted again");
    while (next.list.CanUndo()) {
        next.list.Undo();
    }
    Require(next.list.List() == PairSession::PairsIn(moment.left.file), "it can be taken back");
}

/// A journal that is cut short gives the moment before what is not whole, as long as the file did not change.
void RequireCutRestored(const Moment& moment, const Moment& later, int cut) {
    const auto& whole = moment.left.journal;
    const auto& longer = later.left.journal;
    if (moment.left.file != later.left.file || whole.empty() || !longer.starts_with(whole)) {
        return;
    }
    const auto end = whole.size() + static_cast<std::size_t>(cut) % (longer.size() - whole.size() + 1);
    if (ReadPieces(longer.substr(0, end)).whole.size() == ReadPieces(whole).whole.size()) {
        RequireRestored({{moment.left.file, longer.substr(0, end)}, moment.list});
    }
}

} // namespace

void JournalSteps(std::string_view input) {
    constexpr int kAnyCut = 256;
    Decisions decisions(input);
    const int cut = decisions.Below(kAnyCut);
    PairSession session({"a\tA\nb\tB\nc\tC\n", ""});
    Somebody somebody(session, decisions);
    Moment moment;
    Moment last{session.BreakOff(), session.list.List()};
    while (decisions.AnyLeft()) {
        moment = std::move(last);
        somebody.Act();
        last = {session.BreakOff(), session.list.List()};
    }
    RequireRestored(last);
    RequireCutRestored(moment, last, cut);
}

} // namespace zy::fuzz
