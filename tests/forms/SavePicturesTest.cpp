#include "RulesForm.h"
#include "support/FailingOperations.h"

namespace zy::test {
namespace {

using ::testing::AnyOf;
using ::testing::EndsWith;
using ::testing::HasSubstr;
using ::testing::StartsWith;

constexpr auto kPictures = R"(C:\DOCS\My rules.svg)";
constexpr auto kBeside = R"(C:\DOCS\My rules.svg.tmp)";

/// The pictures of the rules on their way to a file.
class SavePictures : public RulesForm {
  protected:
    SavePictures() { world.files.AddFolder(R"(C:\DOCS)"); }

    void Save(MenuItem& entry, std::optional<std::string> path) {
        world.dialogs.ExpectFileToWrite("Save Pictures", "Rules.svg", std::move(path));
        entry.Click();
    }
    void Save() { Save(window().menu.mnuSavePictures, kPictures); }
    std::string Pictures() { return world.files.Get(kPictures).value_or("none"); }
};

TEST_F(SavePictures, WritesAllRulesWithTheirPictures) {
    StartWithCodes({"A", "B"});
    Save();
    EXPECT_THAT(Pictures(), StartsWith("<?xml"));
    EXPECT_THAT(Pictures(), EndsWith("</svg>\n"));
    EXPECT_THAT(Pictures(), HasSubstr(">A: text</text>"));
    EXPECT_THAT(Pictures(), HasSubstr(">B: text</text>"));
    EXPECT_THAT(Pictures(), HasSubstr(">1 of 2 points in a row above the upper control limit (UCL)</text>"));
    EXPECT_EQ(Status(), "2 rules   -   My rules.svg saved");
    EXPECT_EQ(world.files.Get(kBeside), std::nullopt);
}

TEST_F(SavePictures, IsNoSaveOfTheRules) {
    StartWithCodes({"A"});
    page().txtMax.Enter("7");
    const auto before = File();
    Save();
    EXPECT_EQ(File(), before);
    EXPECT_EQ(form().ChangeFlag, true);
    EXPECT_THAT(Pictures(), HasSubstr(">1 of 2 points")) << "what is typed is not in the list yet";
}

TEST_F(SavePictures, IsOfferedByTheMenuOfTheListToo) {
    StartWithCodes({"A"});
    Save(window().menu.mnuSavePicturesOfList, kPictures);
    EXPECT_THAT(Pictures(), EndsWith("</svg>\n"));
}

TEST_F(SavePictures, WritesNothingWhenTheUserThinksBetterOfIt) {
    StartWithCodes({"A"});
    Save(window().menu.mnuSavePictures, std::nullopt);
    EXPECT_EQ(Pictures(), "none");
    EXPECT_EQ(Status(), "1 rule");
}

TEST_F(SavePictures, ReplacesAnEarlierFile) {
    StartWithCodes({"A"});
    world.files.Put(kPictures, "old");
    Save();
    EXPECT_THAT(Pictures(), EndsWith("</svg>\n"));
}

TEST_F(SavePictures, LeavesAnotherFileBesideAlone) {
    StartWithCodes({"A"});
    world.files.Put(kBeside, "somebody's");
    Save();
    EXPECT_EQ(world.files.Get(kBeside), "somebody's");
    EXPECT_EQ(Pictures(), "none");
    EXPECT_EQ(
        Status(),
        "1 rule   -   Not saved, My rules.svg.tmp could not be created: a file of that name is in the way");
}

TEST_F(SavePictures, LosesNeitherTheEarlierPicturesNorTheNewOnesWhateverFails) {
    StartWithCodes({"A"});
    Save();
    const auto fresh = Pictures();
    std::size_t failed = 0;
    for (FaultPlan plan{.operation = 1};; ++plan.operation) {
        for (const auto* path : {kPictures, kBeside}) {
            world.files.Plan({});
            static_cast<void>(world.files.Take(path));
        }
        world.files.Put(kPictures, "old");
        world.files.Plan(plan);
        Save();
        if (world.files.Operations().Faults() == 0) {
            break;
        }
        SCOPED_TRACE(FirstFailure(world.files.Operations()));
        ++failed;
        const bool besideIsWhole = world.files.Get(kBeside) == fresh;
        EXPECT_TRUE(Pictures() == "old" || Pictures() == fresh || besideIsWhole) << Pictures();
        if (Pictures() != fresh) {
            EXPECT_THAT(Status(),
                        AnyOf(HasSubstr("Not saved, "), HasSubstr("The pictures stand in My rules.svg.tmp")));
        }
    }
    EXPECT_GE(failed, 6U);
    EXPECT_EQ(Pictures(), fresh);
}

TEST_F(SavePictures, WritesPointsToAFileWhoseNameEndsInPngInWhateverCase) {
    StartWithCodes({"A"});
    for (const auto* path : {R"(C:\DOCS\My rules.png)", R"(C:\DOCS\RULES.PNG)", R"(C:\DOCS\.png)"}) {
        Save(window().menu.mnuSavePictures, path);
        EXPECT_THAT(world.files.Get(path).value_or("none"), StartsWith("\x89PNG\nA: text\n")) << path;
    }
    EXPECT_EQ(Status(), "1 rule   -   .png saved");
    Save(window().menu.mnuSavePictures, R"(C:\DOCS\png)");
    EXPECT_THAT(world.files.Get(R"(C:\DOCS\png)").value_or("none"), StartsWith("<?xml"));
}

TEST_F(SavePictures, SaysSoWhenTheListIsTooLongForPoints) {
    StartWithCodes({"A"});
    world.paper.isTooLarge = true;
    world.files.Put(R"(C:\DOCS\old.png)", "old");
    Save(window().menu.mnuSavePictures, R"(C:\DOCS\old.png)");
    EXPECT_EQ(Status(), "1 rule   -   Not saved, so many rules are too many for a PNG file");
    EXPECT_EQ(world.files.Get(R"(C:\DOCS\old.png)"), "old");
}

TEST_F(SavePictures, IsNoEntryOfTheOtherEditors) {
    ASSERT_EQ(Start("@UNITS"), StartUp::WindowShown);
    EXPECT_FALSE(window().menu.mnuSavePictures.Enabled());
    window().menu.mnuSavePictures.Click();
}

} // namespace
} // namespace zy::test
