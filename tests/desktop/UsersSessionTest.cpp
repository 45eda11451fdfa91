#include "NativeLook.h"
#include "UsersWindow.h"

namespace zy::test {
namespace {

using ::testing::Optional;

constexpr auto kSure = "Are you sure you wish to delete this User?";
constexpr auto kConfirm = "Confirm Delete";

class UsersSession : public UsersWindow {
  protected:
    UsersSession() { PutUsers(TwoUsers()); }

    /// Puts other users on the disk.
    void StartWith(const Users& users) {
        world.files.Take(R"(C:\SYS\ZYSECURE.DBF)");
        if (!users.empty()) {
            PutUsers(users);
        }
    }
    static std::vector<std::string> NamesOf(const std::optional<Users>& users) {
        std::vector<std::string> names;
        for (const auto& user : users.value_or(Users())) {
            names.push_back(user.USERID);
        }
        return names;
    }
};

TEST_F(UsersSession, AUserIsAddedFilledInAndSaved) {
    EXPECT_EQ(Play([&] {
                  Click(page().cmdAddUser);
                  WaitForText(3, kUserName, "NewUser");
                  Fill(3, kUserName, "Cy");
                  Fill(3, kPassword, "pass word");
                  Fill(3, kExpiryDate, "31-12-24");
                  Fill(3, kIdentification, "Third");
                  Click(page().cmdSaveUsers);
                  WaitForStatus("Saved");
                  EXPECT_FALSE(IsEnabled(page().cmdSaveUsers));
              }),
              0);
    auto expected = TwoUsers();
    expected.push_back({.USERID = "Cy",
                        .PASSWORD = "pass word",
                        .IDENTIFIER = "Third",
                        .EXPDATE = "31-12-24",
                        .STATUS = "A"});
    EXPECT_THAT(Table(), Optional(expected));
}

TEST_F(UsersSession, AStatusIsPickedFromTheDropDownList) {
    Play([&] {
        ClickCell(2, kStatus);
        Press(WXK_F2);
        WaitForEditor("A");
        ClickCellButton();
        Press(WXK_DOWN);
        Press(WXK_DOWN);
        Press(WXK_RETURN);
        WaitForText(2, kStatus, "I");
        WaitForNoEditor();
        Press('S', wxMOD_CONTROL);
        WaitForStatus("Saved");
    });
    ASSERT_TRUE(Table());
    EXPECT_EQ(Table()->at(1).STATUS, "I");
    EXPECT_EQ(Table()->at(0).STATUS, "A");
}

TEST_F(UsersSession, ARefusedUserIsToldAndNothingIsWritten) {
    const auto before = Table();
    Play([&] {
        Fill(2, kUserName, "ANN");
        Click(page().cmdSaveUsers);
        ExpectBox("Invalid User Name. User Name must be unique.", "ZY Setup");
        PressInBox(WXK_RETURN);
        WaitForCell(2, kUserName);
        EXPECT_TRUE(IsEnabled(page().cmdSaveUsers));
    });
    EXPECT_EQ(Table(), before);
}

TEST_F(UsersSession, DeletingAsksAndNoKeepsTheUser) {
    Play([&] {
        ClickCell(2, kUserName);
        Click(page().cmdDeleteUser);
        ExpectBox(kSure, kConfirm);
        ClickInBox(wxID_NO);
        EXPECT_EQ(Shown(2, kUserName), "Bob");
        EXPECT_FALSE(IsEnabled(page().cmdSaveUsers));
    });
}

TEST_F(UsersSession, TheLastUsersDeletionRemovesTheTable) {
    Play([&] {
        ClickCell(1, kUserName);
        Click(page().cmdDeleteUser);
        ExpectBox(kSure, kConfirm);
        ClickInBox(wxID_YES);
        WaitForText(1, kUserName, "Bob");
        WaitForCell(1, kUserName);
        Press('D', wxMOD_ALT);
        ExpectBox(kSure, kConfirm);
        PressInBox(WXK_RETURN);
        WaitUntil("there is no user", [&] { return grid().cells.Rows() == 1; });
        EXPECT_FALSE(IsEnabled(page().cmdDeleteUser));
        Click(page().cmdSaveUsers);
        WaitForStatus("Saved");
    });
    EXPECT_EQ(Table(), std::nullopt);
}

TEST_F(UsersSession, TheContextMenuAddsAUser) {
    Play([&] {
        OpenMenuAt(PlaceOfCell(1, kUserName));
        ChooseFromMenu(WXK_DOWN);
        WaitForText(3, kUserName, "NewUser");
        EXPECT_FALSE(IsEnabled(page().cmdSaveUsers));
    });
}

TEST_F(UsersSession, TheContextMenuDeletesTheUserUnderTheMouseAtOnce) {
    Play([&] {
        ClickCell(2, kStatus);
        OpenMenuAt(PlaceOfCell(1, kPassword));
        WaitForCell(1, kStatus); // the row alone follows the mouse
        ChooseFromMenu(WXK_UP);
        WaitForText(1, kUserName, "Bob");
        EXPECT_EQ(InWindow([&] { return grid().cells.Rows(); }), 2);
    });
    EXPECT_TRUE(boxes.Seen().empty());
}

TEST_F(UsersSession, OnTheHeaderTheContextMenuDeletesNobody) {
    Play([&] {
        ClickCell(1, kUserName);
        OpenMenuAt(PlaceOfHeader());
        EXPECT_FALSE(InWindow([&] { return program->window.menu.mnuDeleteUser.Enabled(); }));
        ChooseAboveDisabledEntry();
        WaitForText(3, kUserName, "NewUser");
        EXPECT_EQ(Shown(1, kUserName), "Ann");
    });
}

TEST_F(UsersSession, ClosingAsksAndYesSaves) {
    Play([&] {
        Fill(2, kUserName, "Bert");
        CloseWindow();
        ExpectBox("Do you Wish to Save your Changes?", "Save Changes?");
        Press(WXK_RETURN);
    });
    EXPECT_EQ(NamesOf(Table()), (std::vector<std::string>{"Ann", "Bert"}));
}

TEST_F(UsersSession, ShiftTabAtTheFirstCellGoesToTheHelpButton) {
    Play([&] {
        ClickCell(1, kPassword);
        Press(WXK_TAB, wxMOD_SHIFT);
        WaitForCell(1, kUserName);
        Press(WXK_TAB, wxMOD_SHIFT);
        WaitForFocus(page().cmdHelpSecurity);
        WaitForCell(2, kIdentification);
    });
}

TEST_F(UsersSession, AClickWithShiftStretchesTheBlock) {
    Play([&] {
        ClickCell(1, kUserName);
        hands->ClickWith(WXK_SHIFT, PlaceOfCell(2, kStatus));
        WaitUntil("the block is stretched", [&] { return grid().selection.BlockEnd() == Cell{2, kStatus}; });
        WaitForCell(1, kUserName);
    });
}

TEST_F(UsersSession, DeletingTheLastUserMakesTheFirstCurrentAndLeavesTheKeyboardOnTheButton) {
    StartWith({User("Ann"), User("Bob"), User("Cy")});
    Play([&] {
        ClickCell(3, kStatus);
        Click(page().cmdDeleteUser);
        ExpectBox(kSure, kConfirm);
        PressInBox(WXK_RETURN);
        WaitUntil("the user is gone", [&] { return grid().cells.Rows() == 3; });
        Press(WXK_SPACE); // presses the button once more
        ExpectBox(kSure, kConfirm);
        PressInBox(WXK_RETURN);
        WaitForText(1, kUserName, "Bob");
        WaitForCell(1, kStatus);
        WaitForFocus(page().cmdDeleteUser);
    });
}

TEST_F(UsersSession, BesideTheRowsTheContextMenuAddsAndDeletesNobody) {
    Play([&] {
        ClickCell(1, kStatus);
        OpenMenuAt(PlaceOf(grid()));
        EXPECT_FALSE(InWindow([&] { return program->window.menu.mnuDeleteUser.Enabled(); }));
        ChooseAboveDisabledEntry();
        WaitForText(3, kUserName, "NewUser");
        EXPECT_EQ(Shown(1, kUserName), "Ann");
    });
}

TEST_F(UsersSession, TheContextMenuOpensInAnEmptyGridToo) {
    StartWith({});
    Play([&] {
        OpenMenuAt(PlaceOf(grid()));
        EXPECT_FALSE(InWindow([&] { return program->window.menu.mnuDeleteUser.Enabled(); }));
        ChooseAboveDisabledEntry();
        WaitForText(1, kUserName, "NewUser");
    });
}

TEST_F(UsersSession, ShiftF10OpensTheContextMenuOfTheCurrentRow) {
    Play([&] {
        ClickCell(2, kStatus);
        Press(WXK_F10, wxMOD_SHIFT);
        WaitForMenu();
        ChooseFromMenu(WXK_UP);
        WaitUntil("the user is gone", [&] { return grid().cells.Rows() == 2; });
        EXPECT_EQ(Shown(1, kUserName), "Ann");
    });
}

TEST_F(UsersSession, TheMenuKeyOpensTheContextMenuOfTheCurrentRow) {
    Play([&] {
        ClickCell(2, kStatus);
        PressMenuKey();
        WaitForMenu();
        ChooseFromMenu(WXK_UP);
        WaitUntil("the user is gone", [&] { return grid().cells.Rows() == 2; });
        EXPECT_EQ(Shown(1, kUserName), "Ann");
    });
}

TEST_F(UsersSession, AnOpenExpiryDateShowsTheWholeDate) {
    auto users = TwoUsers();
    users[0].EXPDATE = "30-12-31";
    StartWith(users);
    Play([&] {
        InWindow([&] {
            desktop.Gate().Act([&] { grid().columns.SetWidth(kExpiryDate, GridColumns::kDesignedWidth); });
        });
        OpenEditor(1, kExpiryDate);
        EXPECT_TRUE(InWindow([&] { return ShowsWholeText(RealEditor()); }));
    });
}

TEST_F(UsersSession, AClickOnTheGreySaveButtonCommitsAnOpenEditWhichTurnsTheButtonOn) {
    Play([&] {
        ClickCell(2, kUserName);
        Type("Bert");
        WaitForEditor("Bert");
        ASSERT_FALSE(IsEnabled(page().cmdSaveUsers));
        Click(page().cmdSaveUsers);
        WaitForNoEditor();
        EXPECT_TRUE(IsEnabled(page().cmdSaveUsers));
        EXPECT_EQ(Shown(2, kUserName), "Bert");
    });
}

TEST_F(UsersSession, AltSSavesAnOpenEditAlsoWhereTheSaveButtonIsGrey) {
    Play([&] {
        ClickCell(2, kUserName);
        Type("Bert");
        WaitForEditor("Bert");
        Press('S', wxMOD_ALT);
        WaitForStatus("Saved");
    });
    EXPECT_EQ(NamesOf(Table()), (std::vector<std::string>{"Ann", "Bert"}));
}

} // namespace
} // namespace zy::test
