// The port of the user's text settings: contrast and size.
#pragma once

#include <QObject>

namespace vantle {

/// Main thread.
class ReadingWishes : public QObject {
    Q_OBJECT

public:
    static constexpr double kSmallestText = 0.5;
    static constexpr double kLargestText = 3.0;

    /// The user asked for more contrast.
    [[nodiscard]] virtual bool moreContrast() const = 0;

    /// The factor for text, `kSmallestText` to `kLargestText`; 1 is the default. Some desktops
    /// include it in the screen's dots per inch too.
    [[nodiscard]] virtual double textScale() const = 0;

Q_SIGNALS:
    void changed();
};

} // namespace vantle
