#include "platform/localmodel/HttpResponse.h"

namespace vantle {

namespace {

constexpr qsizetype kLongestLine = 8192;

/// Parses digits without sign or blanks; empty when invalid or above the bound.
std::optional<qsizetype> parsedNumber(QByteArrayView digits, int base) {
    if (digits.isEmpty() || digits.front() == '+' || digits.front() == '-') return std::nullopt;
    bool ok = false;
    const qlonglong number = digits.toLongLong(&ok, base);
    if (!ok || number < 0 || number > HttpResponse::maxSize) return std::nullopt;
    return static_cast<qsizetype>(number);
}

bool isSame(QByteArrayView left, QByteArrayView right) {
    return left.compare(right, Qt::CaseInsensitive) == 0;
}

} // namespace

HttpResponse::State HttpResponse::take(QByteArrayView bytes) {
    if (m_state != State::Incomplete) return m_state;
    if (bytes.size() > maxSize - m_bytes.size()) return m_state = State::Broken;
    m_bytes.append(bytes);
    if (!m_inBody) readHead();
    if (m_inBody) readBody();
    return m_state;
}

HttpResponse::State HttpResponse::finish() {
    if (m_state != State::Incomplete) return m_state;
    if (!m_inBody || m_isChunked || m_length) return m_state = State::Broken;
    m_body = m_bytes.sliced(m_read);
    return m_state = State::Complete;
}

std::optional<QByteArrayView> HttpResponse::nextLine() {
    const qsizetype end = m_bytes.indexOf('\n', m_read);
    if ((end < 0 ? m_bytes.size() : end) - m_read > kLongestLine) {
        m_state = State::Broken;
        return std::nullopt;
    }
    if (end < 0) return std::nullopt;
    QByteArrayView line = QByteArrayView(m_bytes).sliced(m_read, end - m_read);
    m_read = end + 1;
    return line.endsWith('\r') ? line.chopped(1) : line;
}

void HttpResponse::readHead() {
    while (m_state == State::Incomplete) {
        const auto line = nextLine();
        if (!line) return;
        if (m_status == 0) {
            if (!takeStatusLine(*line)) m_state = State::Broken;
        } else if (!line->isEmpty()) {
            if (!takeHeader(*line)) m_state = State::Broken;
        } else if (m_status < 200) {
            m_status = 0; // interim response; the final head follows
        } else {
            m_inBody = true;
            return;
        }
    }
}

/// "HTTP/1.1 200 OK"
bool HttpResponse::takeStatusLine(QByteArrayView line) {
    constexpr qsizetype kVersionLength = 9;
    constexpr qsizetype kCodeLength = 3;
    if (!line.startsWith("HTTP/1.") || line.size() < kVersionLength + kCodeLength) return false;
    const QByteArrayView rest = line.sliced(kVersionLength);
    if (line[kVersionLength - 1] != ' ') return false;
    if (rest.size() > kCodeLength && rest[kCodeLength] != ' ') return false;
    const auto code = parsedNumber(rest.first(kCodeLength), 10);
    if (!code || *code < 100 || *code > 599) return false;
    m_status = static_cast<int>(*code);
    return true;
}

bool HttpResponse::takeHeader(QByteArrayView line) {
    const qsizetype colon = line.indexOf(':');
    if (colon <= 0) return false;
    const QByteArrayView name = line.first(colon);
    const QByteArrayView value = line.sliced(colon + 1).trimmed();
    if (isSame(name, "Transfer-Encoding")) {
        m_isChunked = isSame(value, "chunked");
        return m_isChunked; // no other coding was requested
    }
    if (isSame(name, "Content-Length")) {
        const auto length = parsedNumber(value, 10);
        if (!length || (m_length && *m_length != *length)) return false;
        m_length = length;
    }
    return true;
}

void HttpResponse::readBody() {
    if (m_isChunked) return readChunks();
    if (!m_length || m_bytes.size() - m_read < *m_length) return;
    m_body = m_bytes.sliced(m_read, *m_length);
    m_state = State::Complete;
}

void HttpResponse::readChunks() {
    while (m_state == State::Incomplete) {
        const qsizetype chunkStart = m_read;
        const auto line = nextLine();
        if (!line) return;
        if (m_sawLastChunk) {
            if (line->isEmpty()) m_state = State::Complete; // trailer headers are ignored
            continue;
        }
        const qsizetype extension = line->indexOf(';');
        const auto size =
            parsedNumber((extension < 0 ? *line : line->first(extension)).trimmed(), 16);
        if (!size) {
            m_state = State::Broken;
        } else if (*size == 0) {
            m_sawLastChunk = true;
        } else if (!takeChunk(*size)) {
            m_read = chunkStart; // again when there is more
            return;
        }
    }
}

bool HttpResponse::takeChunk(qsizetype size) {
    const QByteArrayView rest = QByteArrayView(m_bytes).sliced(m_read);
    if (rest.size() < size + 2) return false;
    if (rest.sliced(size, 2) != "\r\n") {
        m_state = State::Broken;
        return true;
    }
    m_body.append(rest.first(size));
    m_read += size + 2;
    return true;
}

} // namespace vantle
