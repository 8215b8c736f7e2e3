// The user's wishes about how the program is read, wherever the desktop keeps them.
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

    /// The factor on the size of text, `kSmallestText` to `kLargestText`; 1 where nothing is asked
    /// for. Some desktops have it in the dots per inch of the screen as well.
    [[nodiscard]] virtual double textScale() const = 0;

Q_SIGNALS:
    void changed();
};

} // namespace vantle
