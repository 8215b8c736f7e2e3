// What every test includes, precompiled. A test names its headers all the same.
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
