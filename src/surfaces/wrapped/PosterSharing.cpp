#include "surfaces/wrapped/PosterSharing.h"

#include "base/Words.h"
#include "platform/ImageClipboard.h"
#include "platform/WholeFile.h"

namespace vantle {

using Saved = WrappedView::Saved;

void PosterSharing::copy(const QByteArray& png) { m_env.clipboard.copyPng(png); }

void PosterSharing::save(const QByteArray& png, const QString& name, QWindow* above,
                         std::function<void(Saved)> done) {
    const SaveQuestion question{Words::tr("Save image"), name, *m_folder, Words::tr("PNG image"),
                                QStringLiteral("png")};
    m_open.reset(); // before the next dialog opens
    m_open =
        m_env.dialog.ask(question, above, [this, png, done](const std::optional<QString>& path) {
            if (path)
                write(png, *path, done);
            else
                done(Saved::Cancelled);
        });
}

void PosterSharing::write(const QByteArray& png, const QString& path,
                          std::function<void(Saved)> done) {
    // A write still running at the end of the program outlives this object.
    m_env.queue.async([&files = m_env.files, &scheduler = m_env.scheduler, folder = m_folder, png,
                       path, done = std::move(done)] {
        const bool written = exportFile(files, path, png).ok();
        scheduler.post([folder, path, written, done] {
            if (written) *folder = path.left(path.lastIndexOf(QLatin1Char('/')));
            done(written ? Saved::Written : Saved::Failed);
        });
    });
}

} // namespace vantle
