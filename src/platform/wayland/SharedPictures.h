// Two pictures in memory that the compositor sees too.
#pragma once

#include <QImage>
#include <QSize>

#include <array>
#include <functional>

struct wl_buffer;
struct wl_shm;

namespace vantle {

/// One is shown while the next is painted. The compositor says when it has done with one, which may
/// be never. Main thread; the memory is given back at the end.
class SharedPictures {
public:
    /// Both of `pixels`. Empty when there is no such memory, or too large a size. `released` is
    /// called when one is free again.
    SharedPictures(wl_shm* memory, QSize pixels, std::function<void()> released);
    ~SharedPictures();
    SharedPictures(const SharedPictures&) = delete;
    SharedPictures& operator=(const SharedPictures&) = delete;

    [[nodiscard]] bool isEmpty() const { return m_memory == nullptr; }
    [[nodiscard]] QSize pixels() const { return m_pixels; }

    struct Picture {
        wl_buffer* buffer = nullptr;
        uchar* bits = nullptr;
        bool isShown = false; ///< or may be: to be set when it goes to the compositor
        SharedPictures* owner = nullptr;
    };
    /// One to paint; null while the compositor has both.
    [[nodiscard]] Picture* free();
    /// Lets a painter draw into it, as long as this lives. What it held before is still there.
    [[nodiscard]] QImage image(const Picture& picture) const;

private:
    const QSize m_pixels;
    const std::function<void()> m_released;
    void* m_memory = nullptr;
    std::size_t m_bytes = 0;
    std::array<Picture, 2> m_pictures;
};

} // namespace vantle
