<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<!-- The words that are true on this desktop, where they differ from the sources. The check
     "translations" finds a source that needs an entry, and an entry without its source. -->
<TS version="2.1" language="en">
<context>
    <name>AppRow</name>
    <message>
        <source>Categorized automatically on this Mac</source>
        <translation>Categorized automatically on this computer</translation>
    </message>
</context>
<context>
    <name>BackfillRow</name>
    <message>
        <source>Credit time back, only if this Mac was really active.</source>
        <translation>Credit time back, only if this computer was really active.</translation>
    </message>
</context>
<context>
    <name>CommandCenterContent</name>
    <message>
        <source>Your focus history stays private on this Mac</source>
        <translation>Your focus history stays private on this computer</translation>
    </message>
    <message>
        <source>Quit Vantle (⌘Q)</source>
        <translation>Quit Vantle (Ctrl+Q)</translation>
    </message>
    <message>
        <source>⌘%1</source>
        <translation>Ctrl+%1</translation>
    </message>
    <message>
        <source>⌘Q</source>
        <translation>Ctrl+Q</translation>
    </message>
</context>
<context>
    <name>DashboardHead</name>
    <message>
        <source>A recap of your work, computed on this Mac</source>
        <translation>A recap of your work, computed on this computer</translation>
    </message>
</context>
<context>
    <name>ManualTag</name>
    <message>
        <source>Hand-typed. Stays on this Mac, never verified.</source>
        <translation>Hand-typed. Stays on this computer, never verified.</translation>
    </message>
</context>
<context>
    <name>PressPicture</name>
    <message>
        <source>⌥</source>
        <translation>Alt</translation>
    </message>
    <message>
        <source>⌘</source>
        <translation>Super</translation>
    </message>
</context>
<context>
    <name>RecentSessionsCard</name>
    <message>
        <source>⌥⌘B works from anywhere</source>
        <translation>Alt+Super+B works from anywhere</translation>
    </message>
</context>
<context>
    <name>SamplePanel</name>
    <message>
        <source>Your focus history stays private on this Mac</source>
        <translation>Your focus history stays private on this computer</translation>
    </message>
    <message>
        <source>⌥⌘B</source>
        <translation>Alt+Super+B</translation>
    </message>
    <message>
        <source>⌘D</source>
        <translation>Ctrl+D</translation>
    </message>
    <message>
        <source>⌘,</source>
        <translation>Ctrl+,</translation>
    </message>
    <message>
        <source>⌘Q</source>
        <translation>Ctrl+Q</translation>
    </message>
