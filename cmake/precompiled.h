// What most sources include, precompiled. A source names its headers all the same: the debug preset
// compiles without this file.
#pragma once

#include <QAbstractListModel>
#include <QByteArray>
#include <QColor>
#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFont>
#include <QFontMetricsF>
#include <QGuiApplication>
#include <QHash>
#include <QImage>
#include <QList>
#include <QObject>
#include <QPainter>
#include <QPainterPath>
#include <QPointer>
#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickWindow>
#include <QScreen>
#include <QString>
#include <QStringList>
#include <QUrl>
#include <QUuid>
#include <QWindow>
#include <QtQml/qqmlregistration.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <utility>
#include <vector>
