// The table engine beside SQLite.

#include <sqlite3.h>

#include <algorithm>
#include <array>
#include <memory>
#include <random>
#include <stdexcept>
#include <vector>

#include "Duel.h"
#include "dbase/DBEngine.h"
#include "dbase/FileBytes.h"
#include "dbase/IndexBuilder.h"
#include "platform/posix/PosixFileSystem.h"
#include "support/TemporaryFolder.h"

namespace zy::bench {
namespace {

constexpr int kUsers = 32767;
constexpr auto kColumns =
    "(USERID TEXT (10), PASSWORD TEXT (20), IDENTIFIER TEXT(20),EXPDATE TEXT (8), STATUS TEXT(1))";

using User = std::array<std::string, 5>;

std::vector<User> MakeUsers() {
    std::mt19937 random(1);
    std::vector<User> users;
    for (int i = 0; i < kUsers; ++i) {
        const auto number = std::to_string(i);
        users.push_back({"U" + std::to_string(random() % 100000000), "secret" + number, "The user " + number,
                         "27-01-31", i % 3 == 0 ? "I" : "A"});
    }
    return users;
}

std::string InsertText(const User& user, const std::string& table) {
    return "INSERT INTO " + table + " (USERID, PASSWORD, IDENTIFIER, EXPDATE, STATUS) VALUES ('" + user[0] +
           "', '" + user[1] + "', '" + user[2] + "', '" + user[3] + "', '" + user[4] + "');";
}

void Require(bool holds, const char* what) {
    if (!holds) {
        throw std::runtime_error(what);
    }
}

/// The peer's database, which never waits for the disk.
class Sqlite {
  public:
    explicit Sqlite(const std::string& path) {
        sqlite3* opened = nullptr;
        Require(::sqlite3_open(path.c_str(), &opened) == SQLITE_OK, "SQLite cannot open its database");
        database_.reset(opened);
        Run("PRAGMA synchronous = OFF");
    }

    void Run(const std::string& sql) const {
        Require(::sqlite3_exec(database_.get(), sql.c_str(), nullptr, nullptr, nullptr) == SQLITE_OK,
                sql.c_str());
    }

    /// One transaction, and a statement that is prepared once.
    void InsertAll(const std::vector<User>& users) const {
        Run("BEGIN");
        const auto insert = Prepare("INSERT INTO T VALUES (?, ?, ?, ?, ?)");
        for (const auto& user : users) {
            for (int i = 0; i < 5; ++i) {
                const auto& value = user[static_cast<std::size_t>(i)];
                ::sqlite3_bind_text(insert.get(), i + 1, value.data(), static_cast<int>(value.size()),
                                    SQLITE_STATIC);
            }
            Require(::sqlite3_step(insert.get()) == SQLITE_DONE, "SQLite cannot insert");
            ::sqlite3_reset(insert.get());
        }
        Run("COMMIT");
    }

    std::vector<User> SelectAll() const {
        const auto select = Prepare("SELECT * FROM T");
        std::vector<User> users;
        while (::sqlite3_step(select.get()) == SQLITE_ROW) {
            auto& user = users.emplace_back();
            for (int i = 0; i < 5; ++i) {
                user[static_cast<std::size_t>(i)] =
                    reinterpret_cast<const char*>(::sqlite3_column_text(select.get(), i));
            }
        }
        return users;
    }

  private:
    struct Finalize {
        void operator()(sqlite3_stmt* statement) const { ::sqlite3_finalize(statement); }
    };
    struct Close {
        void operator()(sqlite3* database) const { ::sqlite3_close(database); }
    };

    std::unique_ptr<sqlite3_stmt, Finalize> Prepare(const char* sql) const {
        sqlite3_stmt* statement = nullptr;
        Require(::sqlite3_prepare_v2(database_.get(), sql, -1, &statement, nullptr) == SQLITE_OK, sql);
        return std::unique_ptr<sqlite3_stmt, Finalize>(statement);
    }

    std::unique_ptr<sqlite3, Close> database_;
};

/// Both tables, in a folder of memory: a disk would be measured, not the work.
class Tables {
  public:
    Tables() : users_(MakeUsers()) {
        WriteSequence("FULL");
        Sqlite peer(PeerPath("full"));
        peer.Run(std::string("CREATE TABLE T ") + kColumns);
        peer.InsertAll(users_);
        Require(Read() == users_ && ReadPeer() == users_, "what was written is read");
    }

    std::vector<User> Read() {
        const auto database = Open();
        const auto records = database->OpenRecordset("FULL", dbase::RecordsetType::Dynaset);
        std::vector<User> users;
        for (records->MoveFirst(); !records->Eof(); records->MoveNext()) {
            auto& user = users.emplace_back();
            for (int i = 0; i < 5; ++i) {
                user[static_cast<std::size_t>(i)] = records->Fields().Item(i).Value();
            }
        }
        return users;
    }
    std::vector<User> ReadPeer() const { return Sqlite(PeerPath("full")).SelectAll(); }

    double SecondsToWriteRows() {
        Start("ROWS", "rows");
        Open()->Execute(std::string("CREATE TABLE ROWS ") + kColumns);
        return WorkingSeconds([&] {
            dbase::OpenTable table(files_, folder_.InsidePath("ROWS.DBF"));
            for (const auto& user : users_) {
                const std::array<std::string_view, 5> values{user[0], user[1], user[2], user[3], user[4]};
                table.Append(values, false);
            }
            table.Write(Today());
            return 0;
        });
    }
    double PeerSecondsToWriteRows() {
        Start("ROWS", "rows");
        const Sqlite peer(PeerPath("rows"));
        peer.Run(std::string("CREATE TABLE T ") + kColumns);
        return WorkingSeconds([&] {
            peer.InsertAll(users_);
            return 0;
        });
    }

