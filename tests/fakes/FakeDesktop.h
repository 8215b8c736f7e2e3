// A whole desktop: one fake per port.
#pragma once

#include "fakes/FakeAutostart.h"
#include "fakes/FakeFileManager.h"
#include "fakes/FakeFrontmostApp.h"
#include "fakes/FakeHotKeyPort.h"
#include "fakes/FakeIdleInhibition.h"
#include "fakes/FakeIdleSource.h"
#include "fakes/FakeImageClipboard.h"
#include "fakes/FakeLanguageModel.h"
#include "fakes/FakeOverlayStage.h"
#include "fakes/FakePanelHost.h"
#include "fakes/FakePointerPresses.h"
#include "fakes/FakeProcessRunner.h"
#include "fakes/FakeReadingWishes.h"
#include "fakes/FakeReducedMotion.h"
#include "fakes/FakeRunningCopy.h"
#include "fakes/FakeSaveDialog.h"
#include "fakes/FakeScreenPower.h"
#include "fakes/FakeScreens.h"
#include "fakes/FakeSessionStatus.h"
#include "fakes/FakeTrayItem.h"
#include "fakes/FakeWindowManager.h"
#include "fakes/MemoryFileSystem.h"
#include "fakes/MemoryPreferences.h"
#include "fakes/VirtualTime.h"
#include "platform/Platform.h"

namespace vantle::fakes {

struct FakeDesktop {
    VirtualTime time;
    MemoryFileSystem disk;
    MemoryPreferences preferences;
    FakeProcessRunner processRunner;
    FakeLanguageModel languageModel;
    FakeAutostart autostart;
    FakeIdleSource idleSource{time};
    FakeIdleInhibition idleInhibition;
    FakeFrontmostApp frontmostApp;
    FakeHotKeyPort hotKeyPort;
    FakePanelHost panelHost;
    FakeWindowManager windowManager;
    FakePointerPresses pointerPresses;
    FakeScreenPower screenPower;
    FakeScreens screens;
    FakeOverlayStage overlayStage;
    FakeReadingWishes readingWishes;
    FakeReducedMotion reducedMotion;
    FakeTrayItem trayItem;
    FakeImageClipboard clipboard;
    FakeSaveDialog saveDialog;
    FakeFileManager fileManager;
    FakeRunningCopy runningCopy;
    FakeSessionStatus sessionStatus;

    const Platform platform{.fileSystem = disk,
                            .folders = {QStringLiteral("/config"), QStringLiteral("/data")},
                            .preferences = preferences,
                            .processRunner = processRunner,
                            .languageModel = languageModel,
                            .autostart = autostart,
                            .idleSource = idleSource,
                            .idleInhibition = idleInhibition,
                            .frontmostApp = frontmostApp,
                            .hotKeyPort = hotKeyPort,
                            .panelHost = panelHost,
                            .windowManager = windowManager,
                            .pointerPresses = pointerPresses,
                            .screenPower = screenPower,
                            .screens = screens,
                            .overlayStage = overlayStage,
                            .readingWishes = readingWishes,
                            .reducedMotion = reducedMotion,
                            .trayItem = trayItem,
                            .imageClipboard = clipboard,
                            .saveDialog = saveDialog,
                            .fileManager = fileManager,
                            .runningCopy = runningCopy,
                            .sessionStatus = sessionStatus};
};

} // namespace vantle::fakes
