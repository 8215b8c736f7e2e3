// One ceremony page over one screen. It can send messages to the program alone.
pragma ComponentBehavior: Bound

import QtQuick
import QtWebEngine
import Vantle.CeremonyWeb

PageRoot {
    id: root

    function isOfPage(target: url): bool {
        return String(target).split("#")[0] === String(root.page);
    }

    profile: view.profile

    WebEngineView {
        id: view
        anchors.fill: parent
        url: root.guarded ? root.page : ""
        backgroundColor: "transparent"
        profile: WebEngineProfile {
            offTheRecord: true
            storageName: ""
        }
        settings.localContentCanAccessRemoteUrls: false
        settings.localContentCanAccessFileUrls: true
        settings.showScrollBars: false
        settings.focusOnNavigationEnabled: false
        settings.javascriptCanOpenWindows: false
        settings.javascriptCanAccessClipboard: false
        settings.playbackRequiresUserGesture: false
        settings.errorPageEnabled: false

        onJavaScriptConsoleMessage: (level, message, lineNumber, sourceID) => {
            if (message.startsWith(root.messagePrefix))
                root.messagePosted(message.slice(root.messagePrefix.length));
        }
        onNavigationRequested: request => {
            if (request.isMainFrame && !root.isOfPage(request.url))
                request.action = WebEngineNavigationRequest.IgnoreRequest;
        }
        onRenderProcessTerminated: root.crashed()
        Component.onCompleted: {
            const first = WebEngine.script();
            first.name = "ceremony";
            first.injectionPoint = WebEngineScript.DocumentCreation;
            first.worldId = WebEngineScript.MainWorld;
            first.runsOnSubFrames = false;
            first.sourceCode = root.script;
            view.userScripts.insert(first);
        }
    }
}