    double SecondsOfSequence() {
        Start("SEQUENCE", "sequence");
        return WorkingSeconds([&] {
            WriteSequence("SEQUENCE");
            return 0;
        });
    }
    double PeerSecondsOfSequence() {
        Start("SEQUENCE", "sequence");
        return WorkingSeconds([&] {
            const Sqlite peer(PeerPath("sequence"));
            peer.Run(std::string("CREATE TABLE T ") + kColumns);
            for (const auto& user : users_) {
                peer.Run("BEGIN");
                peer.Run(InsertText(user, "T"));
                peer.Run("COMMIT");
            }
            peer.Run("CREATE INDEX I ON T (USERID)");
            return 0;
        });
    }

    double SecondsToIndex() {
        std::filesystem::remove(folder_.Path("INDEX.NDX"));
        const auto database = Open();
        return WorkingSeconds([&] {
            database->Execute("CREATE INDEX [INDEX] ON FULL (USERID)");
            return 0;
        });
    }
    double PeerSecondsToIndex() const {
        const Sqlite peer(PeerPath("full"));
        peer.Run("DROP INDEX IF EXISTS I");
        return WorkingSeconds([&] {
            peer.Run("CREATE INDEX I ON T (USERID)");
            return 0;
        });
    }
    double SecondsToSortKeys() const {
        using Key = std::pair<std::array<char, 10>, std::uint32_t>;
        std::vector<Key> keys(users_.size());
        for (std::size_t i = 0; i < keys.size(); ++i) {
            keys[i].first.fill(' ');
            users_[i][0].copy(keys[i].first.data(), keys[i].first.size());
            keys[i].second = static_cast<std::uint32_t>(i);
        }
        return WorkingSeconds([&] {
            std::sort(keys.begin(), keys.end());
            return keys.front().second;
        });
    }

  private:
    static std::chrono::year_month_day Today() {
        using namespace std::chrono;
        return year_month_day(2026y / November / 20);
    }
    std::unique_ptr<dbase::Database> Open() {
        return engine_.OpenDatabase(folder_.InsidePath(), false, false, "dBase III");
    }
    std::string PeerPath(const std::string& name) const { return folder_.Path(name + ".sqlite"); }

    /// As the users editor writes: each row from a statement of its own, in a transaction of its own.
    void WriteSequence(const std::string& table) {
        const auto database = Open();
        database->Execute("CREATE TABLE " + table + " " + kColumns);
        for (const auto& user : users_) {
            engine_.BeginTrans();
            database->Execute(InsertText(user, table), dbase::ExecuteOptions::FailOnError);
            engine_.CommitTrans();
        }
        database->Flush();
        database->Execute("CREATE INDEX " + table + " ON " + table + " (USERID)");
        database->Close();
    }

    void Start(const char* ours, const char* theirs) const {
        for (const auto& name :
             {std::string(ours) + ".DBF", std::string(ours) + ".NDX", std::string(theirs) + ".sqlite"}) {
            std::filesystem::remove(folder_.Path(name));
        }
    }

    test::TemporaryFolder folder_{"/dev/shm"};
    PosixFileSystem files_{Windows1252()};
    dbase::DBEngine engine_{files_, Today};
    std::vector<User> users_;
};

void AddTableDuels(Tables& tables) {
    Add({.work = "read a table of 32,767 users",
         .peer = "SQLite select",
         .goal = 0.35,
         .rounds = 41,
         .ours = [&] { return WorkingSeconds([&] { return tables.Read(); }); },
         .theirs = [&] { return WorkingSeconds([&] { return tables.ReadPeer(); }); }});
    Add({.work = "write a table of 32,767 users, raw rows",
         .peer = "SQLite, one transaction, no sync",
         .goal = 0.2,
         .rounds = 41,
         .ours = [&] { return tables.SecondsToWriteRows(); },
         .theirs = [&] { return tables.PeerSecondsToWriteRows(); }});
    Add({.work = "write sequence of 32,767 users, with index",
         .peer = "SQLite, a transaction a row, no sync",
         .goal = 0.05,
         .rounds = 3,
         .ours = [&] { return tables.SecondsOfSequence(); },
         .theirs = [&] { return tables.PeerSecondsOfSequence(); }});
}

void AddIndexDuels(Tables& tables) {
    Add({.work = "index of 32,767 users",
         .peer = "SQLite create index",
         .goal = 0.7,
         .rounds = 41,
         .ours = [&] { return tables.SecondsToIndex(); },
         .theirs = [&] { return tables.PeerSecondsToIndex(); }});
    Add({.work = "index of 32,767 users",
         .peer = "std::sort of the keys",
         .goal = 2,
         .rounds = 41,
         .ours = [&] { return tables.SecondsToIndex(); },
         .theirs = [&] { return tables.SecondsToSortKeys(); }});
}

int Run(int argumentCount, char** arguments) {
    Tables tables;
    AddTableDuels(tables);
    AddIndexDuels(tables);
    return RunDuels(argumentCount, arguments);
}

} // namespace
} // namespace zy::bench

int main(int argumentCount, char** arguments) {
    return zy::bench::Run(argumentCount, arguments);
}
