// A variable of this process's environment, for one test.
#pragma once

#include <QByteArray>

namespace vantle::tests {

/// Has the value while the object lives, then what it had before. A null value is none: not set.
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
