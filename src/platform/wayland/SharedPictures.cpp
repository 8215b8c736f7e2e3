#include "platform/wayland/SharedPictures.h"

#include <algorithm>
#include <cstdint>
#include <fcntl.h>
#include <limits>
#include <sys/mman.h>
#include <unistd.h>
#include <utility>
#include <wayland-client.h>

namespace vantle {

namespace {

constexpr qint64 kPixelBytes = 4;

/// Returns a memory file of that size, sealed against shrinking, which would crash the compositor;
/// -1 on failure.
int sealedFile(qint64 bytes) {
    const int file = memfd_create("vantle-overlay", MFD_CLOEXEC | MFD_ALLOW_SEALING);
    if (file < 0) return -1;
    if (ftruncate(file, bytes) != 0) {
        close(file);
        return -1;
    }
    (void)fcntl(file, F_ADD_SEALS, F_SEAL_SHRINK | F_SEAL_SEAL);
    return file;
}

} // namespace

SharedPictures::SharedPictures(wl_shm* memory, QSize pixels, std::function<void()> released)
    : m_pixels(pixels)
    , m_released(std::move(released)) {
    const qint64 one = qint64{pixels.width()} * pixels.height() * kPixelBytes;
    const qint64 all = one * static_cast<qint64>(m_pictures.size());
    // The protocol's sizes have 32 bits.
    if (pixels.isEmpty() || all > std::numeric_limits<std::int32_t>::max()) return;
    const int file = sealedFile(all);
    if (file < 0) return;
    void* const mapped =
        mmap(nullptr, static_cast<std::size_t>(all), PROT_READ | PROT_WRITE, MAP_SHARED, file, 0);
    if (mapped != MAP_FAILED) {
        m_memory = mapped;
        m_bytes = static_cast<std::size_t>(all);
        wl_shm_pool* const pool = wl_shm_create_pool(memory, file, static_cast<std::int32_t>(all));
        static constexpr wl_buffer_listener kListener{.release = [](void* data, wl_buffer*) {
            auto& picture = *static_cast<Picture*>(data);
            picture.isShown = false;
            const auto tell = picture.owner->m_released; // the owner may be destroyed meanwhile
            tell();
        }};
        qint64 offset = 0;
        for (Picture& picture : m_pictures) {
            picture.owner = this;
            picture.bits = static_cast<uchar*>(mapped) + offset;
            picture.buffer = wl_shm_pool_create_buffer(
                pool, static_cast<std::int32_t>(offset), pixels.width(), pixels.height(),
                static_cast<std::int32_t>(pixels.width() * kPixelBytes), WL_SHM_FORMAT_ARGB8888);
            wl_buffer_add_listener(picture.buffer, &kListener, &picture);
            offset += one;
        }
        wl_shm_pool_destroy(pool);
    }
    close(file);
}

SharedPictures::~SharedPictures() {
    if (m_memory == nullptr) return;
    for (const Picture& picture : m_pictures)
        wl_buffer_destroy(picture.buffer);
    munmap(m_memory, m_bytes);
}

SharedPictures::Picture* SharedPictures::free() {
    if (isEmpty()) return nullptr;
    const auto found = std::ranges::find(m_pictures, false, &Picture::isShown);
    return found == m_pictures.end() ? nullptr : &*found;
}

QImage SharedPictures::image(const Picture& picture) const {
    return {picture.bits, m_pixels.width(), m_pixels.height(), m_pixels.width() * kPixelBytes,
            QImage::Format_ARGB32_Premultiplied};
}

} // namespace vantle
