// The precompiled headers of all tests, which tests still include themselves.
#pragma once

#include <QObject>
#include <QString>
#include <QStringList>
#include <QUuid>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <optional>
#include <vector>
