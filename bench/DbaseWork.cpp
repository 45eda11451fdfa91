// One piece of the table engine's work, for bench/instructions to count.

#include <array>
#include <filesystem>
#include <iostream>
#include <stdexcept>
#include <string>

#include "dbase/DBEngine.h"
#include "dbase/OpenTable.h"
#include "platform/posix/PathText.h"
#include "platform/posix/PosixFileSystem.h"

namespace zy::bench {
namespace {

constexpr std::uint32_t kUsers = 32767;

std::chrono::year_month_day Today() {
    using namespace std::chrono;
    return year_month_day(2026y / November / 20);
}

class Work {
  public:
    explicit Work(const std::string& folder)
        : folder_(PathText(Windows1252()).PathToInside(std::filesystem::absolute(folder).string())) {}

    void Make() {
        Database()->Execute("CREATE TABLE USERS (USERID TEXT (10), PASSWORD TEXT (20), IDENTIFIER TEXT (20), "
                            "EXPDATE TEXT (8), STATUS TEXT (1))");
    }

    /// Users in an order that is not that of their names.
    void Write() {
        dbase::OpenTable table(files_, folder_ + "\\USERS.DBF");
        for (std::uint32_t i = 0; i < kUsers; ++i) {
            Append(table, "U" + std::to_string(i * 2654435761U % 100000000U), "secret" + std::to_string(i));
        }
        Finish(table);
    }

    void Read() {
        const auto database = Database();
        const auto records = database->OpenRecordset("USERS", dbase::RecordsetType::Dynaset);
        if (CountRows(*records) != kUsers) {
            throw std::runtime_error("not all users were read");
        }
    }

    void Index() { Database()->Execute("CREATE INDEX USERS ON USERS (USERID)"); }

  private:
    std::unique_ptr<dbase::Database> Database() {
        return engine_.OpenDatabase(folder_, false, false, "dBase III");
    }

    [[gnu::noinline]] static void Append(dbase::OpenTable& table, const std::string& name,
                                         const std::string& password) {
        const std::array<std::string_view, 5> values{name, password, "The user", "27-01-31", "A"};
        table.Append(values, false);
    }
    [[gnu::noinline]] static void Finish(dbase::OpenTable& table) { table.Write(Today()); }

    [[gnu::noinline]] static std::uint32_t CountRows(dbase::Recordset& records) {
        std::uint32_t rows = 0;
        const auto& fields = records.Fields();
        const int count = fields.Count();
        for (records.MoveFirst(); !records.Eof(); records.MoveNext()) {
            for (int i = 0; i < count; ++i) {
                characters = characters + fields.Item(i).Value().size();
            }
            ++rows;
        }
        return rows;
    }

    static inline volatile std::size_t characters = 0;
    std::string folder_;
    PosixFileSystem files_{Windows1252()};
    dbase::DBEngine engine_{files_, Today};
};

int Do(const std::string& step, const std::string& folder) {
    Work work(folder);
    if (step == "make") {
        work.Make();
    } else if (step == "write") {
        work.Write();
    } else if (step == "read") {
        work.Read();
    } else if (step == "index") {
        work.Index();
    } else {
        throw std::runtime_error("make, write, read or index folder");
    }
    return 0;
}

} // namespace
} // namespace zy::bench

int main(int argumentCount, char** arguments) {
    try {
        return zy::bench::Do(argumentCount == 3 ? arguments[1] : "", argumentCount == 3 ? arguments[2] : "");
    } catch (const std::exception& error) {
        std::cerr << "dbase_work: " << error.what() << '\n';
        return 1;
    }
}