</context>
<context>
    <name>Words</name>
    <message>
        <source>Backfill skipped · couldn&apos;t confirm this Mac was active</source>
        <translation>Backfill skipped · couldn&apos;t confirm this computer was active</translation>
    </message>
    <message>
        <source>Logged %1 min manually (stays on this Mac)</source>
        <translation>Logged %1 min manually (stays on this computer)</translation>
    </message>
    <message>
        <source>Move Vantle to Applications?</source>
        <translation>Move Vantle to ~/.local/bin?</translation>
    </message>
    <message>
        <source>Vantle runs best from your Applications folder — it keeps it out of Downloads and lets it update cleanly. Move it there now?</source>
        <translation>Vantle runs best from ~/.local/bin, the folder for programs of your own — it keeps it out of Downloads and lets it update cleanly. Move it there now?</translation>
    </message>
    <message>
        <source>Move to Applications</source>
        <translation>Move to ~/.local/bin</translation>
    </message>
    <message>
        <source>Vantle is already in Applications.</source>
        <translation>Vantle is already in ~/.local/bin.</translation>
    </message>
    <message>
        <source>Drag Vantle into Applications yourself — it&apos;s selected in Finder now.</source>
        <translation>Drag Vantle into ~/.local/bin yourself — it&apos;s selected in the file manager now.</translation>
    </message>
    <message>
        <source>Another copy of Vantle is already using this Mac&apos;s data. This one will close so your history stays safe.</source>
        <translation>Another copy of Vantle is already using this computer&apos;s data. This one will close so your history stays safe.</translation>
    </message>
    <message>
        <source>Written on your Mac. Nothing was sent anywhere.</source>
        <translation>Written on your computer. Nothing was sent anywhere.</translation>
    </message>
    <message>
        <source>Made only from notes saved on this Mac</source>
        <translation>Made only from notes saved on this computer</translation>
    </message>
    <message>
        <source>Made on this Mac, ready to share</source>
        <translation>Made on this computer, ready to share</translation>
    </message>
    <message>
        <source>⌥⌘B is already used by another app.</source>
        <translation>Alt+Super+B is already used by another app.</translation>
    </message>
    <message>
        <source>Couldn’t register ⌥⌘B (%1).</source>
        <translation>Couldn’t register Alt+Super+B (%1).</translation>
    </message>
    <message>
        <source>Next time: press option command B to start and stop from anywhere.</source>
        <translation>Next time: press Alt+Super+B to start and stop from anywhere.</translation>
    </message>
    <message>
        <source>Auto mode never guesses for this browser; switch categories from the notch any time</source>
        <translation>Auto mode never guesses for this browser; switch categories from the top edge any time</translation>
    </message>
    <message>
        <source>⌥⌘B</source>
        <translation>Alt+Super+B</translation>
    </message>
    <message>
        <source>Revealed in Finder</source>
        <translation>Revealed in the file manager</translation>
    </message>
    <message>
        <source>Presenter mode: turn this off before a screen share and the ceremony never crashes your call. It&apos;s a manual switch on purpose: macOS can only detect screen sharing through an API that itself triggers the Screen Recording permission prompt, the exact pop-up this app promises never to show.</source>
        <translation>Presenter mode: turn this off before a screen share and the ceremony never crashes your call. It&apos;s a manual switch on purpose: to notice screen sharing, an app has to watch what other apps do with your screen, which this app promises never to do.</translation>
    </message>
    <message>
        <source>On from the first launch; this switch turns it off. Vantle notices which app is in front and files the time under the right category on its own. It already knows the common tools: Claude, Codex and Xcode count as Build, Figma as Design, Slack and Mail as Connections, Notion and Linear as Founder Ops, and dozens more. Anything it does not recognize, it asks you about once, right when you are in it. Stay in a mapped app for about 45 seconds and a running session switches by itself. Every mapping is yours to change below.</source>
        <translation>On from the first launch; this switch turns it off. Vantle notices which app is in front and files the time under the right category on its own. It already knows the common tools: VS Code, Zed and terminals count as Build, Figma and Inkscape as Design, Slack and Thunderbird as Connections, Obsidian and Logseq as Founder Ops, and dozens more. Anything it does not recognize, it asks you about once, right when you are in it. Stay in a mapped app for about 45 seconds and a running session switches by itself. Every mapping is yours to change below.</translation>
    </message>
    <message>
        <source>It reads only the app&apos;s name. No window titles, no tabs, no documents, no screen. App names never leave this Mac.</source>
        <translation>It reads only the app&apos;s name. No window titles, no tabs, no documents, no screen. App names never leave this computer.</translation>
    </message>
    <message>
        <source>Runs a Shortcut of yours when a session starts, and another when it stops. Make them in the Shortcuts app with the Set Focus action; macOS does the silencing, and Vantle never sees your notifications. Nothing is blocked.</source>
        <translation>Runs a command of yours when a session starts, and another when it stops. Put executables into the Shortcuts folder, or use those that come with Vantle; your desktop does the silencing, and Vantle never sees your notifications. Nothing is blocked.</translation>
    </message>
    <message>
        <source>Registers with macOS as a login item (you&apos;ll see the standard &quot;background item added&quot; notice once).</source>
        <translation>Adds Vantle to the programs that your desktop starts when you log in.</translation>
    </message>
    <message>
        <source>Every duration in Vantle reads this way: the dashboard, the notch, Wrapped, and the card after each session. Clock is the only one that counts seconds while you work.</source>
        <translation>Every duration in Vantle reads this way: the dashboard, the top edge of your screen, Wrapped, and the card after each session. Clock is the only one that counts seconds while you work.</translation>
    </message>
    <message>
        <source>Deletes all local sessions, skills, app categories, and preferences. Everything this app knows lives on this Mac, so this removes all of it.</source>
        <translation>Deletes all local sessions, skills, app categories, and preferences. Everything this app knows lives on this computer, so this removes all of it.</translation>
    </message>
    <message>
        <source>Reveal the local session log in Finder</source>
        <translation>Reveal the local session log in the file manager</translation>
    </message>
    <message>
        <source>⌥⌘B · active</source>
        <translation>Alt+Super+B · active</translation>
    </message>
    <message>
        <source>⌥⌘B unavailable</source>
        <translation>Alt+Super+B unavailable</translation>
    </message>
    <message>
        <source>The clock is running on {project}. Press ⌘⌥B again to stop.</source>
        <translation>The clock is running on {project}. Press Alt+Super+B again to stop.</translation>
    </message>
    <message>
        <source>Switch modes from the notch</source>
        <translation>Switch modes from the top edge</translation>
    </message>
    <message>
        <source>While a session runs, hover the notch at the top of your screen. Click another mode and the minutes so far are saved to the one you leave, then the clock keeps going.</source>
        <translation>While a session runs, hover the top edge of your screen. Click another mode and the minutes so far are saved to the one you leave, then the clock keeps going.</translation>
    </message>
    <message>
        <source>The brick lives in your menu bar. Click it for the panel; your wall, your totals and your sessions are right there.</source>
        <translation>The brick lives in your tray. Click it for the panel; your wall, your totals and your sessions are right there.</translation>
    </message>
    <message>
        <source>One press starts it, the same press ends it, and the brick in your menu bar holds the rest. Your hours stay on this Mac.</source>
        <translation>One press starts it, the same press ends it, and the brick in your tray holds the rest. Your hours stay on this computer.</translation>
    </message>
    <message>
        <source>A sample of the open notch: the running clock, and your modes below it</source>
        <translation>A sample of what opens at the top edge of your screen: the running clock, and your modes below it</translation>
    </message>
</context>
</TS>
