// The card after a session under the user's hands.
#include "ceremony/show/CeremonyFonts.h"
#include "support/ShownItems.h"
#include "support/Text.h"
#include "surfaces/cards/CardViewWorld.h"
#include "surfaces/cards/StopSummaryController.h"

#include <QClipboard>
#include <QDirIterator>
#include <QFile>
#include <QFontDatabase>
#include <QFontInfo>
#include <QFontMetricsF>
#include <QStandardPaths>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace vantle::tests {
namespace {

class StopSummaryViewTest : public testing::Test, protected CardViewWorld {
protected:
    void show(bool spotlightNote = false) {
        collaborators::StopSummary::Content content;
        content.session = session(2280);
        content.carrySeconds = 2280;
        content.spotlightNote = spotlightNote;
        controller.show(content,
                        [this](const std::optional<QString>& note) { closes.push_back(note); });
        time.settle();
        ASSERT_NE(window(), nullptr);
    }
    void clickField() { click(text("Work note")); }
    static QString noteText() { return field()->property("text").toString(); }
    [[nodiscard]] bool hasKeyboard() const { return host.keyboardOwner == window(); }

    StopSummaryController controller{windowEnvironment};
    std::vector<std::optional<QString>> closes;
};

using Closes = std::vector<std::optional<QString>>;

TEST_F(StopSummaryViewTest, TheCardIsAsLargeAsDesignedAndOnlyItFeelsThePointer) {
    show();
    const QRect felt = host.inputRegion.boundingRect().translated(window()->position());
    EXPECT_EQ(felt.topLeft(), QPoint(1440 - 12 - 380, 28 + 10));
    EXPECT_EQ(felt.size(), QSize(380, 263));
}

/// A typeface by the name of the bundled one, as long as this lives: the machine's fixed-width one,
/// whose name happens to have as many letters.
class BundledTypeface {
public:
    BundledTypeface() {
        QFile font(fixedWidthFile());
        QFile copy(m_folder.filePath(QLatin1String(ceremonyfonts::titleResourceName) +
                                     QLatin1String(".ttf")));
        if (!font.open(QIODevice::ReadOnly) || !copy.open(QIODevice::WriteOnly)) return;
        QByteArray bytes = font.readAll();
        const QString own = text("DejaVu Sans Mono");
        const QString wanted = QLatin1String(ceremonyfonts::titlePostScriptName);
        bytes.replace(own.toLatin1(), wanted.toLatin1());
        bytes.replace(wide(own), wide(wanted));
        copy.write(bytes);
        copy.close();
        ceremonyfonts::registerBundledFonts({m_folder.path()});
    }
    ~BundledTypeface() { QFontDatabase::removeAllApplicationFonts(); }

private:
    static QString fixedWidthFile() {
        for (const QString& folder :
             QStandardPaths::standardLocations(QStandardPaths::FontsLocation)) {
            QDirIterator files(folder, {text("DejaVuSansMono.ttf")}, QDir::Files,
                               QDirIterator::Subdirectories);
            if (files.hasNext()) return files.next();
        }
        return {};
    }
    static QByteArray wide(const QString& name) {
        QByteArray bytes;
        for (const QChar letter : name)
            bytes.append('\0').append(letter.toLatin1());
        return bytes;
    }
    QTemporaryDir m_folder;
};

TEST_F(StopSummaryViewTest, DurationIsSetInTheTypefaceOfTheCeremonysTitle) {
    const auto fontOf = [](const QString& words) {
        QQuickItem* const item = shownItem(window()->rootObject(), [&](const QQuickItem& one) {
            return one.property("text").toString() == words;
        });
        return item ? item->property("font").value<QFont>() : QFont();
    };
    show();
    const QFont plain = fontOf(text("38"));
    EXPECT_EQ(plain.pixelSize(), 40);
    EXPECT_EQ(plain.weight(), QFont::DemiBold);
    press(Qt::Key_Escape);

    const BundledTypeface typeface;
    ASSERT_EQ(ceremonyfonts::titleFamily(), QLatin1String(ceremonyfonts::titlePostScriptName));
    show();
    const QFont figure = fontOf(text("38"));
    EXPECT_EQ(QFontInfo(figure).family(), ceremonyfonts::titleFamily());
    EXPECT_EQ(figure.pixelSize(), 40);
    EXPECT_EQ(figure.weight(), QFont::Normal) << "its own weight, not smeared";
    EXPECT_EQ(fontOf(text("min")), figure);
    EXPECT_NE(fontOf(text("Added to your wall")).family(), figure.family());
}

TEST_F(StopSummaryViewTest, TheKeyboardIsAskedForByAClickIntoTheField) {
    show();
    EXPECT_FALSE(hasKeyboard());
    clickField();
    EXPECT_TRUE(hasKeyboard());
    EXPECT_TRUE(field()->hasActiveFocus());
}

TEST_F(StopSummaryViewTest, ReturnSavesTheNoteAndGivesTheKeyboardBack) {
    show();
    clickField();
    type(text("Retries land in order "));
    press(Qt::Key_Return);
    EXPECT_EQ(closes, Closes{text("Retries land in order")});
    EXPECT_EQ(window(), nullptr);
    EXPECT_EQ(host.keyboardOwner, nullptr);
}

TEST_F(StopSummaryViewTest, CardMovesWhenItsScreenGoesAndKeepsWhatIsTyped) {
    show();
    clickField();
    type(text("half"));
    FloatingPanel* const card = window();
    screens.arrange({{.frame = QRectF(0, 0, 800, 600), .available = QRectF(0, 0, 800, 600)}});
    ASSERT_EQ(window(), card);
    const QRect seen = card->inputRegion().boundingRect().translated(card->position());
    EXPECT_EQ(seen.topRight(), QPoint(800 - 12 - 1, 10));
    EXPECT_EQ(noteText(), text("half"));
}

TEST_F(StopSummaryViewTest, CardFollowsACompositorThatGoesAndComes) {
    show();
    const auto seen = [] {
        return window()->inputRegion().boundingRect().translated(window()->position());
    };
    const QRect card = seen();
    ASSERT_GT(window()->width(), card.width()) << "room for the shadow";
    host.setComposited(false);
    EXPECT_EQ(window()->geometry(), card);
    EXPECT_EQ(window()->mask(), QRegion(QRect(QPoint(), card.size())));
    host.setComposited(true);
    EXPECT_EQ(seen(), card);
    EXPECT_GT(window()->width(), card.width());
    EXPECT_TRUE(window()->mask().isEmpty());
}

TEST_F(StopSummaryViewTest, WhereNoInputRegionHoldsTheWindowIsTheCard) {
    host.inputRegions = false;
    show();
    EXPECT_EQ(window()->geometry(), QRect(1048, 38, 380, window()->height()));
    EXPECT_TRUE(host.placedBeforeShow.contains(window()));
    clickField();
    type(text("x"));
    click(text("Save note"));
    EXPECT_EQ(closes, Closes{text("x")});
}

TEST_F(StopSummaryViewTest, EscapeLeavesTheFieldOfANoteAndClosesACardWithout) {
    show();
    clickField();
    type(text("half"));
    press(Qt::Key_Escape);
    EXPECT_FALSE(hasKeyboard());
    ASSERT_NE(window(), nullptr);
    EXPECT_EQ(noteText(), text("half"));
    click(text("Clear note"));
    EXPECT_EQ(noteText(), QString());
    press(Qt::Key_Escape);
    EXPECT_EQ(closes, Closes{std::nullopt});
}

TEST_F(StopSummaryViewTest, OfSixHundredPastedCharactersFiveHundredStay) {
    show();
    clickField();
    QGuiApplication::clipboard()->setText(QString(600, QLatin1Char('a')));
    press(Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(noteText(), QString(500, QLatin1Char('a')));
    press(Qt::Key_Home);
    type(text("b"));
    EXPECT_EQ(noteText().size(), 500);
    EXPECT_EQ(noteText().at(0), QLatin1Char('b'));
}

TEST_F(StopSummaryViewTest, TheButtonTellsWhetherANoteIsSaved) {
    show();
    EXPECT_NE(named(text("Done")), nullptr);
    EXPECT_EQ(named(text("Clear note")), nullptr);
    clickField();
    type(text("x"));
    EXPECT_EQ(named(text("Done")), nullptr);
    click(text("Save note"));
    EXPECT_EQ(closes, Closes{text("x")});
}

TEST_F(StopSummaryViewTest, TheCloseButtonSavesTheNoteToo) {
    show();
    clickField();
    type(text("x"));
    click(text("Close and save note"));
    EXPECT_EQ(closes, Closes{text("x")});
}

TEST_F(StopSummaryViewTest, AClickIntoTheFieldKeepsTheCard) {
    show();
    clickField();
    time.advance(60);
    EXPECT_NE(window(), nullptr);
}

TEST_F(StopSummaryViewTest, TheFirstCardHasTheCursorInTheFieldAndStillGoesByItself) {
    show(true);
    EXPECT_TRUE(hasKeyboard());
    EXPECT_TRUE(field()->hasActiveFocus());
    time.advance(46);
    EXPECT_EQ(closes, Closes{std::nullopt});
}

TEST_F(StopSummaryViewTest, KeyboardThatComesLateDoesNotKeepTheFirstCard) {
    collaborators::StopSummary::Content content;
    content.session = session(2280);
    content.spotlightNote = true;
    controller.show(content,
                    [this](const std::optional<QString>& note) { closes.push_back(note); });
    // The X server gives the keyboard a while after it was asked for.
    QWindow elsewhere;
    elsewhere.show();
    elsewhere.requestActivate();
    ASSERT_TRUE(await([&] { return elsewhere.isActive(); }));
    time.settle();
    EXPECT_FALSE(field()->hasActiveFocus());
    giveKeyboard();
    EXPECT_TRUE(field()->hasActiveFocus());
    time.advance(46);
    EXPECT_EQ(closes, Closes{std::nullopt});
}

TEST_F(StopSummaryViewTest, LetterKeepsTheFirstCard) {
    show(true);
    type(text("x"));
    press(Qt::Key_Backspace);
    time.advance(600);
    EXPECT_NE(window(), nullptr);
}

TEST_F(StopSummaryViewTest, ItFadesAwayAndItsWindowIsGone) {
    show();
    const QPointer<FloatingPanel> shown = window();
    ASSERT_TRUE(await([&] { return shown->rootObject()->property("shown").toDouble() == 1; }));
    click(text("Done"));
    ASSERT_TRUE(shown) << "it fades";
    EXPECT_TRUE(shown->inputRegion().isEmpty()) << "clicks go through it";
    EXPECT_TRUE(await([&] {
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        return shown.isNull();
    }));
}

TEST_F(StopSummaryViewTest, ACardThatGoesBeforeItWasSeenLeavesNoWindow) {
    show();
    const QPointer<FloatingPanel> shown = window();
    show(); // the next session ends at once
    EXPECT_TRUE(await([&] {
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        return shown.isNull();
    }));
    EXPECT_NE(window(), nullptr);
}

TEST_F(StopSummaryViewTest, OnANarrowScreenBothInsetsStay) {
    screens.shapes = {{.frame = QRectF(0, 0, 360, 640), .available = QRectF(0, 0, 360, 640)}};
    show();
    const QRect felt = host.inputRegion.boundingRect().translated(window()->position());
    EXPECT_EQ(felt.x(), 12);
    EXPECT_EQ(felt.width(), 336);
}

TEST_F(StopSummaryViewTest, WithoutACompositorTheCardIsItsWholeWindow) {
    host.composited = false;
    show();
    EXPECT_EQ(window()->geometry(), QRect(1048, 38, 380, 263));
}

} // namespace
} // namespace vantle::tests
