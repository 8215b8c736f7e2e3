// Copying and saving the poster of a review.
#include "surfaces/wrapped/ReviewWorld.h"

#include <gtest/gtest.h>

#include <optional>

namespace vantle {
namespace {

using Saved = WrappedView::Saved;

class WrappedSharingTest : public testing::Test, protected tests::ReviewWorld {};

TEST_F(WrappedSharingTest, CopiedIsSaidForAMoment) {
    logNotes();
    open();
    EXPECT_EQ(view->copyText(), QStringLiteral("Copy image"));
    view->copyImage();
    EXPECT_EQ(copied, QList<QByteArray>{"png"});
    EXPECT_EQ(rendered, QStringLiteral("YOUR WEEK, IN FULL"));
    EXPECT_EQ(view->copyText(), QStringLiteral("Copied"));
    time.advance(1.59);
    EXPECT_TRUE(view->copied());
    time.advance(0.02);
    EXPECT_FALSE(view->copied());
}

TEST_F(WrappedSharingTest, CopyingAgainRestartsTheConfirmation) {
    logNotes();
    open();
    view->copyImage();
    time.advance(1.0);
    view->copyImage();
    time.advance(1.0);
    EXPECT_TRUE(view->copied());
    time.advance(0.7);
    EXPECT_FALSE(view->copied());
}

TEST_F(WrappedSharingTest, PosterThatCannotBeDrawnIsNeitherCopiedNorSaved) {
    logNotes();
    open();
    png.reset();
    view->copyImage();
    EXPECT_EQ(view->shareFeedback(), QStringLiteral("Couldn't render the image"));
    EXPECT_FALSE(view->copied());
    view->saveImage();
    EXPECT_TRUE(copied.isEmpty() && saved.isEmpty());
    png = QByteArray("png");
    view->copyImage();
    EXPECT_TRUE(view->shareFeedback().isEmpty());
}

TEST_F(WrappedSharingTest, SavesUnderTheNameOfThePeriod) {
    logNotes();
    open();
    view->saveImage();
    EXPECT_EQ(suggested, QStringLiteral("wrapped-this-week.png"));
    EXPECT_EQ(saved, QList<QByteArray>{"png"});
    answerSave(Saved::Failed);
    EXPECT_EQ(view->shareFeedback(),
              QStringLiteral("Couldn't save there. Try a different folder."));
    view->saveImage();
    answerSave(Saved::Cancelled);
    EXPECT_FALSE(view->shareFeedback().isEmpty()) << "nothing was tried since";
    view->saveImage();
    answerSave(Saved::Written);
    EXPECT_TRUE(view->shareFeedback().isEmpty());
}

TEST_F(WrappedSharingTest, AnswerOfTheSaveDialogIsNotToldToTheNextWindow) {
    logNotes();
    // The next window's view in the place of the first: an answer that is still led to that place
    // would show there.
    std::optional<WrappedView> inPlace(std::in_place, environment());
    inPlace->saveImage();
    const auto late = answerSave;
    inPlace.reset();
    inPlace.emplace(environment());
    int told = 0;
    QObject::connect(&*inPlace, &WrappedView::shareChanged, [&] { ++told; });
    late(Saved::Failed);
    EXPECT_EQ(inPlace->shareFeedback(), QString());
    EXPECT_EQ(told, 0);
}

TEST_F(WrappedSharingTest, WordsAboutSharingGoWithThePeriod) {
    logNotes();
    open();
    view->copyImage();
    pick(QStringLiteral("Month"));
    EXPECT_FALSE(view->copied());
    png.reset();
    view->copyImage();
    pick(QStringLiteral("Week"));
    EXPECT_TRUE(view->shareFeedback().isEmpty());
}

} // namespace
} // namespace vantle
