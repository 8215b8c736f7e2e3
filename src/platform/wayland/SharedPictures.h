// Two buffers in memory shared with the compositor.
#pragma once

#include <QImage>
#include <QSize>

#include <array>
#include <functional>

struct wl_buffer;
struct wl_shm;

namespace vantle {

/// One is shown while the other is painted. The compositor releases a buffer when it is done with
/// it, possibly never. The destructor frees the memory. Main thread.
class SharedPictures {
public:
    /// Two buffers of `pixels`; none when memory or size do not allow it. Calls `released` when one
    /// is free again.
    SharedPictures(wl_shm* memory, QSize pixels, std::function<void()> released);
    ~SharedPictures();
    SharedPictures(const SharedPictures&) = delete;
    SharedPictures& operator=(const SharedPictures&) = delete;

    [[nodiscard]] bool isEmpty() const { return m_memory == nullptr; }
    [[nodiscard]] QSize pixels() const { return m_pixels; }

    struct Picture {
        wl_buffer* buffer = nullptr;
        uchar* bits = nullptr;
        bool isShown = false; ///< set when attached; cleared on release
        SharedPictures* owner = nullptr;
    };
    /// Returns a buffer to paint; null while the compositor has both.
    [[nodiscard]] Picture* free();
    /// Returns an image on the buffer's memory and old content, valid as long as this object.
    [[nodiscard]] QImage image(const Picture& picture) const;

private:
    const QSize m_pixels;
    const std::function<void()> m_released;
    void* m_memory = nullptr;
    std::size_t m_bytes = 0;
    std::array<Picture, 2> m_pictures;
};

} // namespace vantle
