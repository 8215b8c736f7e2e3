// A view in its own window, driven by pointer and keys.
#pragma once

#include "support/ShownItems.h"
#include "surfaces/kit/controls/Announcer.h"
#include "surfaces/kit/tokens/Motion.h"

#include <QGuiApplication>
#include <QImage>
#include <QQmlEngine>
#include <QQuickView>
#include <QTest>

#include <gtest/gtest.h>

#include <algorithm>

namespace vantle::tests {

/// Motion is reduced unless set otherwise, so that nothing waits for an animation. Warnings of the
/// view's code fail the test. The view's models must outlive this object.
class ShownView {
public:
    explicit ShownView(bool reduced = true) {
        m_window.engine()->addImportPath(QStringLiteral("qrc:/qt/qml"));
        m_window.setResizeMode(QQuickView::SizeRootObjectToView);
        Motion::of(*m_window.engine())->setReduced(reduced);
        QObject::connect(m_window.engine(), &QQmlEngine::warnings, [](const auto& list) {
            for (const QQmlError& one : list)
                ADD_FAILURE() << one.toString().toStdString();
        });
    }

    /// Opens the window in the view's own or the given size. `file` is a view's name, such as
    /// "Notes/NotesLogView".
    QQuickItem& show(const char* file, const QVariantMap& properties, QSize size = {}) {
        m_window.setInitialProperties(properties);
        m_window.setSource(
            QUrl(QStringLiteral("qrc:/qt/qml/Vantle/%1.qml").arg(QLatin1String(file))));
        if (size.isEmpty()) size = m_window.initialSize();
        m_window.resize(size);
        m_window.show();
        m_window.requestActivate();
        settle();
        return *m_window.rootObject();
    }

    /// Delivers posted events and lays out the view as its next frame would.
    void settle() {
        for (int i = 0; i < 3; ++i)
            QCoreApplication::processEvents();
        (void)m_window.grabWindow();
    }

    [[nodiscard]] QQuickView& window() { return m_window; }
    [[nodiscard]] QImage picture() { return m_window.grabWindow(); }
    [[nodiscard]] bool shows(const QString& words) const { return showsText(m_window, words); }
    [[nodiscard]] QQuickItem* control(const QString& name) const {
        return shownControl(m_window, name);
    }
    /// Returns the text field of that name.
    [[nodiscard]] QQuickItem* field(const QString& name) const {
        return shownItem(m_window.contentItem(), [&](const QQuickItem& item) {
            return item.property("name").toString() == name && item.property("input").isValid();
        });
    }
    [[nodiscard]] QRectF frameOf(const QQuickItem& item) const {
        return item.mapRectToScene({0, 0, item.width(), item.height()});
    }

    /// Returns the texts that are partly invisible: cut, or beyond the window's edge.
    [[nodiscard]] QStringList cutTexts() const {
        QStringList cut;
        (void)shownItem(m_window.contentItem(), [&](const QQuickItem& item) {
            const QString words = item.property("text").toString();
            if (words.isEmpty() || item.opacity() == 0) return false;
            const QRectF frame = frameOf(item);
            const bool leaves = frame.left() < 0 || frame.right() > m_window.width();
            if (leaves || item.property("truncated").toBool()) cut << words;
            return false;
        });
        return cut;
    }

    /// Returns pairs of overlapping texts: "one / other".
    [[nodiscard]] QStringList overlappingTexts() const {
        constexpr double kTouch = 2; // lines are as close as their glyphs allow
        QList<std::pair<QString, QRectF>> texts;
        (void)shownItem(m_window.contentItem(), [&](const QQuickItem& item) {
            const QString words = item.property("text").toString();
            if (!words.isEmpty() && item.opacity() > 0 && item.childItems().isEmpty())
                texts.append({words, frameOf(item)});
            return false;
        });
        QStringList overlapping;
        for (qsizetype i = 0; i < texts.size(); ++i)
            for (qsizetype k = i + 1; k < texts.size(); ++k) {
                const QRectF common = texts[i].second & texts[k].second;
                if (common.width() > kTouch && common.height() > kTouch)
                    overlapping << texts[i].first + QStringLiteral(" / ") + texts[k].first;
            }
        return overlapping;
    }

    void moveTo(QPointF place) {
        QTest::mouseMove(&m_window, place.toPoint());
        settle();
    }
    /// Fails the test when the position is outside the window.
    void clickAt(QPointF place, Qt::MouseButton button = Qt::LeftButton) {
        ASSERT_TRUE(QRectF(QPointF(), m_window.size()).contains(place))
            << place.x() << ", " << place.y();
        QTest::mouseMove(&m_window, place.toPoint());
        QTest::mouseClick(&m_window, button, {}, place.toPoint());
        settle();
    }
    /// Scrolls to the item and clicks its centre.
    void click(QQuickItem* item, Qt::MouseButton button = Qt::LeftButton) {
        ASSERT_NE(item, nullptr);
        bringIntoSight(*item);
        clickAt(frameOf(*item).center(), button);
    }
    void click(const QString& name, Qt::MouseButton button = Qt::LeftButton) {
        QQuickItem* const item = control(name);
        ASSERT_NE(item, nullptr) << name.toStdString();
        click(item, button);
    }

    /// Scrolls the view around the item by `way` px, clamped to its content.
    void scroll(const QQuickItem& inside, double way) {
        QQuickItem* above = inside.parentItem();
        while (above != nullptr && !above->inherits("QQuickFlickable"))
            above = above->parentItem();
        ASSERT_NE(above, nullptr);
        const double start = above->property("originY").toDouble();
        const double room = above->property("contentHeight").toDouble() - above->height();
        const double goal = above->property("contentY").toDouble() + way;
        above->setProperty("contentY", std::clamp(goal, start, start + std::max(room, 0.0)));
        settle();
    }
    void bringIntoSight(const QQuickItem& item) {
        constexpr double kMargin = 24; // faded edges do not count as visible
        for (QQuickItem* above = item.parentItem(); above; above = above->parentItem()) {
            if (!above->inherits("QQuickFlickable")) continue;
            const QRectF place = item.mapRectToItem(above, {0, 0, item.width(), item.height()});
            if (place.top() < 0)
                scroll(item, place.top() - kMargin);
            else if (place.bottom() > above->height())
                scroll(item, place.bottom() - above->height() + kMargin);
        }
    }

    void press(int key, Qt::KeyboardModifiers modifiers = {}) {
        QTest::keyClick(&m_window, static_cast<Qt::Key>(key), modifiers);
        settle();
    }
    void type(const QString& text) {
        for (const QChar letter : text)
            QTest::keyClick(&m_window, letter.toLatin1());
        settle();
    }
    /// Returns the last message of each announcer in the view.
    [[nodiscard]] QStringList announced() const {
        QStringList said;
        QList<QQuickItem*> items{m_window.contentItem()};
        while (!items.isEmpty()) { // items of a Repeater or Loader are no QObject children
            const QQuickItem* const item = items.takeLast();
            for (const Announcer* one :
                 item->findChildren<Announcer*>(QString(), Qt::FindDirectChildrenOnly))
                said << one->text();
            items += item->childItems();
        }
        return said;
    }
    /// Returns the focused item; null when there is none.
    [[nodiscard]] QQuickItem* keyboardOwner() const { return m_window.activeFocusItem(); }

private:
    QQuickView m_window;
};

} // namespace vantle::tests
