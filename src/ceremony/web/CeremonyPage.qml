// One ceremony page over one screen. It can speak to the program, and to nobody else.
pragma ComponentBehavior: Bound

import QtQuick
import QtWebEngine

WebEngineView {
    id: view

    /// The file that may be shown. Whoever makes the view sets `url` to it, once nothing lets the
    /// page onto the network.
    required property url page
    /// Runs in the page before any script of its own, and not in frames within it.
    required property string script
    /// Messages of the page come over its console, told from other lines by this word.
    required property string messagePrefix

    /// The page has posted a message; its body as JSON.
    signal messagePosted(string body)
    /// Nothing more will come from the page, nor be seen of it.
    signal crashed()

    function isOfPage(target: url): bool {
        return String(target).split("#")[0] === String(view.page);
    }

    backgroundColor: "transparent"
    profile: WebEngineProfile {
        objectName: "profile"
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
        if (message.startsWith(view.messagePrefix))
            view.messagePosted(message.slice(view.messagePrefix.length));
    }
    onNavigationRequested: request => {
        if (request.isMainFrame && !view.isOfPage(request.url))
            request.action = WebEngineNavigationRequest.IgnoreRequest;
    }
    onRenderProcessTerminated: view.crashed()
    Component.onCompleted: {
        const first = WebEngine.script();
        first.name = "ceremony";
        first.injectionPoint = WebEngineScript.DocumentCreation;
        first.worldId = WebEngineScript.MainWorld;
        first.runsOnSubFrames = false;
        first.sourceCode = view.script;
        view.userScripts.insert(first);
    }
}
