// A variable of this process's environment, for one test.
#pragma once

#include <QByteArray>

namespace vantle::tests {

/// Has the value while the object lives, then what it had before.
class EnvironmentVariable {
public:
    EnvironmentVariable(const char* name, const QByteArray& value)
        : m_name(name)
        , m_wasSet(qEnvironmentVariableIsSet(name))
        , m_before(qgetenv(name)) {
        qputenv(name, value);
    }
    ~EnvironmentVariable() {
        if (m_wasSet)
            qputenv(m_name, m_before);
        else
            qunsetenv(m_name);
    }
    EnvironmentVariable(const EnvironmentVariable&) = delete;
    EnvironmentVariable& operator=(const EnvironmentVariable&) = delete;

private:
    const char* m_name;
    const bool m_wasSet;
    const QByteArray m_before;
};

} // namespace vantle::tests
