#include "Session.h"

#include <algorithm>
#include <chrono>

#include "basics/Text.h"
#include "dbase/ErrorNumbers.h"
#include "support/RulesOnDisk.h"
#include "support/UsersOnDisk.h"

namespace zy::test {
namespace {

RunRule Rule(const std::string& code) {
    return {.Code = code,
            .Min = "1",
            .Max = "2",
            .Cond = ">",
            .Zone = "UCL",
            .Description = "text",
            .Desc2 = {},
            .Desc3 = {}};
}

void PutRules(MemoryWorld& world) {
    world.files.Put(kRulesFile, Section(Rule("A")) + Section(Rule("B")) + Section(Rule("C")));
}

void PutUnits(MemoryWorld& world) {
    world.files.Put(R"(C:\SYS\ZYUNITS.SYS)", "Kilograms,kg\r\nMetres,m\r\nSeconds,s\r\n");
}

void PutUsers(MemoryWorld& world) {
    world.files.Take(R"(C:\SYS\ZYSECURE.DBF)");
    world.files.Take(R"(C:\SYS\ZYSECURE.TMP)");
    PutUsersTable(world, {User("ANNA"), User("BERT"), User("CARL")});
}

std::vector<std::string> LinesOf(const RowTexts& rows) {
    std::vector<std::string> lines;
    for (int row = 0; row < rows.Rows(); ++row) {
        auto& line = lines.emplace_back();
        for (int column = 0; column < rows.Columns(); ++column) {
            line.append(rows.Text(row, column)).append("|");
        }
    }
    return lines;
}

/// Whether the formats of the files hold these texts as they are. What becomes of others the status bar
/// tells.
bool IsReadAsWritten(const RowTexts& rows) {
    const auto isPlain = [](std::string_view text) {
        return text.find_first_of(",\"'\t\r\n") == std::string_view::npos && Trim(text) == text;
    };
    for (int row = 0; row < rows.Rows(); ++row) {
        for (int column = 0; column < rows.Columns(); ++column) {
            if (!isPlain(rows.Text(row, column))) {
                return false;
            }
        }
    }
    return true;
}

/// As the engine says that single quotes in a user's fields end its values elsewhere.
bool IsOfQuotes(const RuntimeError& error, const RowTexts& rows) {
    const auto lines = LinesOf(rows);
    const bool anyQuotes =
        std::any_of(lines.begin(), lines.end(), [](const auto& line) { return Contains(line, '\''); });
    return anyQuotes && (error.Number() == dbase::kInsertSyntax || error.Number() == dbase::kCountsDiffer ||
                         error.Number() == dbase::kFieldTooSmall);
}

} // namespace

const std::vector<MonkeyEditor> kMonkeyEditors{
    {"@RULES", R"(C:\SYS\ZYRules.sys)", [](Program& program) -> Editor& { return program.rulesPage; },
     PutRules,
     [](MainMenu& menu) {
         return std::vector{&menu.mnuFile, &menu.mnuEdit, &menu.mnuEdit, &menu.mnuHelp, &menu.mnuListPopMenu};
     }},
    {"@UNITS", R"(C:\SYS\ZYUNITS.SYS)", [](Program& program) -> Editor& { return program.unitsPage; },
     PutUnits,
     [](MainMenu& menu) {
         return std::vector{&menu.mnuFile, &menu.mnuEdit, &menu.mnuEdit, &menu.mnuHelp};
     }},
    {"@SECURITY", R"(C:\SYS\ZYSECURE.DBF)", [](Program& program) -> Editor& { return program.securityPage; },
     PutUsers,
     [](MainMenu& menu) {
         return std::vector{&menu.mnuFile, &menu.mnuEdit, &menu.mnuEdit, &menu.mnuHelp,
                            &menu.mnuSecuritypopMenu};
     }}};

std::ostream& operator<<(std::ostream& out, const MonkeyEditor& editor) {
    return out << editor.argument;
}

void MonkeyDialogs::ShowMessage(std::string_view text, std::string_view /*title*/) {
    chance_.Note("told: " + std::string(text));
}

bool MonkeyDialogs::AskYesNo(std::string_view text, std::string_view /*title*/, Escape /*escape*/) {
    const bool yes = chance_.OneIn(2);
    chance_.Note("asked: " + std::string(text) + (yes ? " Yes" : " No"));
    return yes;
}

std::optional<std::string> MonkeyDialogs::AskFileToWrite(std::string_view /*title*/, std::string_view name,
                                                         const std::vector<std::string>& kinds) {
    chance_.Note("asked for a file like " + std::string(name));
    if (chance_.OneIn(2)) {
        return std::nullopt;
    }
    return R"(C:\OUT\pictures.)" + chance_.Of(kinds);
}

void MonkeyDialogs::ShowForm(Form& form) {
    constexpr int kMostEvents = 12;
    chance_.Note("dialog " + form.Name());
    for (int events = chance_.Below(kMostEvents); events > 0 && form.Visible(); --events) {
        monkey_.ActOn(form);
    }
}

MonkeySession::MonkeySession(const MonkeyEditor& editor, std::uint64_t seed, MonkeyCounts& counts)
    : editor_(editor), counts_(counts), chance_(seed) {
    world_.files.AddFolder(R"(C:\OUT)");
    world_.traceServers.SetRunning(chance_.OneIn(2));
    editor_.putFile(world_);
    Start();
}

void MonkeySession::Do(int events) {
    for (int i = 0; i < events && !::testing::Test::HasFailure(); ++i) {
        ++counts_.events;
        Act();
        ExpectSound();
    }
}

template <typename Work>
void MonkeySession::Guarded(Work work) {
    try {
        work();
    } catch (const RuntimeError& error) {
        Fail(error);
        return;
    }
    if (isClosed_) {
        chance_.Note("closed");
        Start();
    }
}

void MonkeySession::Act() {
    constexpr int kAll = 100;
    const int what = chance_.Below(kAll);
    Guarded([&] {
        if (what < 78) {
            monkey_.ActOn(program_->form);
        } else if (what < 90) {
            monkey_.ChooseFrom(*chance_.Of(editor_.menus(program_->form.menu)));
        } else if (what < 99) {
            ActOutside();
        } else {
            chance_.Note("close");
            program_->window.Unload();
        }
    });
}

void MonkeySession::ActOutside() {
    switch (chance_.Below(9)) {
    case 0:
        ChangeFile();
        break;
    case 1:
        MakeTrouble();
        break;
    case 2:
        EndTrouble();
        break;
    case 3:
        PassTime();
        break;
    case 4:
        chance_.Note("otherPart");
        program_->window.otherPart.Raise();
        break;
    case 5:
        BreakOff();
        break;
    case 6:
        chance_.Note("activated");
        program_->window.activated.Raise();
        break;
    default:
        program_->window.idle.Raise();
    }
}

/// As another program does, which need not do it well.
void MonkeySession::ChangeFile() {
    auto bytes = FileBytes();
    const auto place = static_cast<std::size_t>(chance_.Below(static_cast<int>(bytes.size())));
    fileIsOthers_ = true;
    switch (chance_.Below(5)) {
    case 0:
        chance_.Note("file cut by another program");
        world_.files.Put(editor_.path, bytes.substr(0, place));
        break;
    case 1:
        chance_.Note("byte changed by another program");
        if (!bytes.empty()) {
            bytes[place] = static_cast<char>(chance_.Below(256));
        }
        world_.files.Put(editor_.path, bytes);
        break;
    case 2:
        chance_.Note("file removed by another program");
        world_.files.Take(editor_.path);
        break;
    default:
        chance_.Note("file written by another program");
        editor_.putFile(world_);
        fileIsOthers_ = false;
    }
}

void MonkeySession::MakeTrouble() {
    isInTrouble_ = true;
    switch (chance_.Below(5)) {
    case 0: {
        constexpr int kOperations = 60;
        const auto operation = static_cast<std::size_t>(chance_.Below(kOperations)) + 1;
        chance_.Note("operation " + std::to_string(operation) + " will fail");
        world_.files.Operations().Plan(
            {.operation = operation,
             .lasting = chance_.OneIn(2),
             .cutShort = chance_.OneIn(2),
             .error = chance_.OneIn(2) ? FileError::Other : FileError::AccessDenied});
        break;
    }
    case 1:
        chance_.Note("folder is read-only");
        world_.files.SetFolderReadOnly(R"(C:\SYS)");
        break;
    case 2:
        chance_.Note("file is held open");
        world_.files.SetHeldOpen(editor_.path);
        break;
    case 3:
        chance_.Note("somebody else is saving");
        world_.files.SetFolderLocked(R"(C:\SYS)", true);
        break;
    default:
        chance_.Note("nothing can be noted or recycled");
        world_.recycleBin.SetResult(1);
        world_.journals.fault = [](std::string_view) { return FileError::Other; };
    }
}

void MonkeySession::EndTrouble() {
    chance_.Note("no trouble");
    isInTrouble_ = false;
    world_.files.Operations().Plan({});
    world_.files.SetFolderReadOnly(R"(C:\SYS)", false);
    world_.files.SetHeldOpen(editor_.path, false);
    world_.files.SetFolderLocked(R"(C:\SYS)", false);
    world_.recycleBin.SetResult(0);
    world_.journals.fault = [](std::string_view) { return FileError::None; };
}

void MonkeySession::PassTime() {
    constexpr int kMostHours = 100;
    const auto now = world_.system.Now() + std::chrono::hours(chance_.Below(kMostHours));
    world_.system.SetNow(now);
    world_.system.SetToday(std::chrono::floor<std::chrono::days>(now));
    chance_.Note("time passes");
}

void MonkeySession::BreakOff() {
    chance_.Note("the program breaks off");
    program_->window.ending.Raise();
    Start();
}

void MonkeySession::Fail(const RuntimeError& error) {
    NoteError(error);
    program_->window.ending.Raise();
    Start();
}

/// Nothing but the disk, other programs and single quotes in users may raise one.
void MonkeySession::NoteError(const RuntimeError& error) {
    const auto text = std::to_string(error.Number()) + ": " + error.Description();
    chance_.Note("run-time error " + text);
    ++counts_.errors[error.Number()];
    // The temporary table of a save that failed stands in the way of the next one.
    const bool isInTheWay = error.Number() == dbase::kTableExists;
    EXPECT_TRUE(isInTrouble_ || fileIsOthers_ || isInTheWay || IsOfQuotes(error, Steps().Copy()))
        << "run-time error " << text;
    fileIsOthers_ = true; // whoever broke off may have left a file that is not whole, or a temporary one
}

void MonkeySession::Start() {
    while (!TryToStart()) {
        // Whoever cannot start it any more calls somebody who puts things right.
        EndTrouble();
        editor_.putFile(world_);
        fileIsOthers_ = false;
    }
}

bool MonkeySession::TryToStart() {
    ++counts_.starts;
    screen_.reset();
    program_.reset();
    isClosed_ = false;
    world_.system.SetCommandLine(editor_.argument);
    program_ = std::make_unique<Program>(world_.With(dialogs_));
    program_->window.unloaded.Connect([this] { isClosed_ = true; });
    try {
        if (mMain(*program_) != StartUp::WindowShown) {
            return false;
        }
    } catch (const RuntimeError& error) {
        NoteError(error);
        return false;
    }
    Steps().saved.Connect([this](SaveEnd end) {
        fileIsOthers_ = fileIsOthers_ || end == SaveEnd::Failed;
        if (end == SaveEnd::Whole && !isInTrouble_) {
            ExpectSaved();
        }
    });
    screen_ = std::make_unique<Screen>(program_->form, editor_.menus(program_->form.menu));
    NoteStart();
    return true;
}

/// What was restored can be taken back, too.
void MonkeySession::NoteStart() {
    while (Steps().CanUndo()) {
        Steps().Undo();
    }
    start_ = Steps().Copy();
    while (Steps().CanRedo()) {
        Steps().Redo();
    }
}

/// The file of a save that went well is what a reader takes for the same list.
void MonkeySession::ExpectSaved() {
    ++counts_.saves;
    fileIsOthers_ = false;
    const auto& records = editor_.of(*program_).Records();
    const auto rows = Steps().CopyWithTyping();
    if (rows.Rows() == 0 && !world_.files.Get(editor_.path)) {
        return;
    }
    const auto read = records.Read(FileBytes());
    ASSERT_TRUE(read) << "what was saved is refused";
    if (!IsReadAsWritten(rows)) {
        return;
    }
    EXPECT_EQ(LinesOf(records.Comparable(read->rows)), LinesOf(records.Comparable(rows)))
        << "other rows are read than were saved";
}

void MonkeySession::ExpectSound() {
    EXPECT_EQ(screen_->FirstOutdated(), "");
    EXPECT_EQ(program_->form.menu.mnuUndo.Enabled(), Steps().CanUndo());
    EXPECT_EQ(program_->form.menu.mnuRedo.Enabled(), Steps().CanRedo());
}

/// Of a rule whose condition or zone is in none of the lists the form keeps what it showed, and so no step
/// does: only a damaged file holds one.
bool MonkeySession::ShowsAllOf(const RowTexts& rows) const {
    if (program_->window.EditorInCharge() != &program_->rulesPage) {
        return true;
    }
    constexpr int kCondition = 3;
    const auto& controls = program_->rulesPage.controls;
    const auto holds = [](const ComboBox& list, auto part, std::string_view text) {
        const auto& items = list.Items();
        return std::any_of(items.begin(), items.end(), [&](const auto& item) { return part(item) == text; });
    };
    for (int row = 0; row < rows.Rows(); ++row) {
        if (!holds(controls.cboCondition, ConditionOfItem, rows.Text(row, kCondition)) ||
            !holds(controls.cboZone, ZoneOfItem, rows.Text(row, kCondition + 1))) {
            return false;
        }
    }
    return true;
}

void MonkeySession::GoBackAndForth() {
    Guarded([&] {
        while (Steps().CanRedo()) {
            Steps().Redo();
        }
        const auto last = Steps().CopyWithTyping();
        std::size_t steps = 0;
        while (Steps().CanUndo()) {
            Steps().Undo();
            ++steps;
        }
        ExpectSound();
        EXPECT_EQ(LinesOf(Steps().CopyWithTyping()), LinesOf(start_)) << "taken back";
        while (Steps().CanRedo()) {
            Steps().Redo();
        }
        if (ShowsAllOf(start_) && ShowsAllOf(last)) {
            EXPECT_EQ(LinesOf(Steps().CopyWithTyping()), LinesOf(last)) << "done again";
        }
        ExpectSound();
        counts_.steps += steps;
    });
}

} // namespace zy::test
