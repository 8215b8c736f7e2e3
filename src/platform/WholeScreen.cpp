#include "platform/WholeScreen.h"

#include "base/Words.h"
#include "platform/PanelHost.h"
#include "platform/Screens.h"

#include <QSurfaceFormat>
#include <QWindow>

#include <algorithm>

namespace vantle::wholescreen {

std::vector<QRect> frames(const Screens& screens) {
    std::vector<QRect> frames;
    for (const ScreenShape& screen : screens.all()) {
        const QRect frame = screen.frame.toRect();
        if (std::ranges::find(frames, frame) == frames.end()) frames.push_back(frame);
    }
    return frames;
}

bool exists(const Screens& screens, const QRect& frame) {
    const auto all = frames(screens);
    return std::ranges::find(all, frame) != all.end();
}

void cover(QWindow& window, const QRect& frame, PanelHost& host) {
    QSurfaceFormat format = window.format();
    format.setAlphaBufferSize(8);
    window.setFormat(format);
    window.setTitle(Words::tr("Vantle ceremony"));
    (void)host.place(window, {.spot = Placement::Spot::WholeScreen,
                              .screen = {.frame = frame, .available = frame},
                              .felt = QRegion()});
}

} // namespace vantle::wholescreen
