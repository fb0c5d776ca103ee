// The whole window in every state, on a screen of the size that the environment names: pictures are kept to
// be looked through, nothing is cut off, everything can be read, and a few pictures are compared with fixed
// ones.
#include "tests/desktop/Legible.h"
#include "tests/desktop/screens/FixedPicture.h"
#include "tests/desktop/screens/Scenes.h"

#include <gmock/gmock.h>

#include <QDir>

namespace mirelle::test {
namespace {

QString FolderOfPictures() {
    return QDir(qEnvironmentVariable("MIRELLE_SCREENS_FOLDER", "screens")).absolutePath();
}

class Screens : public testing::TestWithParam<Scene> {
protected:
    static void SetUpTestSuite() { QDir().mkpath(FolderOfPictures()); }

    void SetUp() override {
        GetParam().arrange(stage);
        stage.Settle();
        window = GetParam().window ? GetParam().window(stage) : &stage.Window();
        shot = window->grab().toImage();
        stage.Window().ShowPause(0); // no animation while the rest is looked at
    }
    QString PictureFile() const { return FolderOfPictures() + "/" + GetParam().name + ".png"; }

    Stage stage;
    QWidget* window = nullptr;
    QImage shot;
};

TEST_P(Screens, IsWholeAndCanBeReadAndLooksAsItIsMeantTo) {
    EXPECT_TRUE(shot.save(PictureFile(), "PNG", 60)) << PictureFile().toStdString();
    EXPECT_THAT(CutOffControls(*window), testing::IsEmpty());
    EXPECT_THAT(CutOffTexts(*window, GetParam().longTexts ? Texts::AlsoLongOnes : Texts::OfTheProgram),
                testing::IsEmpty());
    EXPECT_THAT(FaintInks(*window), testing::IsEmpty());
    const FixedPicture fixed(GetParam().name);
    if (fixed.IsFor(*window)) {
        EXPECT_EQ(fixed.FaultsIn(shot), "") << "see " << PictureFile().toStdString();
    }
}

INSTANTIATE_TEST_SUITE_P(Window, Screens, testing::ValuesIn(Scenes().begin(), Scenes().end()),
                         [](const auto& scene) {
                             std::string name = scene.param.name;
                             std::erase(name, '-');
                             return name;
                         });

} // namespace
} // namespace mirelle::test
