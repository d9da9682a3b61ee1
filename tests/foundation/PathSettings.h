#pragma once

#include <QByteArray>

#include "quarn/LongPathUtil.h"

namespace quarn::test {

/// Sets the environment variable and the working directory of path resolution for the duration of a test.
class PathSettings {
public:
    PathSettings(bool supportLongPaths, const std::string& workingDir) {
        if (supportLongPaths) qputenv(variable, "");
        if (!supportLongPaths) qunsetenv(variable);
        LongPathUtil::setWorkingDir(workingDir);
    }
    PathSettings(const PathSettings&) = delete;
    PathSettings& operator=(const PathSettings&) = delete;
    ~PathSettings() {
        m_wasSet ? qputenv(variable, m_value) : qunsetenv(variable);
        LongPathUtil::setWorkingDir(m_workingDir);
    }

private:
    static constexpr const char* variable = "KIVEN_LONGPATHSUPPORT";
    bool m_wasSet = qEnvironmentVariableIsSet(variable);
    QByteArray m_value = qgetenv(variable);
    std::string m_workingDir = LongPathUtil::getWorkingDir();
};

}  // namespace quarn::test
