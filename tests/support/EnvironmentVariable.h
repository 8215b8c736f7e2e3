// An environment variable of this process, for one test.
#pragma once

#include <QByteArray>

namespace vantle::tests {

/// Sets the value during its lifetime, then restores the former one. A null value means unset.
class EnvironmentVariable {
public:
    EnvironmentVariable(const char* name, const QByteArray& value)
        : m_name(name)
        , m_before(qgetenv(name)) {
        set(value);
    }
    ~EnvironmentVariable() { set(m_before); }
    EnvironmentVariable(const EnvironmentVariable&) = delete;
    EnvironmentVariable& operator=(const EnvironmentVariable&) = delete;

private:
    void set(const QByteArray& value) const {
        value.isNull() ? qunsetenv(m_name) : qputenv(m_name, value);
    }

    const char* const m_name;
    const QByteArray m_before;
};

} // namespace vantle::tests
