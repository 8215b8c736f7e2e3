#include "gallery/PseudoLocale.h"

#include <QRegularExpression>

#include <string_view>

namespace vantle {

namespace {

constexpr std::u16string_view kPlain = u"ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz";
constexpr std::u16string_view kAccented = u"ÀƁÇÐÉƑĜĤÎĴĶĹṀÑÖÞǪŔŠŢÛṼŴẊÝŽàƀçðéƒĝĥîĵķĺṁñöþǫŕšţûṽŵẋýž";
/// What makes a text longer, cut to the length: words, so that lines break as they would.
constexpr std::u16string_view kMore = u" öñé ţŵö ţĥŕéé ƒöûŕ ƒîṽé šîẋ šéṽéñ éîĝĥţ ñîñé ţéñ";

QString accented(QString text) {
    for (QChar& letter : text) {
        const auto place = kPlain.find(letter.unicode());
        if (place != std::u16string_view::npos) letter = QChar(kAccented[place]);
    }
    return text;
}

QString more(qsizetype length) {
    const auto words = QString::fromUtf16(kMore.data(), static_cast<qsizetype>(kMore.size()));
    QString padding;
    while (padding.size() < length)
        padding += words;
    return padding.left(length);
}

} // namespace

QString PseudoLocale::text(const QString& source) {
    if (source.isEmpty()) return {};
    static const QRegularExpression placeholder(QStringLiteral("%\\d|%n|\\{\\w+\\}"));
    QString made = QStringLiteral("[");
    qsizetype from = 0;
    for (auto found = placeholder.globalMatch(source); found.hasNext();) {
        const auto match = found.next();
        made += accented(source.mid(from, match.capturedStart() - from)) + match.captured();
        from = match.capturedEnd();
    }
    return made + accented(source.mid(from)) + more(source.size() / 3) + QLatin1Char(']');
}

QString PseudoLocale::translate(const char* /*context*/, const char* source, const char* comment,
                                int /*count*/) const {
    // Not the forms of dates and numbers, which stand for figures.
    const std::string_view about = comment ? comment : "";
    if (about == "date pattern" || about == "decimal mark") return {};
    return text(QString::fromUtf8(source));
}

} // namespace vantle
