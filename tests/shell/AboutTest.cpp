#include "shell/frmAbout.h"

#include "shell/Maker.h"
#include "support/WorldTest.h"

namespace zy::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

/// The About box of a program of this title and version.
class AboutTest : public WorldTest {
  protected:
    static Application Named(const std::string& title) {
        return {.title = title, .majorVersion = 3, .minorVersion = 20, .revision = 107};
    }

    AboutTest() { world.traceServers.SetRunning(true); }

    frmAbout& Loaded(const std::string& title = "ZY Setup") {
        box_ = std::make_unique<frmAbout>(Named(title), trace, world.links);
        box_->Form_Load();
        box_->SetVisible(true);
        return *box_;
    }

    TraceChannel trace{world.traceServers, "zyGlobal"};

  private:
    std::unique_ptr<frmAbout> box_;
};

TEST_F(AboutTest, ShowsTitleAndVersionInPlainDecimals) {
    auto& box = Loaded();
    EXPECT_EQ(box.lblAppTitle.Caption(), "ZY Setup");
    EXPECT_EQ(box.lblVersion.Caption(), "3.20 Build 107");
}

TEST_F(AboutTest, ShowsTheMakersContactLinesWithTheBlankBehindTheName) {
    EXPECT_EQ(Loaded().lblCompanyInfo.Caption(),
              "Norvale \r\nNorvale House, 14 Foundry Lane\r\nMarlbrook MB4 7QC\r\nUnited Kingdom\r\n"
              "Tel: +44 1632 960140\r\nFax: +44 1632 960141");
}

TEST_F(AboutTest, ShowsWebSiteAndMailAddressAsLinks) {
    auto& box = Loaded();
    EXPECT_EQ(box.lblWebsite.Caption(), "http://www.norvale.example");
    EXPECT_EQ(box.lblEmail.Caption(), "support@norvale.example");
}

TEST_F(AboutTest, OpensTheWebSiteHiddenAndWithoutAnOwner) {
    Loaded().lblWebsite.Click();
    EXPECT_THAT(world.links.Requests(), ElementsAre(LinkRequest{.owner = LinkOwner::None,
                                                                .verb = "OPEN",
                                                                .target = "http://www.norvale.example",
                                                                .showCommand = 0}));
    EXPECT_THAT(Traces(), ElementsAre("frmAbout Form_Load Start", "frmAbout lblWebsite_Click Start"));
}

TEST_F(AboutTest, OpensAMailToSupportWithTheTitleAsItsSubjectAndAnEmptyBody) {
    Loaded().lblEmail.Click();
    EXPECT_THAT(world.links.Requests(),
                ElementsAre(LinkRequest{.owner = LinkOwner::None,
                                        .verb = "OPEN",
                                        .target = "mailto:support@norvale.example?Subject=ZY Setup&Body=",
                                        .showCommand = 0}));
    EXPECT_THAT(Traces(), ElementsAre("frmAbout Form_Load Start", "frmAbout lblEmail_Click Start"));
}

TEST_F(AboutTest, PutsATitleWithBlanksAndAmpersandsIntoTheMailLinkAsItIs) {
    Loaded("Setup & More 100%").lblEmail.Click();
    EXPECT_EQ(world.links.Requests().front().target,
              "mailto:support@norvale.example?Subject=Setup & More 100%&Body=");
}

TEST_F(AboutTest, StaysOpenAndSilentWhenALinkDoesNotOpen) {
    world.links.SetHasPrograms(false);
    auto& box = Loaded();
    box.lblWebsite.Click();
    box.lblEmail.Click();
    EXPECT_TRUE(box.Visible());
    EXPECT_THAT(world.dialogs.Shown(), IsEmpty());
}

TEST_F(AboutTest, ClosesByItsButtonAndByEnterAndEscape) {
    auto& box = Loaded();
    EXPECT_EQ(box.OnEnter(), &box.cmdOk);
    EXPECT_EQ(box.OnEscape(), &box.cmdOk);
    EXPECT_EQ(box.Focused(), &box.cmdOk);
    box.cmdOk.Click();
    EXPECT_FALSE(box.Visible());
    EXPECT_THAT(Traces(), ElementsAre("frmAbout Form_Load Start", "frmAbout cmdOk_Click Start"));
}

TEST_F(AboutTest, LaysOutItsPartsWithoutOverlapWhateverTheTextsNeed) {
    for (const int scale : {1, 3}) {
        auto& box = Loaded();
        for (Control* label :
             {static_cast<Control*>(&box.lblAppTitle), static_cast<Control*>(&box.lblVersion),
              static_cast<Control*>(&box.lblCompanyInfo), static_cast<Control*>(&box.lblWebsite),
              static_cast<Control*>(&box.lblEmail), static_cast<Control*>(&box.cmdOk)}) {
            label->SetPreferred({2000 * scale, 300 * scale});
        }
        box.SetInnerSize({});
        const auto& size = box.Bounds();
        for (const auto* one : box.Children()) {
            const auto& place = one->Bounds();
            EXPECT_GT(place.width, 0) << one->Name();
            EXPECT_GT(place.height, 0) << one->Name();
            EXPECT_GE(place.left, 0) << one->Name();
            EXPECT_LE(place.Right(), size.width) << one->Name();
            EXPECT_LE(place.Bottom(), size.height) << one->Name();
            for (const auto* other : box.Children()) {
                const auto& otherPlace = other->Bounds();
                EXPECT_TRUE(one == other || place.Right() <= otherPlace.left ||
                            otherPlace.Right() <= place.left || place.Bottom() <= otherPlace.top ||
                            otherPlace.Bottom() <= place.top)
                    << one->Name() << " and " << other->Name();
            }
        }
    }
}

TEST(ApplicationTest, IsTheOneThatWasBuilt) {
    const auto application = ThisApplication();
    EXPECT_EQ(application.title, "ZY Setup");
    EXPECT_GE(application.majorVersion, 1);
}

} // namespace
} // namespace zy::test
