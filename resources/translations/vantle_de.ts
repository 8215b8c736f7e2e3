<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de">
<context>
    <name>AddCategoryButton</name>
    <message>
        <source>Add your own</source>
        <translation>Eigene hinzufügen</translation>
    </message>
</context>
<context>
    <name>AddSkillRowView</name>
    <message>
        <source>New skill</source>
        <translation>Neuer Skill</translation>
    </message>
    <message>
        <source>Add a skill</source>
        <translation>Skill hinzufügen</translation>
    </message>
</context>
<context>
    <name>AppRow</name>
    <message>
        <source>Categorized automatically on this Mac</source>
        <translation>Auf diesem Rechner automatisch zugeordnet</translation>
    </message>
    <message>
        <source>Categorized automatically</source>
        <translation>Automatisch zugeordnet</translation>
    </message>
</context>
<context>
    <name>AppsCard</name>
    <message>
        <source>Your apps</source>
        <translation>Deine Apps</translation>
    </message>
</context>
<context>
    <name>AppsPicture</name>
    <message>
        <source>Your apps file themselves, by name only:</source>
        <translation>Deine Apps ordnen sich selbst ein, allein nach dem Namen:</translation>
    </message>
</context>
<context>
    <name>AutoModeSection</name>
    <message>
        <source>AUTO MODE</source>
        <translation>AUTO-MODUS</translation>
    </message>
</context>
<context>
    <name>BackfillRow</name>
    <message>
        <source>%1 min</source>
        <translation>%1 min</translation>
    </message>
    <message>
        <source>Started earlier?</source>
        <translation>Früher angefangen?</translation>
    </message>
    <message>
        <source>Credit time back, only if this Mac was really active.</source>
        <translation>Schreibt Zeit gut, aber nur, wenn dieser Rechner wirklich benutzt wurde.</translation>
    </message>
    <message>
        <source>min</source>
        <translation>min</translation>
    </message>
</context>
<context>
    <name>CapsuleRow</name>
    <message>
        <source>Start</source>
        <translation>Starten</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Stoppen</translation>
    </message>
</context>
<context>
    <name>CategoryRow</name>
    <message>
        <source>Category</source>
        <translation>Kategorie</translation>
    </message>
    <message>
        <source>e.g. Investors, Support</source>
        <translation>z. B. Investoren, Support</translation>
    </message>
    <message>
        <source>Name your mode</source>
        <translation>Benenne deinen Modus</translation>
    </message>
    <message>
        <source>Rename mode</source>
        <translation>Modus umbenennen</translation>
    </message>
</context>
<context>
    <name>CeremonySection</name>
    <message>
        <source>CEREMONY</source>
        <translation>ZEREMONIE</translation>
    </message>
</context>
<context>
    <name>ChipMenu</name>
    <message>
        <source>Rename…</source>
        <translation>Umbenennen …</translation>
    </message>
    <message>
        <source>Change color…</source>
        <translation>Farbe ändern …</translation>
    </message>
    <message>
        <source>Delete %1</source>
        <translation>%1 löschen</translation>
    </message>
</context>
<context>
    <name>CommandCenterContent</name>
    <message>
        <source>CHOOSE A MODE</source>
        <translation>MODUS WÄHLEN</translation>
    </message>
    <message>
        <source>Switch anytime</source>
        <translation>Jederzeit wechselbar</translation>
    </message>
    <message>
        <source>REVIEW</source>
        <translation>RÜCKBLICK</translation>
    </message>
    <message>
        <source>Your focus history stays private on this Mac</source>
        <translation>Dein Fokusverlauf bleibt privat auf diesem Rechner</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Beenden</translation>
    </message>
    <message>
        <source>Quit Vantle (⌘Q)</source>
        <translation>Vantle beenden (Strg+Q)</translation>
    </message>
    <message>
        <source>⌘%1</source>
        <translation>Strg+%1</translation>
    </message>
    <message>
        <source>⌘Q</source>
        <translation>Strg+Q</translation>
    </message>
</context>
<context>
    <name>CommandCenterView</name>
    <message>
        <source>Vantle Command Center</source>
        <translation>Vantle-Befehlszentrale</translation>
    </message>
</context>
<context>
    <name>CommandWell</name>
    <message>
        <source>Copy the command</source>
        <translation>Befehl kopieren</translation>
    </message>
    <message>
        <source>Copied</source>
        <translation>Kopiert</translation>
    </message>
</context>
<context>
    <name>CorrectionPromptView</name>
    <message>
        <source>No</source>
        <translation>Nein</translation>
    </message>
    <message>
        <source>Always</source>
        <translation>Immer</translation>
    </message>
</context>
<context>
    <name>DarkCloseButton</name>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
</context>
<context>
    <name>DarkTextField</name>
    <message>
        <source>Clear</source>
        <translation>Leeren</translation>
    </message>
</context>
<context>
    <name>DarkTopStrip</name>
    <message>
        <source>Minimise</source>
        <translation>Minimieren</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
</context>
<context>
    <name>DashboardHead</name>
    <message>
        <source>Your hours</source>
        <translation>Deine Stunden</translation>
    </message>
    <message>
        <source>Log time</source>
        <translation>Zeit eintragen</translation>
    </message>
    <message>
        <source>Wrapped</source>
        <translation>Wrapped</translation>
    </message>
    <message>
        <source>A recap of your work, computed on this Mac</source>
        <translation>Ein Rückblick auf deine Arbeit, auf diesem Rechner berechnet</translation>
    </message>
    <message>
        <source>Start building</source>
        <translation>Losbauen</translation>
    </message>
</context>
<context>
    <name>DashboardPage</name>
    <message>
        <source>Progress</source>
        <translation>Fortschritt</translation>
    </message>
</context>
<context>
    <name>EraseRow</name>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Erase</source>
        <translation>Löschen</translation>
    </message>
</context>
<context>
    <name>FocusSection</name>
    <message>
        <source>FOCUS</source>
        <translation>FOKUS</translation>
    </message>
    <message>
        <source>No Shortcuts found yet. Make one, then flip this off and on.</source>
        <translation>Noch keine Kurzbefehle gefunden. Leg einen an und schalte dann aus und wieder ein.</translation>
    </message>
</context>
<context>
    <name>GeneralSection</name>
    <message>
        <source>GENERAL</source>
        <translation>ALLGEMEIN</translation>
    </message>
</context>
<context>
    <name>HourWallCard</name>
    <message>
        <source>Hour wall</source>
        <translation>Stundenwand</translation>
    </message>
</context>
<context>
    <name>ManualTag</name>
    <message>
        <source>manual</source>
        <translation>von Hand</translation>
    </message>
    <message>
        <source>Hand-typed. Stays on this Mac, never verified.</source>
        <translation>Von Hand eingetragen. Bleibt auf diesem Rechner, nie geprüft.</translation>
    </message>
</context>
<context>
    <name>MilestoneBadgeView</name>
    <message>
        <source>hours</source>
        <translation>Stunden</translation>
    </message>
</context>
<context>
    <name>ModeChips</name>
    <message>
        <source>Selected</source>
        <translation>Ausgewählt</translation>
    </message>
    <message>
        <source>Not selected</source>
        <translation>Nicht ausgewählt</translation>
    </message>
    <message>
        <source>Modes</source>
        <translation>Modi</translation>
    </message>
    <message>
        <source>Change color…</source>
        <translation>Farbe ändern …</translation>
    </message>
    <message>
        <source>Delete %1</source>
        <translation>%1 löschen</translation>
    </message>
</context>
<context>
    <name>ModeEditorView</name>
    <message>
        <source>Name your mode</source>
        <translation>Benenne deinen Modus</translation>
    </message>
    <message>
        <source>Rename mode</source>
        <translation>Modus umbenennen</translation>
    </message>
    <message>
        <source>Choose a short name you will recognize at a glance.</source>
        <translation>Wähl einen kurzen Namen, den du auf einen Blick erkennst.</translation>
    </message>
    <message>
        <source>Mode name</source>
        <translation>Name des Modus</translation>
    </message>
    <message>
        <source>New mode name</source>
        <translation>Name des neuen Modus</translation>
    </message>
</context>
<context>
    <name>ModeTag</name>
    <message>
        <source>Rename %1</source>
        <translation>%1 umbenennen</translation>
    </message>
    <message>
        <source>Remove %1</source>
        <translation>%1 entfernen</translation>
    </message>
    <message>
        <source>Delete %1</source>
        <translation>%1 löschen</translation>
    </message>
</context>
<context>
    <name>NewModeChip</name>
    <message>
        <source>New Mode</source>
        <translation>Neuer Modus</translation>
    </message>
</context>
<context>
    <name>NoteButtons</name>
    <message>
        <source>Copy this note</source>
        <translation>Diese Notiz kopieren</translation>
    </message>
    <message>
        <source>Edit this note</source>
        <translation>Diese Notiz bearbeiten</translation>
    </message>
</context>
<context>
    <name>NoteEditor</name>
    <message>
        <source>Note</source>
        <translation>Notiz</translation>
    </message>
    <message>
        <source>What moved forward</source>
        <translation>Was vorangekommen ist</translation>
    </message>
    <message>
        <source>Return saves, Escape cancels</source>
        <translation>Enter sichert, Escape bricht ab</translation>
    </message>
    <message>
        <source>Return saves. Esc cancels.</source>
        <translation>Enter sichert. Esc bricht ab.</translation>
    </message>
</context>
<context>
    <name>NoteMeta</name>
    <message>
        <source>Manual</source>
        <translation>Von Hand</translation>
    </message>
</context>
<context>
    <name>NoteRow</name>
    <message>
        <source>Copied</source>
        <translation>Kopiert</translation>
    </message>
</context>
<context>
    <name>NotesEmpty</name>
    <message>
        <source>No notes yet</source>
        <translation>Noch keine Notizen</translation>
    </message>
    <message>
        <source>When you stop a session, jot one line about what you did.
They collect here, newest first.</source>
        <translation>Wenn du eine Sitzung stoppst, schreib in einer Zeile auf, was du getan hast.
Hier sammeln sich die Zeilen, die neueste zuerst.</translation>
    </message>
</context>
<context>
    <name>NotesFilterRow</name>
    <message>
        <source>Filter by skill</source>
        <translation>Nach Skill filtern</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Alle</translation>
    </message>
</context>
<context>
    <name>NotesHeader</name>
    <message>
        <source>Search notes</source>
        <translation>Notizen durchsuchen</translation>
    </message>
</context>
<context>
    <name>NotesList</name>
    <message>
        <source>Notes</source>
        <translation>Notizen</translation>
    </message>
</context>
<context>
    <name>NotesLogView</name>
    <message>
        <source>Copied</source>
        <translation>Kopiert</translation>
    </message>
</context>
<context>
    <name>NotesNoMatch</name>
    <message>
        <source>Nothing matches that yet.</source>
        <translation>Dazu passt noch nichts.</translation>
    </message>
    <message>
        <source>Clear the filters</source>
        <translation>Filter zurücksetzen</translation>
    </message>
</context>
<context>
    <name>Pager</name>
    <message>
        <source>Previous page</source>
        <translation>Vorige Seite</translation>
    </message>
    <message>
        <source>Next page</source>
        <translation>Nächste Seite</translation>
    </message>
</context>
<context>
    <name>PickField</name>
    <message>
        <source>Project</source>
        <translation>Projekt</translation>
    </message>
    <message>
        <source>my app, my degree, 10,000 hours of guitar</source>
        <translation>meine App, mein Studium, 10.000 Stunden Gitarre</translation>
    </message>
</context>
<context>
    <name>PressPicture</name>
    <message>
        <source>The keys Alt, Super and B</source>
        <translation>Die Tasten Alt, Super und B</translation>
    </message>
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
    <name>QuickLogForm</name>
    <message>
        <source>Add time manually</source>
        <translation>Zeit von Hand hinzufügen</translation>
    </message>
    <message>
        <source>For work the clock didn’t see.
It joins your totals and is marked as manual.</source>
        <translation>Für Arbeit, die die Uhr nicht gesehen hat.
Sie zählt zu deinen Summen und wird als Eintrag von Hand markiert.</translation>
    </message>
    <message>
        <source>Skill</source>
        <translation>Skill</translation>
    </message>
    <message>
        <source>How long did you work?</source>
        <translation>Wie lange hast du gearbeitet?</translation>
    </message>
    <message>
        <source>1 min to 16 h</source>
        <translation>1 min bis 16 h</translation>
    </message>
    <message>
        <source>hours</source>
        <translation>Stunden</translation>
    </message>
    <message>
        <source>Hours worked</source>
        <translation>Gearbeitete Stunden</translation>
    </message>
    <message>
        <source>minutes</source>
        <translation>Minuten</translation>
    </message>
    <message>
        <source>Minutes worked</source>
        <translation>Gearbeitete Minuten</translation>
    </message>
    <message>
        <source>Enter a number of minutes</source>
        <translation>Gib eine Anzahl Minuten ein</translation>
    </message>
    <message>
        <source>Time worked, 5 minutes less</source>
        <translation>Gearbeitete Zeit, 5 Minuten weniger</translation>
    </message>
    <message>
        <source>Time worked, 5 minutes more</source>
        <translation>Gearbeitete Zeit, 5 Minuten mehr</translation>
    </message>
    <message>
        <source>What did you work on?</source>
        <translation>Woran hast du gearbeitet?</translation>
    </message>
    <message>
        <source>Work note</source>
        <translation>Arbeitsnotiz</translation>
    </message>
    <message>
        <source>e.g. Drafted the landing page</source>
        <translation>z. B. Startseite entworfen</translation>
    </message>
    <message>
        <source>Optional. Helps you remember what moved forward.</source>
        <translation>Freiwillig. Hilft dir, dich zu erinnern, was vorangekommen ist.</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Add to history</source>
        <translation>Zum Verlauf hinzufügen</translation>
    </message>
</context>
<context>
    <name>RecentSessionsCard</name>
    <message>
        <source>Recent sessions</source>
        <translation>Letzte Sitzungen</translation>
    </message>
    <message>
        <source>Stop Vantle</source>
        <translation>Vantle stoppen</translation>
    </message>
    <message>
        <source>Start your first session</source>
        <translation>Starte deine erste Sitzung</translation>
    </message>
    <message>
        <source>⌥⌘B works from anywhere</source>
        <translation>Alt+Super+B wirkt überall</translation>
    </message>
</context>
<context>
    <name>RecoveryNoticeView</name>
    <message>
        <source>Discard</source>
        <translation>Verwerfen</translation>
    </message>
    <message>
        <source>Keep</source>
        <translation>Behalten</translation>
    </message>
</context>
<context>
    <name>SampleDashboard</name>
    <message>
        <source>Your hours</source>
        <translation>Deine Stunden</translation>
    </message>
    <message>
        <source>Log time</source>
        <translation>Zeit eintragen</translation>
    </message>
    <message>
        <source>Wrapped</source>
        <translation>Wrapped</translation>
    </message>
    <message>
        <source>Start building</source>
        <translation>Losbauen</translation>
    </message>
    <message>
        <source>Hour wall</source>
        <translation>Stundenwand</translation>
    </message>
    <message>
        <source>46 hours</source>
        <translation>46 Stunden</translation>
    </message>
    <message>
        <source>Hours by skill</source>
        <translation>Stunden nach Skill</translation>
    </message>
    <message>
        <source>Recent sessions</source>
        <translation>Letzte Sitzungen</translation>
    </message>
    <message>
        <source>58 sessions · 46 h 18 min</source>
        <translation>58 Sitzungen · 46 h 18 min</translation>
    </message>
</context>
<context>
    <name>SamplePanel</name>
    <message>
        <source>Ready to focus</source>
        <translation>Bereit für Fokus</translation>
    </message>
    <message>
        <source>Choose where your effort should go.</source>
        <translation>Wähl, wohin deine Mühe gehen soll.</translation>
    </message>
    <message>
        <source>Enter %1 Mode</source>
        <translation>Modus %1 starten</translation>
    </message>
    <message>
        <source>CHOOSE A MODE</source>
        <translation>MODUS WÄHLEN</translation>
    </message>
    <message>
        <source>Switch anytime</source>
        <translation>Jederzeit wechselbar</translation>
    </message>
    <message>
        <source>REVIEW</source>
        <translation>RÜCKBLICK</translation>
    </message>
    <message>
        <source>Dashboard</source>
        <translation>Übersicht</translation>
    </message>
    <message>
        <source>Wrapped</source>
        <translation>Wrapped</translation>
    </message>
    <message>
        <source>Notes</source>
        <translation>Notizen</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>Your focus history stays private on this Mac</source>
        <translation>Dein Fokusverlauf bleibt privat auf diesem Rechner</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Beenden</translation>
    </message>
    <message>
        <source>⌥⌘B</source>
        <translation>Alt+Super+B</translation>
    </message>
    <message>
        <source>⌘D</source>
        <translation>Strg+D</translation>
    </message>
    <message>
        <source>⌘,</source>
        <translation>Strg+,</translation>
    </message>
    <message>
        <source>⌘Q</source>
        <translation>Strg+Q</translation>
    </message>
</context>
<context>
    <name>SegmentedPicker</name>
    <message>
        <source>Selected</source>
        <translation>Ausgewählt</translation>
    </message>
    <message>
        <source>Not selected</source>
        <translation>Nicht ausgewählt</translation>
    </message>
</context>
<context>
    <name>SkillEditorButtons</name>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Add mode</source>
        <translation>Modus hinzufügen</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Sichern</translation>
    </message>
</context>
<context>
    <name>SkillNameField</name>
    <message>
        <source>e.g. Writing</source>
        <translation>z. B. Schreiben</translation>
    </message>
</context>
<context>
    <name>SkillPopoverView</name>
    <message>
        <source>NAME</source>
        <translation>NAME</translation>
    </message>
    <message>
        <source>Skill name</source>
        <translation>Name des Skills</translation>
    </message>
    <message>
        <source>COLOR</source>
        <translation>FARBE</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Create a skill</source>
        <translation>Skill anlegen</translation>
    </message>
    <message>
        <source>Choose a color</source>
        <translation>Farbe wählen</translation>
    </message>
    <message>
        <source>Rename skill</source>
        <translation>Skill umbenennen</translation>
    </message>
    <message>
        <source>What do you want to build time toward?</source>
        <translation>Wofür willst du Zeit aufbauen?</translation>
    </message>
    <message>
        <source>Use a short name you will recognize at a glance.</source>
        <translation>Nimm einen kurzen Namen, den du auf einen Blick erkennst.</translation>
    </message>
    <message>
        <source>Create skill</source>
        <translation>Skill anlegen</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Sichern</translation>
    </message>
</context>
<context>
    <name>SkillTotalsCard</name>
    <message>
        <source>Hours by skill</source>
        <translation>Stunden nach Skill</translation>
    </message>
    <message>
        <source>Your active skills will appear after the first session.</source>
        <translation>Deine Skills erscheinen nach der ersten Sitzung.</translation>
    </message>
</context>
<context>
    <name>StateChipButton</name>
    <message>
        <source>Stop the session</source>
        <translation>Sitzung stoppen</translation>
    </message>
</context>
<context>
    <name>StepChip</name>
    <message>
        <source>More</source>
        <translation>Mehr</translation>
    </message>
    <message>
        <source>Less</source>
        <translation>Weniger</translation>
    </message>
</context>
<context>
    <name>StopSummaryView</name>
    <message>
        <source>Work note</source>
        <translation>Arbeitsnotiz</translation>
    </message>
    <message>
        <source>What did you work on? Optional</source>
        <translation>Woran hast du gearbeitet? Freiwillig</translation>
    </message>
    <message>
        <source>Clear note</source>
        <translation>Notiz leeren</translation>
    </message>
</context>
<context>
    <name>SummaryCardView</name>
    <message>
        <source>Save image…</source>
        <translation>Bild sichern …</translation>
    </message>
</context>
<context>
    <name>SwatchRow</name>
    <message>
        <source>Color</source>
        <translation>Farbe</translation>
    </message>
</context>
<context>
    <name>SwitchRow</name>
    <message>
        <source>Done</source>
        <translation>Erledigt</translation>
    </message>
</context>
<context>
    <name>TagPromptView</name>
    <message>
        <source>Not now</source>
        <translation>Jetzt nicht</translation>
    </message>
</context>
<context>
    <name>Words</name>
    <message>
        <source>.</source>
        <comment>decimal mark</comment>
        <translation>,</translation>
    </message>
    <message>
        <source>%1%</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>&lt;1%</source>
        <translation>&lt;1 %</translation>
    </message>
    <message>
        <source>%1 hours, %2</source>
        <translation>%1 Stunden, %2</translation>
    </message>
    <message>
        <source>Step %1 of %2</source>
        <translation>Schritt %1 von %2</translation>
    </message>
    <message>
        <source>Start or stop a session</source>
        <translation>Sitzung starten oder stoppen</translation>
    </message>
    <message>
        <source>Count the time you really work</source>
        <translation>Zählt die Zeit, die du wirklich arbeitest</translation>
    </message>
    <message>
        <source>Couldn’t save this session</source>
        <translation>Diese Sitzung konnte nicht gesichert werden</translation>
    </message>
    <message>
        <source>Couldn’t start vantle</source>
        <translation>Vantle konnte nicht starten</translation>
    </message>
    <message>
        <source>Moved the session start back %1 min</source>
        <translation>Beginn der Sitzung um %1 min vorverlegt</translation>
    </message>
    <message>
        <source>Backfill skipped · couldn&apos;t confirm this Mac was active</source>
        <translation>Nichts gutgeschrieben · es ließ sich nicht bestätigen, dass dieser Rechner benutzt wurde</translation>
    </message>
    <message>
        <source>Started now · couldn&apos;t confirm %1 min of activity</source>
        <translation>Jetzt gestartet · %1 min Aktivität ließen sich nicht bestätigen</translation>
    </message>
    <message>
        <source>Couldn’t log that time</source>
        <translation>Diese Zeit konnte nicht eingetragen werden</translation>
    </message>
    <message>
        <source>Logged %1 min manually (stays on this Mac)</source>
        <translation>%1 min von Hand eingetragen (bleibt auf diesem Rechner)</translation>
    </message>
    <message>
        <source>Move Vantle to Applications?</source>
        <translation>Vantle nach ~/.local/bin verschieben?</translation>
    </message>
    <message>
        <source>Vantle runs best from your Applications folder — it keeps it out of Downloads and lets it update cleanly. Move it there now?</source>
        <translation>Vantle läuft am besten aus ~/.local/bin, dem Ordner für eigene Programme – so bleibt es nicht zwischen den Downloads und lässt sich sauber aktualisieren. Jetzt dorthin verschieben?</translation>
    </message>
    <message>
        <source>Move to Applications</source>
        <translation>Nach ~/.local/bin verschieben</translation>
    </message>
    <message>
        <source>Not Now</source>
        <translation>Jetzt nicht</translation>
    </message>
    <message>
        <source>Vantle is already in Applications.</source>
        <translation>Vantle ist schon in ~/.local/bin.</translation>
    </message>
    <message>
        <source>Replace it with this version?</source>
        <translation>Durch diese Version ersetzen?</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>Ersetzen</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Couldn&apos;t move it automatically.</source>
        <translation>Automatisch ließ es sich nicht verschieben.</translation>
    </message>
    <message>
        <source>Drag Vantle into Applications yourself — it&apos;s selected in Finder now.</source>
        <translation>Zieh Vantle selbst nach ~/.local/bin – im Dateimanager ist es schon ausgewählt.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Vantle is already running</source>
        <translation>Vantle läuft schon</translation>
    </message>
    <message>
        <source>Another copy of Vantle is already using this Mac&apos;s data. This one will close so your history stays safe.</source>
        <translation>Eine andere Kopie von Vantle benutzt die Daten dieses Rechners bereits. Diese hier schließt sich, damit dein Verlauf sicher bleibt.</translation>
    </message>
    <message>
        <source>1 more note is in your log</source>
        <translation>1 weitere Notiz steht in deinem Protokoll</translation>
    </message>
    <message>
        <source>Written on your Mac. Nothing was sent anywhere.</source>
        <translation>Auf deinem Rechner geschrieben. Nichts wurde irgendwohin gesendet.</translation>
    </message>
    <message>
        <source>WHAT MOVED FORWARD</source>
        <translation>WAS VORANGEKOMMEN IST</translation>
    </message>
    <message>
        <source>Made only from notes saved on this Mac</source>
        <translation>Nur aus Notizen, die auf diesem Rechner liegen</translation>
    </message>
    <message>
        <source>Made on this Mac, ready to share</source>
        <translation>Auf diesem Rechner gemacht, bereit zum Teilen</translation>
    </message>
    <message>
        <source>⌥⌘B is already used by another app.</source>
        <translation>Alt+Super+B wird schon von einer anderen App benutzt.</translation>
    </message>
    <message>
        <source>Couldn’t register ⌥⌘B (%1).</source>
        <translation>Alt+Super+B konnte nicht belegt werden (%1).</translation>
    </message>
    <message>
        <source>Couldn’t install the shortcut handler (%1).</source>
        <translation>Der Empfänger für das Tastenkürzel konnte nicht eingerichtet werden (%1).</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 für %2</translation>
    </message>
    <message>
        <source>Completed an hour on your wall</source>
        <translation>Eine Stunde auf deiner Wand vollendet</translation>
    </message>
    <message>
        <source>%1 into your next dot</source>
        <translation>%1 des nächsten Punkts geschafft</translation>
    </message>
    <message>
        <source>Added to your wall</source>
        <translation>Zu deiner Wand hinzugefügt</translation>
    </message>
    <message>
        <source>Your first session is on the wall.</source>
        <translation>Deine erste Sitzung ist auf der Wand.</translation>
    </message>
    <message>
        <source>Try the note: one line about what you just did. This first one is just practice.</source>
        <translation>Probier die Notiz aus: eine Zeile darüber, was du gerade getan hast. Diese erste ist nur Übung.</translation>
    </message>
    <message>
        <source>Notes save privately with each session, after this one.</source>
        <translation>Ab der nächsten Sitzung wird deine Notiz privat mitgesichert.</translation>
    </message>
    <message>
        <source>Saved privately with this session.</source>
        <translation>Privat mit dieser Sitzung gesichert.</translation>
    </message>
    <message>
        <source>Next time: press option command B to start and stop from anywhere.</source>
        <translation>Nächstes Mal: Alt+Super+B startet und stoppt von überall.</translation>
    </message>
    <message>
        <source>Press Return to save</source>
        <translation>Enter sichert</translation>
    </message>
    <message>
        <source>Save note</source>
        <translation>Notiz sichern</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Fertig</translation>
    </message>
    <message>
        <source>Close and save note</source>
        <translation>Schließen und Notiz sichern</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>What is %1 usually?</source>
        <translation>Wofür ist %1 meistens da?</translation>
    </message>
    <message>
        <source>Counting time in %1</source>
        <translation>Zeit läuft in %1</translation>
    </message>
    <message>
        <source>Count %1 toward a skill?</source>
        <translation>%1 zu einem Skill zählen?</translation>
    </message>
    <message>
        <source>A browser can be anything; pick its usual job or keep it flexible.</source>
        <translation>Ein Browser kann alles sein; wähl, wofür er meistens da ist, oder halte ihn offen.</translation>
    </message>
    <message>
        <source>Which skill is this?</source>
        <translation>Welcher Skill ist das?</translation>
    </message>
    <message>
        <source>Auto mode remembers your choice.</source>
        <translation>Der Auto-Modus merkt sich deine Wahl.</translation>
    </message>
    <message>
        <source>Keep it flexible</source>
        <translation>Offen halten</translation>
    </message>
    <message>
        <source>Ignore this app</source>
        <translation>Diese App ignorieren</translation>
    </message>
    <message>
        <source>Auto mode never guesses for this browser; switch categories from the notch any time</source>
        <translation>Bei diesem Browser rät der Auto-Modus nie; die Kategorie wechselst du jederzeit am oberen Bildschirmrand</translation>
    </message>
    <message>
        <source>Auto mode never reacts to this app</source>
        <translation>Der Auto-Modus reagiert nie auf diese App</translation>
    </message>
    <message>
        <source>⌥⌘B</source>
        <translation>Alt+Super+B</translation>
    </message>
    <message>
        <source>Revealed in Finder</source>
        <translation>Im Dateimanager gezeigt</translation>
    </message>
    <message>
        <source>Erased all local Vantle data.</source>
        <translation>Alle Daten von Vantle auf diesem Rechner sind gelöscht.</translation>
    </message>
    <message>
        <source>Daily goal, half an hour less</source>
        <translation>Tagesziel, eine halbe Stunde weniger</translation>
    </message>
    <message>
        <source>Daily goal, half an hour more</source>
        <translation>Tagesziel, eine halbe Stunde mehr</translation>
    </message>
    <message>
        <source>Daily goal</source>
        <translation>Tagesziel</translation>
    </message>
    <message>
        <source>The dashboard&apos;s Today card measures against this goal, and This week against seven of it. Default is 2 hours.</source>
        <translation>Daran misst die Übersicht den heutigen Tag, und die Woche an sieben davon. Voreingestellt sind 2 Stunden.</translation>
    </message>
    <message>
        <source>Ripple ceremony</source>
        <translation>Wellen-Zeremonie</translation>
    </message>
    <message>
        <source>Presenter mode: turn this off before a screen share and the ceremony never crashes your call. It&apos;s a manual switch on purpose: macOS can only detect screen sharing through an API that itself triggers the Screen Recording permission prompt, the exact pop-up this app promises never to show.</source>
        <translation>Vortragsmodus: Schalte sie vor einer Bildschirmfreigabe aus, dann platzt die Zeremonie nie in deinen Anruf. Das ist mit Absicht ein Schalter von Hand: Um eine Bildschirmfreigabe zu bemerken, müsste eine App beobachten, was andere Apps mit deinem Bildschirm tun, und diese App verspricht, das nie zu tun.</translation>
    </message>
    <message>
        <source>Black out the screen</source>
        <translation>Bildschirm schwärzen</translation>
    </message>
    <message>
        <source>The ritual plays on a fully black screen instead of over your dimmed desktop. Your windows come back the moment it ends. Turn this on when the apps behind the dots feel busy.</source>
        <translation>Das Ritual läuft auf ganz schwarzem Bildschirm statt über deinem abgedunkelten Desktop. Deine Fenster sind in dem Moment zurück, in dem es endet. Schalte das ein, wenn die Apps hinter den Punkten unruhig wirken.</translation>
    </message>
    <message>
        <source>Auto mode</source>
        <translation>Auto-Modus</translation>
    </message>
    <message>
        <source>On from the first launch; this switch turns it off. Vantle notices which app is in front and files the time under the right category on its own. It already knows the common tools: Claude, Codex and Xcode count as Build, Figma as Design, Slack and Mail as Connections, Notion and Linear as Founder Ops, and dozens more. Anything it does not recognize, it asks you about once, right when you are in it. Stay in a mapped app for about 45 seconds and a running session switches by itself. Every mapping is yours to change below.</source>
        <translation>Vom ersten Start an eingeschaltet; dieser Schalter schaltet ihn aus. Vantle bemerkt, welche App vorn ist, und schreibt die Zeit von selbst der richtigen Kategorie zu. Die üblichen Werkzeuge kennt es schon: VS Code, Zed und Terminals zählen als Build, Figma und Inkscape als Design, Slack und Thunderbird als Connections, Obsidian und Logseq als Founder Ops, und Dutzende mehr. Nach allem, was es nicht kennt, fragt es dich einmal, wenn du gerade darin bist. Bleibst du etwa 45 Sekunden in einer zugeordneten App, wechselt eine laufende Sitzung von selbst. Jede Zuordnung kannst du unten ändern.</translation>
    </message>
    <message>
        <source>It reads only the app&apos;s name. No window titles, no tabs, no documents, no screen. App names never leave this Mac.</source>
        <translation>Er liest nur den Namen der App. Keine Fenstertitel, keine Tabs, keine Dokumente, keinen Bildschirm. Namen von Apps verlassen diesen Rechner nie.</translation>
    </message>
    <message>
        <source>Start sessions automatically</source>
        <translation>Sitzungen automatisch starten</translation>
    </message>
    <message>
        <source>After about 2 minutes in a mapped app, vantle starts on its own.</source>
        <translation>Nach etwa 2 Minuten in einer zugeordneten App startet Vantle von selbst.</translation>
    </message>
    <message>
        <source>Focus with sessions</source>
        <translation>Fokus mit Sitzungen</translation>
    </message>
    <message>
        <source>When a session starts</source>
        <translation>Wenn eine Sitzung startet</translation>
    </message>
    <message>
        <source>When it stops</source>
        <translation>Wenn sie stoppt</translation>
    </message>
    <message>
        <source>Launch at login</source>
        <translation>Beim Anmelden starten</translation>
    </message>
    <message>
        <source>Global hotkey</source>
        <translation>Globales Tastenkürzel</translation>
    </message>
    <message>
        <source>Tray</source>
        <translation>Systemabschnitt</translation>
    </message>
    <message>
        <source>How time reads</source>
        <translation>So wird Zeit geschrieben</translation>
    </message>
    <message>
        <source>Welcome</source>
        <translation>Willkommen</translation>
    </message>
    <message>
        <source>Calls and videos count as being here</source>
        <translation>Anrufe und Videos zählen als Anwesenheit</translation>
    </message>
    <message>
        <source>While an app keeps the screen awake, the clock goes on without a keystroke or click, for four hours in a row at most. Vantle learns only that an app does so, never what you hear or see.</source>
        <translation>Solange eine App den Bildschirm wach hält, läuft die Uhr auch ohne Tastendruck und Klick weiter, höchstens vier Stunden am Stück. Vantle erfährt nur, dass eine App das tut, nie was du hörst oder siehst.</translation>
    </message>
    <message>
        <source>This desktop doesn&apos;t tell apps most of what keeps the screen awake, so calls and videos may count as being away all the same.</source>
        <translation>Dieser Desktop sagt Apps das meiste nicht, was den Bildschirm wach hält. Anrufe und Videos können deshalb trotzdem als Abwesenheit zählen.</translation>
    </message>
    <message>
        <source>Vantle counts from the moment you log in.</source>
        <translation>Vantle zählt ab der Anmeldung.</translation>
    </message>
    <message>
        <source>Runs a Shortcut of yours when a session starts, and another when it stops. Make them in the Shortcuts app with the Set Focus action; macOS does the silencing, and Vantle never sees your notifications. Nothing is blocked.</source>
        <translation>Führt einen Befehl von dir aus, wenn eine Sitzung startet, und einen anderen, wenn sie stoppt. Leg ausführbare Dateien in den Ordner der Kurzbefehle oder nimm die, die mit Vantle kommen; für die Ruhe sorgt dein Desktop, und Vantle sieht deine Benachrichtigungen nie. Nichts wird blockiert.</translation>
    </message>
    <message>
        <source>Registers with macOS as a login item (you&apos;ll see the standard &quot;background item added&quot; notice once).</source>
        <translation>Fügt Vantle zu den Programmen hinzu, die dein Desktop beim Anmelden startet.</translation>
    </message>
    <message>
        <source>Starts or stops vantle from inside any app. Fixed in this version.</source>
        <translation>Startet oder stoppt Vantle aus jeder App heraus. In dieser Version fest.</translation>
    </message>
    <message>
        <source>Every duration in Vantle reads this way: the dashboard, the notch, Wrapped, and the card after each session. Clock is the only one that counts seconds while you work.</source>
        <translation>Jede Dauer in Vantle wird so geschrieben: in der Übersicht, am oberen Bildschirmrand, in Wrapped und auf der Karte nach jeder Sitzung. Nur „Uhr“ zählt Sekunden, während du arbeitest.</translation>
    </message>
    <message>
        <source>Your whole log, one JSON line per session.</source>
        <translation>Dein ganzes Protokoll, eine Zeile JSON je Sitzung.</translation>
    </message>
    <message>
        <source>Deletes all local sessions, skills, app categories, and preferences. Everything this app knows lives on this Mac, so this removes all of it.</source>
        <translation>Löscht alle Sitzungen, Skills, Zuordnungen von Apps und Einstellungen auf diesem Rechner. Was diese App weiß, liegt nur hier; danach ist alles weg.</translation>
    </message>
    <message>
        <source>Open Shortcuts</source>
        <translation>Kurzbefehle öffnen</translation>
    </message>
    <message>
        <source>Show the welcome again</source>
        <translation>Willkommen noch einmal zeigen</translation>
    </message>
    <message>
        <source>Export my data</source>
        <translation>Meine Daten exportieren</translation>
    </message>
    <message>
        <source>Erase everything</source>
        <translation>Alles löschen</translation>
    </message>
    <message>
        <source>How durations are written</source>
        <translation>Wie Dauern geschrieben werden</translation>
    </message>
    <message>
        <source>Reveal the local session log in Finder</source>
        <translation>Das Protokoll der Sitzungen im Dateimanager zeigen</translation>
    </message>
    <message>
        <source>Delete every local data file this app has written</source>
        <translation>Jede Datei löschen, die diese App hier geschrieben hat</translation>
    </message>
    <message>
        <source>Erase everything? This cannot be undone.</source>
        <translation>Alles löschen? Das lässt sich nicht rückgängig machen.</translation>
    </message>
    <message>
        <source>⌥⌘B · active</source>
        <translation>Alt+Super+B · aktiv</translation>
    </message>
    <message>
        <source>⌥⌘B unavailable</source>
        <translation>Alt+Super+B nicht verfügbar</translation>
    </message>
    <message>
        <source>The welcome window is open.</source>
        <translation>Das Willkommensfenster ist offen.</translation>
    </message>
    <message>
        <source>Opens the welcome again, right away. Your log is untouched.</source>
        <translation>Öffnet das Willkommen sofort noch einmal. Dein Protokoll bleibt unberührt.</translation>
    </message>
    <message>
        <source>Vantle %1 (%2)</source>
        <translation>Vantle %1 (%2)</translation>
    </message>
    <message>
        <source>What are you working towards?</source>
        <translation>Worauf arbeitest du hin?</translation>
    </message>
    <message>
        <source>Name the thing your hours are going into. Vantle counts the time you actually put in, and it can&apos;t see your screen.</source>
        <translation>Benenne das, wohin deine Stunden gehen. Vantle zählt die Zeit, die du wirklich aufwendest, und es kann deinen Bildschirm nicht sehen.</translation>
    </message>
    <message>
        <source>These are your modes</source>
        <translation>Das sind deine Modi</translation>
    </message>
    <message>
        <source>Your hours sort into these. Add your own, rename them, remove any you will not use.</source>
        <translation>In diese ordnen sich deine Stunden. Füg eigene hinzu, benenne sie um, entferne die, die du nicht brauchst.</translation>
    </message>
    <message>
        <source>Press it now</source>
        <translation>Drück jetzt</translation>
    </message>
    <message>
        <source>That&apos;s the whole app: one press and the clock starts on {project}. The same press stops it.</source>
        <translation>Das ist die ganze App: einmal drücken, und die Uhr läuft für {project}. Noch einmal drücken hält sie an.</translation>
    </message>
    <message>
        <source>You&apos;re building</source>
        <translation>Du baust</translation>
    </message>
    <message>
        <source>The clock is running on {project}. Press ⌘⌥B again to stop.</source>
        <translation>Die Uhr läuft für {project}. Drück noch einmal Alt+Super+B, um sie anzuhalten.</translation>
    </message>
    <message>
        <source>This one is practice, so it will not land on your wall.</source>
        <translation>Diese hier ist Übung, sie kommt also nicht auf deine Wand.</translation>
    </message>
    <message>
        <source>As easy as that</source>
        <translation>So einfach ist das</translation>
    </message>
    <message>
        <source>That was the whole ritual.</source>
        <translation>Das war das ganze Ritual.</translation>
    </message>
    <message>
        <source>Your real hours start with your next press.</source>
        <translation>Deine echten Stunden beginnen mit deinem nächsten Druck.</translation>
    </message>
    <message>
        <source>Switch modes from the notch</source>
        <translation>Modus am oberen Rand wechseln</translation>
    </message>
    <message>
        <source>While a session runs, hover the notch at the top of your screen. Click another mode and the minutes so far are saved to the one you leave, then the clock keeps going.</source>
        <translation>Während eine Sitzung läuft, fahr mit dem Zeiger an den oberen Bildschirmrand. Klick einen anderen Modus an: Die Minuten bis dahin werden dem alten gutgeschrieben, und die Uhr läuft weiter.</translation>
    </message>
    <message>
        <source>Your hours, one click away</source>
        <translation>Deine Stunden, einen Klick entfernt</translation>
    </message>
    <message>
        <source>The brick lives in your menu bar. Click it for the panel; your wall, your totals and your sessions are right there.</source>
        <translation>Der Baustein wohnt in deinem Systemabschnitt. Ein Klick öffnet das Panel; deine Wand, deine Summen und deine Sitzungen sind gleich da.</translation>
    </message>
    <message>
        <source>What is behind it</source>
        <translation>Was dahinter steckt</translation>
    </message>
    <message>
        <source>One click on the brick opens all of this.</source>
        <translation>Ein Klick auf den Baustein öffnet das alles.</translation>
    </message>
    <message>
        <source>Your work, wrapped</source>
        <translation>Deine Arbeit im Rückblick</translation>
    </message>
    <message>
        <source>Your hours, your rhythm and your builder type, in one image worth posting.</source>
        <translation>Deine Stunden, dein Rhythmus und dein Bautyp, in einem Bild, das man zeigen kann.</translation>
    </message>
    <message>
        <source>That is the whole app</source>
        <translation>Das ist die ganze App</translation>
    </message>
    <message>
        <source>One press starts it, the same press ends it, and the brick in your menu bar holds the rest. Your hours stay on this Mac.</source>
        <translation>Ein Druck startet, derselbe Druck beendet, und alles andere hat der Baustein in deinem Systemabschnitt. Deine Stunden bleiben auf diesem Rechner.</translation>
    </message>
    <message>
        <source>your work</source>
        <translation>deine Arbeit</translation>
    </message>
    <message>
        <source>A sample. Yours is one click away.</source>
        <translation>Ein Beispiel. Deins ist einen Klick entfernt.</translation>
    </message>
    <message>
        <source>A sample of applications and the modes that they file under: Terminal as Build, Blender as Design, Thunderbird as Connections, Ledger as Founder Ops</source>
        <translation>Ein Beispiel für Anwendungen und die Modi, zu denen sie zählen: Terminal zu Build, Blender zu Design, Thunderbird zu Connections, Ledger zu Founder Ops</translation>
    </message>
    <message>
        <source>A sample of the open notch: the running clock, and your modes below it</source>
        <translation>Ein Beispiel für das, was sich am oberen Bildschirmrand öffnet: die laufende Uhr und darunter deine Modi</translation>
    </message>
    <message>
        <source>A sample of the Your hours dashboard: totals for today, this week and all time, and the hour wall</source>
        <translation>Ein Beispiel der Übersicht „Deine Stunden“: Summen für heute, diese Woche und insgesamt, und die Stundenwand</translation>
    </message>
    <message>
        <source>A sample of the panel: the button that starts a session, your modes, and the ways to Dashboard, Wrapped, Notes and Settings</source>
        <translation>Ein Beispiel des Panels: der Knopf, der eine Sitzung startet, deine Modi und die Wege zu Übersicht, Wrapped, Notizen und Einstellungen</translation>
    </message>
    <message>
        <source>A sample weekly Wrapped: builder type Night Owl, a week of day tiles, and hours by category</source>
        <translation>Ein Beispiel für das Wrapped einer Woche: Bautyp Nachteule, eine Woche aus Tageskacheln und Stunden nach Kategorie</translation>
    </message>
    <message>
        <source>Enter Vantle</source>
        <translation>Vantle starten</translation>
    </message>
    <message>
        <source>Stop Vantle</source>
        <translation>Vantle stoppen</translation>
    </message>
    <message>
        <source>Start building</source>
        <translation>Losbauen</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Weiter</translation>
    </message>
    <message>
        <source>skip the welcome</source>
        <translation>Willkommen überspringen</translation>
    </message>
    <message>
        <source>Open Wrapped</source>
        <translation>Wrapped öffnen</translation>
    </message>
    <message>
        <source>or click here instead</source>
        <translation>oder klick stattdessen hier</translation>
    </message>
    <message numerus="yes">
        <source>Auto-pause after %n min</source>
        <translation>
            <numerusform>Automatische Pause nach %n min</numerusform>
            <numerusform>Automatische Pause nach %n min</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>No input for %n minutes pauses the clock, backdated to your last keystroke or click so away time is never counted. Default is 3.</source>
        <translation>
            <numerusform>Keine Eingabe für %n Minute hält die Uhr an, zurückdatiert auf deinen letzten Tastendruck oder Klick, damit Zeit, in der du weg warst, nie zählt. Voreingestellt sind 3.</numerusform>
            <numerusform>Keine Eingabe für %n Minuten hält die Uhr an, zurückdatiert auf deinen letzten Tastendruck oder Klick, damit Zeit, in der du weg warst, nie zählt. Voreingestellt sind 3.</numerusform>
        </translation>
    </message>
    <message>
        <source>No input for 1 minute pauses the clock, backdated to your last keystroke or click so away time is never counted. Default is 3.</source>
        <translation>Keine Eingabe für 1 Minute hält die Uhr an, zurückdatiert auf deinen letzten Tastendruck oder Klick, damit Zeit, in der du weg warst, nie zählt. Voreingestellt sind 3.</translation>
    </message>
    <message>
        <source>%1 still exists</source>
        <translation>%1 ist noch da</translation>
    </message>
    <message>
        <source>All local Vantle data was erased</source>
        <translation>Alle Daten von Vantle auf diesem Rechner wurden gelöscht</translation>
    </message>
    <message>
        <source>Some local data could not be erased: %1</source>
        <translation>Manche Daten konnten nicht gelöscht werden: %1</translation>
    </message>
    <message>
        <source>Found %1 from the previous run · choose Keep or Discard</source>
        <translation>%1 vom vorigen Lauf gefunden · wähl „Behalten“ oder „Verwerfen“</translation>
    </message>
    <message>
        <source>Recovered %1 from the previous run</source>
        <translation>%1 vom vorigen Lauf gerettet</translation>
    </message>
    <message>
        <source>The session was saved, but its note could not be added.</source>
        <translation>Die Sitzung wurde gesichert, aber ihre Notiz ließ sich nicht hinzufügen.</translation>
    </message>
    <message>
        <source>Discarded the recovered session</source>
        <translation>Die gerettete Sitzung wurde verworfen</translation>
    </message>
    <message>
        <source>Couldn’t save before changing skill</source>
        <translation>Vor dem Wechsel des Skills konnte nicht gesichert werden</translation>
    </message>
    <message>
        <source>Saved the previous session but couldn’t start the new one</source>
        <translation>Die vorige Sitzung ist gesichert, aber die neue konnte nicht starten</translation>
    </message>
    <message>
        <source>%1 already exists</source>
        <translation>%1 gibt es schon</translation>
    </message>
    <message>
        <source>Couldn’t add mode · %1 modes max, %2 characters</source>
        <translation>Der Modus konnte nicht hinzugefügt werden · höchstens %1 Modi, %2 Zeichen</translation>
    </message>
    <message>
        <source>Added %1</source>
        <translation>%1 hinzugefügt</translation>
    </message>
    <message>
        <source>That mode already exists</source>
        <translation>Diesen Modus gibt es schon</translation>
    </message>
    <message>
        <source>Couldn’t save mode · names are 1 to %1 characters</source>
        <translation>Der Modus konnte nicht gesichert werden · Namen haben 1 bis %1 Zeichen</translation>
    </message>
    <message>
        <source>Saved %1</source>
        <translation>%1 gesichert</translation>
    </message>
    <message>
        <source>Keep at least one skill</source>
        <translation>Behalte mindestens einen Skill</translation>
    </message>
    <message>
        <source>Deleted %1</source>
        <translation>%1 gelöscht</translation>
    </message>
    <message>
        <source>Couldn’t read your modes. Check folder permissions, then start Vantle again. (%1)</source>
        <translation>Deine Modi konnten nicht gelesen werden. Prüf die Rechte des Ordners und starte Vantle dann neu. (%1)</translation>
    </message>
    <message>
        <source>Vantle ceremony</source>
        <translation>Vantle-Zeremonie</translation>
    </message>
    <message>
        <source>%1 mode</source>
        <translation>Modus %1</translation>
    </message>
    <message>
        <source>You are in %1</source>
        <translation>Jetzt läuft: %1</translation>
    </message>
    <message>
        <source>In %1</source>
        <translation>Aktiv: %1</translation>
    </message>
    <message>
        <source>No tray here: open Vantle again to get this panel back</source>
        <translation>Hier ist kein Systemabschnitt: Öffne Vantle noch einmal, um dieses Panel wiederzubekommen</translation>
    </message>
    <message>
        <source>%1 chosen</source>
        <translation>%1 gewählt</translation>
    </message>
    <message>
        <source>Switched to %1</source>
        <translation>Gewechselt zu %1</translation>
    </message>
    <message>
        <source>Paused, away</source>
        <translation>Pausiert, abwesend</translation>
    </message>
    <message>
        <source>Resumed, %1</source>
        <translation>Fortgesetzt, %1</translation>
    </message>
    <message>
        <source>Session started, %1</source>
        <translation>Sitzung gestartet, %1</translation>
    </message>
    <message>
        <source>1 session</source>
        <translation>1 Sitzung</translation>
    </message>
    <message numerus="yes">
        <source>%n sessions</source>
        <translation>
            <numerusform>%n Sitzung</numerusform>
            <numerusform>%n Sitzungen</numerusform>
        </translation>
    </message>
    <message>
        <source>The week before: %1</source>
        <translation>Die Woche davor: %1</translation>
    </message>
    <message>
        <source>Last week: %1</source>
        <translation>Letzte Woche: %1</translation>
    </message>
    <message>
        <source>All of it tracked live</source>
        <translation>Alles live erfasst</translation>
    </message>
    <message>
        <source>All of it logged by hand</source>
        <translation>Alles von Hand eingetragen</translation>
    </message>
    <message>
        <source>%1 tracked live · %2 logged by hand</source>
        <translation>%1 live erfasst · %2 von Hand eingetragen</translation>
    </message>
    <message>
        <source>1 session has a note</source>
        <translation>1 Sitzung hat eine Notiz</translation>
    </message>
    <message numerus="yes">
        <source>%n sessions have notes</source>
        <translation>
            <numerusform>%n Sitzung hat eine Notiz</numerusform>
            <numerusform>%n Sitzungen haben Notizen</numerusform>
        </translation>
    </message>
    <message>
        <source>You crossed a milestone %1</source>
        <translation>Du hast %1 einen Meilenstein erreicht</translation>
    </message>
    <message numerus="yes">
        <source>You crossed %n milestones %1</source>
        <translation>
            <numerusform>Du hast %1 %n Meilenstein erreicht</numerusform>
            <numerusform>Du hast %1 %n Meilensteine erreicht</numerusform>
        </translation>
    </message>
    <message>
        <source>WRAPPED</source>
        <translation>WRAPPED</translation>
    </message>
    <message>
        <source>You built for</source>
        <translation>Du hast gebaut:</translation>
    </message>
    <message>
        <source>TOP SKILL</source>
        <translation>STÄRKSTER SKILL</translation>
    </message>
    <message>
        <source>Nothing %1 yet</source>
        <translation>Noch nichts %1</translation>
    </message>
    <message>
        <source>THE BREAKDOWN</source>
        <translation>DIE AUFTEILUNG</translation>
    </message>
    <message>
        <source>+%1 more</source>
        <translation>+%1 weitere</translation>
    </message>
    <message>
        <source>MILESTONES</source>
        <translation>MEILENSTEINE</translation>
    </message>
    <message>
        <source>MMM d</source>
        <comment>date pattern</comment>
        <translation>d. MMM</translation>
    </message>
    <message numerus="yes">
        <source>%n more notes are in your log</source>
        <translation>
            <numerusform>%n weitere Notiz steht in deinem Protokoll</numerusform>
            <numerusform>%n weitere Notizen stehen in deinem Protokoll</numerusform>
        </translation>
    </message>
    <message>
        <source>%1, IN WORDS</source>
        <translation>%1, IN WORTEN</translation>
    </message>
    <message>
        <source>Your builder personality is</source>
        <translation>Deine Art zu bauen</translation>
    </message>
    <message>
        <source>From %1</source>
        <translation>Gilt für: %1</translation>
    </message>
    <message>
        <source>Taking shape</source>
        <translation>Nimmt Gestalt an</translation>
    </message>
    <message>
        <source>%1 / %2 sessions</source>
        <translation>%1 / %2 Sitzungen</translation>
    </message>
    <message>
        <source>%1 / %2 days</source>
        <translation>%1 / %2 Tage</translation>
    </message>
    <message>
        <source>Complete 5 sessions across 2 days to reveal a pattern you can trust.</source>
        <translation>Schließ 5 Sitzungen an 2 Tagen ab, um ein Muster zu sehen, dem du trauen kannst.</translation>
    </message>
    <message>
        <source>Your type is based only on your local activity.</source>
        <translation>Dein Typ beruht nur auf dem, was du auf diesem Rechner tust.</translation>
    </message>
    <message>
        <source>YOUR BUILDER TYPE</source>
        <translation>DEIN BAUTYP</translation>
    </message>
    <message>
        <source>EEE, MMM d</source>
        <comment>date pattern</comment>
        <translation>EEE, d. MMM</translation>
    </message>
    <message>
        <source>One dot per finished hour, in the skill that earned it.</source>
        <translation>Ein Punkt je vollendeter Stunde, im Skill, der sie verdient hat.</translation>
    </message>
    <message>
        <source>One dot per finished hour. 1 earlier hour off the top.</source>
        <translation>Ein Punkt je vollendeter Stunde. 1 frühere Stunde steht nicht mehr da.</translation>
    </message>
    <message numerus="yes">
        <source>One dot per finished hour. %n earlier hours off the top.</source>
        <translation>
            <numerusform>Ein Punkt je vollendeter Stunde. %n frühere Stunde steht nicht mehr da.</numerusform>
            <numerusform>Ein Punkt je vollendeter Stunde. %n frühere Stunden stehen nicht mehr da.</numerusform>
        </translation>
    </message>
    <message>
        <source>YOUR RHYTHM</source>
        <translation>DEIN RHYTHMUS</translation>
    </message>
    <message>
        <source>EVERY HOUR, ON THE WALL</source>
        <translation>JEDE STUNDE, AUF DER WAND</translation>
    </message>
    <message>
        <source>Show %1</source>
        <translation>%1 zeigen</translation>
    </message>
    <message>
        <source>This week</source>
        <translation>Diese Woche</translation>
    </message>
    <message>
        <source>Last week</source>
        <translation>Letzte Woche</translation>
    </message>
    <message>
        <source>%1, day by day. Brighter is more time.</source>
        <translation>%1, Tag für Tag. Heller ist mehr Zeit.</translation>
    </message>
    <message>
        <source>Daily activity this month</source>
        <translation>Tägliche Aktivität in diesem Monat</translation>
    </message>
    <message>
        <source>Daily activity across %1, week by week</source>
        <translation>Tägliche Aktivität über %1, Woche für Woche</translation>
    </message>
    <message>
        <source>TOTAL</source>
        <translation>INSGESAMT</translation>
    </message>
    <message>
        <source>SESSION</source>
        <translation>SITZUNG</translation>
    </message>
    <message numerus="yes">
        <source>SESSIONS</source>
        <translation>
            <numerusform>SITZUNG</numerusform>
            <numerusform>SITZUNGEN</numerusform>
        </translation>
    </message>
    <message>
        <source>ACTIVE DAY</source>
        <translation>AKTIVER TAG</translation>
    </message>
    <message numerus="yes">
        <source>ACTIVE DAYS</source>
        <translation>
            <numerusform>AKTIVER TAG</numerusform>
            <numerusform>AKTIVE TAGE</numerusform>
        </translation>
    </message>
    <message>
        <source>Vantle · the work is adding up</source>
        <translation>Vantle · die Arbeit summiert sich</translation>
    </message>
    <message>
        <source>%1 average</source>
        <translation>%1 im Schnitt</translation>
    </message>
    <message>
        <source>Your clearest pattern is showing up and moving the work forward before noon.</source>
        <translation>Dein klarstes Muster: Du bist da und bringst die Arbeit am Vormittag voran.</translation>
    </message>
    <message>
        <source>Your deepest stretches of focused work tend to happen late at night.</source>
        <translation>Deine tiefsten Strecken konzentrierter Arbeit liegen meist spät in der Nacht.</translation>
    </message>
    <message>
        <source>You build momentum in compact late-night sessions.</source>
        <translation>Schwung holst du dir in dichten Sitzungen spät in der Nacht.</translation>
    </message>
    <message>
        <source>You make progress by staying with one part of the work for long stretches.</source>
        <translation>Du kommst voran, indem du lange Strecken bei einem Teil der Arbeit bleibst.</translation>
    </message>
    <message>
        <source>You keep several parts of the work moving through quick bursts.</source>
        <translation>Du hältst mehrere Teile der Arbeit mit schnellen Schüben in Bewegung.</translation>
    </message>
    <message>
        <source>You keep several parts of the work moving without losing your rhythm.</source>
        <translation>Du hältst mehrere Teile der Arbeit in Bewegung, ohne deinen Rhythmus zu verlieren.</translation>
    </message>
    <message>
        <source>You move meaningful work forward through long, committed sessions.</source>
        <translation>Du bringst Wesentliches in langen, entschlossenen Sitzungen voran.</translation>
    </message>
    <message>
        <source>You make progress through a calm, repeatable daytime rhythm.</source>
        <translation>Du kommst mit einem ruhigen, wiederholbaren Tagesrhythmus voran.</translation>
    </message>
    <message>
        <source>Your momentum tends to arrive after the rest of the day is done.</source>
        <translation>Dein Schwung kommt meist, wenn der Rest des Tages getan ist.</translation>
    </message>
    <message>
        <source>You make progress through a flexible rhythm that works across the day.</source>
        <translation>Du kommst mit einem beweglichen Rhythmus voran, der über den ganzen Tag trägt.</translation>
    </message>
    <message>
        <source>Early Bird</source>
        <translation>Früher Vogel</translation>
    </message>
    <message>
        <source>Night Owl</source>
        <translation>Nachteule</translation>
    </message>
    <message>
        <source>Night Shift</source>
        <translation>Nachtschicht</translation>
    </message>
    <message>
        <source>Deep Diver</source>
        <translation>Tieftaucher</translation>
    </message>
    <message>
        <source>Busy Bee</source>
        <translation>Fleißige Biene</translation>
    </message>
    <message>
        <source>Quick Hitter</source>
        <translation>Sprinter</translation>
    </message>
    <message>
        <source>Multi Builder</source>
        <translation>Mehrfachbauer</translation>
    </message>
    <message>
        <source>Long Hauler</source>
        <translation>Langstreckler</translation>
    </message>
    <message>
        <source>Steady Hand</source>
        <translation>Ruhige Hand</translation>
    </message>
    <message>
        <source>After Hours</source>
        <translation>Feierabendbauer</translation>
    </message>
    <message>
        <source>All Rounder</source>
        <translation>Allrounder</translation>
    </message>
    <message>
        <source>You tend to move work forward in short morning bursts.</source>
        <translation>Du bringst die Arbeit meist in kurzen Schüben am Morgen voran.</translation>
    </message>
    <message>
        <source>You tend to move work forward in quick daytime bursts.</source>
        <translation>Du bringst die Arbeit meist in schnellen Schüben am Tag voran.</translation>
    </message>
    <message>
        <source>You tend to move work forward in short evening bursts.</source>
        <translation>Du bringst die Arbeit meist in kurzen Schüben am Abend voran.</translation>
    </message>
    <message>
        <source>You tend to move work forward in quick late-night bursts.</source>
        <translation>Du bringst die Arbeit meist in schnellen Schüben spät in der Nacht voran.</translation>
    </message>
    <message>
        <source>You make progress in quick bursts throughout the day.</source>
        <translation>Du kommst mit schnellen Schüben über den ganzen Tag voran.</translation>
    </message>
    <message>
        <source>Before noon</source>
        <translation>Vormittags</translation>
    </message>
    <message>
        <source>Noon to 6 PM</source>
        <translation>Mittag bis 18 Uhr</translation>
    </message>
    <message>
        <source>After 6 PM</source>
        <translation>Nach 18 Uhr</translation>
    </message>
    <message>
        <source>Late night</source>
        <translation>Spät in der Nacht</translation>
    </message>
    <message>
        <source>Across the day</source>
        <translation>Über den Tag</translation>
    </message>
    <message>
        <source>Your starts are spread across the whole day.</source>
        <translation>Du beginnst über den ganzen Tag verteilt.</translation>
    </message>
    <message>
        <source>Most sessions started before noon.</source>
        <translation>Die meisten Sitzungen begannen am Vormittag.</translation>
    </message>
    <message>
        <source>%1 of %2 sessions started before noon.</source>
        <translation>%1 von %2 Sitzungen begannen am Vormittag.</translation>
    </message>
    <message>
        <source>Most sessions started in the afternoon.</source>
        <translation>Die meisten Sitzungen begannen am Nachmittag.</translation>
    </message>
    <message>
        <source>%1 of %2 sessions started between noon and 6 PM.</source>
        <translation>%1 von %2 Sitzungen begannen zwischen Mittag und 18 Uhr.</translation>
    </message>
    <message>
        <source>Most sessions started after dark.</source>
        <translation>Die meisten Sitzungen begannen am Abend.</translation>
    </message>
    <message>
        <source>%1 of %2 sessions started after 6 PM.</source>
        <translation>%1 von %2 Sitzungen begannen nach 18 Uhr.</translation>
    </message>
    <message>
        <source>Most sessions started late at night.</source>
        <translation>Die meisten Sitzungen begannen spät in der Nacht.</translation>
    </message>
    <message>
        <source>%1 of %2 sessions started after 10 PM.</source>
        <translation>%1 von %2 Sitzungen begannen nach 22 Uhr.</translation>
    </message>
    <message>
        <source>Your best week yet.</source>
        <translation>Deine bisher beste Woche.</translation>
    </message>
    <message>
        <source>Your 2nd best week.</source>
        <translation>Deine zweitbeste Woche.</translation>
    </message>
    <message>
        <source>Your 3rd best week.</source>
        <translation>Deine drittbeste Woche.</translation>
    </message>
    <message>
        <source>You hit your daily goal once.</source>
        <translation>Du hast dein Tagesziel einmal erreicht.</translation>
    </message>
    <message numerus="yes">
        <source>You hit your daily goal %n times.</source>
        <translation>
            <numerusform>Du hast dein Tagesziel %n-mal erreicht.</numerusform>
                <numerusform>Du hast dein Tagesziel %n-mal erreicht.</numerusform>
        </translation>
    </message>
    <message>
        <source>Your biggest day was %1x your average.</source>
        <translation>Dein größter Tag war das %1-Fache deines Schnitts.</translation>
    </message>
    <message numerus="yes">
        <source>You showed up on %n different days.</source>
        <translation>
            <numerusform>Du warst an %n Tag da.</numerusform>
            <numerusform>Du warst an %n verschiedenen Tagen da.</numerusform>
        </translation>
    </message>
    <message>
        <source>You showed up every single day %1.</source>
        <translation>Du warst %1 an jedem einzelnen Tag da.</translation>
    </message>
    <message>
        <source>You showed up %1 of %2 days.</source>
        <translation>Du warst an %1 von %2 Tagen da.</translation>
    </message>
    <message>
        <source>Longest session: %1 of %2.</source>
        <translation>Längste Sitzung: %1 für %2.</translation>
    </message>
    <message>
        <source>Your total has passed %1 hours.</source>
        <translation>Zusammen hast du %1 Stunden überschritten.</translation>
    </message>
    <message>
        <source>You crossed the %1 hour mark %2.</source>
        <translation>Du hast %2 die Marke von %1 Stunden überschritten.</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>Heute</translation>
    </message>
    <message>
        <source>today</source>
        <translation>heute</translation>
    </message>
    <message>
        <source>YOUR DAY, IN FULL</source>
        <translation>DEIN GANZER TAG</translation>
    </message>
    <message>
        <source>Week</source>
        <translation>Woche</translation>
    </message>
    <message>
        <source>this week</source>
        <translation>diese Woche</translation>
    </message>
    <message>
        <source>YOUR WEEK, IN FULL</source>
        <translation>DEINE GANZE WOCHE</translation>
    </message>
    <message>
        <source>This month</source>
        <translation>Dieser Monat</translation>
    </message>
    <message>
        <source>Month</source>
        <translation>Monat</translation>
    </message>
    <message>
        <source>this month</source>
        <translation>diesen Monat</translation>
    </message>
    <message>
        <source>YOUR MONTH, IN FULL</source>
        <translation>DEIN GANZER MONAT</translation>
    </message>
    <message>
        <source>All time</source>
        <translation>Insgesamt</translation>
    </message>
    <message>
        <source>all time</source>
        <translation>insgesamt</translation>
    </message>
    <message>
        <source>YOUR WORK, IN FULL</source>
        <translation>DEINE GANZE ARBEIT</translation>
    </message>
    <message>
        <source>last week</source>
        <translation>letzte Woche</translation>
    </message>
    <message>
        <source>%1 across one session, led by %2.</source>
        <translation>%1 in einer Sitzung, vor allem %2.</translation>
    </message>
    <message numerus="yes">
        <source>%1 across %n sessions, led by %2.</source>
        <translation>
            <numerusform>%1 in %n Sitzung, vor allem %2.</numerusform>
            <numerusform>%1 in %n Sitzungen, vor allem %2.</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 across one session.</source>
        <translation>%1 in einer Sitzung.</translation>
    </message>
    <message numerus="yes">
        <source>%1 across %n sessions.</source>
        <translation>
            <numerusform>%1 in %n Sitzung.</numerusform>
            <numerusform>%1 in %n Sitzungen.</numerusform>
        </translation>
    </message>
    <message>
        <source>TYPICAL START</source>
        <translation>ÜBLICHER BEGINN</translation>
    </message>
    <message>
        <source>LONGEST SESSION</source>
        <translation>LÄNGSTE SITZUNG</translation>
    </message>
    <message>
        <source>BIGGEST DAY</source>
        <translation>GRÖSSTER TAG</translation>
    </message>
    <message>
        <source>WHEN YOU BUILD</source>
        <translation>WANN DU BAUST</translation>
    </message>
    <message>
        <source>when sessions begin</source>
        <translation>wann Sitzungen beginnen</translation>
    </message>
    <message>
        <source>Session starts by hour of day</source>
        <translation>Beginn der Sitzungen nach Tagesstunde</translation>
    </message>
    <message>
        <source>PEAK · %1</source>
        <translation>SPITZE · %1</translation>
    </message>
    <message>
        <source>HIGH POINTS</source>
        <translation>HÖHEPUNKTE</translation>
    </message>
    <message>
        <source>The numbers worth saying out loud %1</source>
        <translation>Zahlen, die man laut sagen darf: %1</translation>
    </message>
    <message>
        <source>Ready when you are</source>
        <translation>Bereit, wenn du es bist</translation>
    </message>
    <message>
        <source>Track your first session and this fills in.</source>
        <translation>Erfass deine erste Sitzung, dann füllt sich das hier.</translation>
    </message>
    <message>
        <source>Nothing tracked last week</source>
        <translation>Letzte Woche nichts erfasst</translation>
    </message>
    <message>
        <source>Start a session and this week&apos;s page fills in.</source>
        <translation>Starte eine Sitzung, dann füllt sich die Seite dieser Woche.</translation>
    </message>
    <message>
        <source>Start a session and this page fills in.</source>
        <translation>Starte eine Sitzung, dann füllt sich diese Seite.</translation>
    </message>
    <message>
        <source>Couldn’t save Auto mode choices: %1</source>
        <translation>Die Wahl für den Auto-Modus konnte nicht gesichert werden: %1</translation>
    </message>
    <message>
        <source>Couldn’t erase Auto mode data: %1</source>
        <translation>Die Daten des Auto-Modus konnten nicht gelöscht werden: %1</translation>
    </message>
    <message>
        <source>Always count %1 as %2?</source>
        <translation>%1 immer als %2 zählen?</translation>
    </message>
    <message>
        <source>Keeps Auto mode as it is</source>
        <translation>Lässt den Auto-Modus, wie er ist</translation>
    </message>
    <message>
        <source>Auto mode counts %1 as %2 from now on</source>
        <translation>Der Auto-Modus zählt %1 von jetzt an als %2</translation>
    </message>
    <message>
        <source>Vantle Session Summary</source>
        <translation>Vantle-Sitzungsbericht</translation>
    </message>
    <message>
        <source>Vantle Recovery</source>
        <translation>Vantle-Wiederherstellung</translation>
    </message>
    <message>
        <source>Vantle Question</source>
        <translation>Vantle-Frage</translation>
    </message>
    <message>
        <source>Vantle Saved Time</source>
        <translation>Vantle: gesicherte Zeit</translation>
    </message>
    <message>
        <source>Keep</source>
        <translation>Behalten</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>Verwerfen</translation>
    </message>
    <message>
        <source>Vantle didn&apos;t shut down cleanly. Keep %1 of %2? Nothing is saved unless you choose Keep.</source>
        <translation>Vantle wurde nicht sauber beendet. %1 für %2 behalten? Nichts wird gesichert, wenn du nicht „Behalten“ wählst.</translation>
    </message>
    <message>
        <source>Recover your last session?</source>
        <translation>Deine letzte Sitzung retten?</translation>
    </message>
    <message>
        <source>Deletes the interrupted session without saving it</source>
        <translation>Löscht die unterbrochene Sitzung, ohne sie zu sichern</translation>
    </message>
    <message>
        <source>Saves the interrupted session to your local log</source>
        <translation>Sichert die unterbrochene Sitzung in deinem Protokoll</translation>
    </message>
    <message>
        <source>%1 saved</source>
        <translation>%1 gesichert</translation>
    </message>
    <message>
        <source>Session stopped, %1. %2</source>
        <translation>Sitzung gestoppt, %1. %2</translation>
    </message>
    <message>
        <source>Last session: %1</source>
        <translation>Letzte Sitzung: %1</translation>
    </message>
    <message>
        <source>Write a note</source>
        <translation>Notiz schreiben</translation>
    </message>
    <message>
        <source>One line about what you worked on. Return saves it, Escape goes back.</source>
        <translation>Eine Zeile darüber, woran du gearbeitet hast. Enter sichert sie, Escape geht zurück.</translation>
    </message>
    <message numerus="yes">
        <source>Completed %n hours on your wall</source>
        <translation>
            <numerusform>%n Stunde auf deiner Wand vollendet</numerusform>
            <numerusform>%n Stunden auf deiner Wand vollendet</numerusform>
        </translation>
    </message>
    <message>
        <source>Not now</source>
        <translation>Jetzt nicht</translation>
    </message>
    <message>
        <source>Always</source>
        <translation>Immer</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Nein</translation>
    </message>
    <message>
        <source>%1 The answers are in the panel.</source>
        <translation>%1 Die Antworten stehen im Panel.</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>%1: %2, %3</source>
        <translation>%1: %2, %3</translation>
    </message>
    <message>
        <source>manual</source>
        <translation>von Hand</translation>
    </message>
    <message>
        <source>%1 goal · a session starts the bar</source>
        <translation>Ziel: %1 · mit der ersten Sitzung beginnt der Balken</translation>
    </message>
    <message>
        <source>next milestone %1</source>
        <translation>nächster Meilenstein %1</translation>
    </message>
    <message>
        <source>Your first dot lights at 1 h</source>
        <translation>Dein erster Punkt leuchtet bei 1 h</translation>
    </message>
    <message>
        <source>of %1 goal</source>
        <translation>von %1 Tagesziel</translation>
    </message>
    <message>
        <source>of %1</source>
        <translation>von %1</translation>
    </message>
    <message>
        <source>Your first hour lights the first dot</source>
        <translation>Deine erste Stunde lässt den ersten Punkt leuchten</translation>
    </message>
    <message>
        <source>1 hour</source>
        <translation>1 Stunde</translation>
    </message>
    <message numerus="yes">
        <source>%n hours</source>
        <translation>
            <numerusform>%n Stunde</numerusform>
            <numerusform>%n Stunden</numerusform>
        </translation>
    </message>
    <message>
        <source>Hour wall, %1 completed hours, current hour %2 percent complete</source>
        <translation>Stundenwand, %1 volle Stunden, die laufende Stunde zu %2 Prozent voll</translation>
    </message>
    <message>
        <source>MMM d · HH:mm</source>
        <comment>date pattern</comment>
        <translation>d. MMM · HH:mm</translation>
    </message>
    <message>
        <source>1 session · %1</source>
        <translation>1 Sitzung · %1</translation>
    </message>
    <message numerus="yes">
        <source>%n sessions · %1</source>
        <translation>
            <numerusform>%n Sitzung · %1</numerusform>
            <numerusform>%n Sitzungen · %1</numerusform>
        </translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>Pausiert</translation>
    </message>
    <message>
        <source>Stop · %1</source>
        <translation>Stoppen · %1</translation>
    </message>
    <message>
        <source>%1. Stops the session.</source>
        <translation>%1. Stoppt die Sitzung.</translation>
    </message>
    <message>
        <source>Data warning: %1</source>
        <translation>Warnung zu den Daten: %1</translation>
    </message>
    <message>
        <source>Dashboard</source>
        <translation>Übersicht</translation>
    </message>
    <message>
        <source>Your hours</source>
        <translation>Deine Stunden</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Starten</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Stoppen</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Öffnen</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Beenden</translation>
    </message>
    <message>
        <source>MMM d, yyyy</source>
        <comment>date pattern</comment>
        <translation>d. MMM yyyy</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>Gestern</translation>
    </message>
    <message>
        <source>Manual</source>
        <translation>Von Hand</translation>
    </message>
    <message>
        <source>note</source>
        <translation>Notiz</translation>
    </message>
    <message numerus="yes">
        <source>notes</source>
        <translation>
            <numerusform>Notiz</numerusform>
            <numerusform>Notizen</numerusform>
        </translation>
    </message>
    <message>
        <source>Across %1 of the work you filtered to.</source>
        <translation>Über %1 der Arbeit, nach der du filterst.</translation>
    </message>
    <message>
        <source>Across %1 of tracked work.</source>
        <translation>Über %1 erfasster Arbeit.</translation>
    </message>
    <message>
        <source>Longest noted session: %1. Most noted: %2.</source>
        <translation>Längste Sitzung mit Notiz: %1. Meiste Notizen: %2.</translation>
    </message>
    <message>
        <source>Notes</source>
        <translation>Notizen</translation>
    </message>
    <message>
        <source>Your notes</source>
        <translation>Deine Notizen</translation>
    </message>
    <message>
        <source>1 minute</source>
        <translation>1 Minute</translation>
    </message>
    <message numerus="yes">
        <source>%n minutes</source>
        <translation>
            <numerusform>%n Minute</numerusform>
            <numerusform>%n Minuten</numerusform>
        </translation>
    </message>
    <message>
        <source>Enter a time between 1 minute and 16 hours.</source>
        <translation>Gib eine Zeit zwischen 1 Minute und 16 Stunden ein.</translation>
    </message>
    <message>
        <source>Couldn’t save that entry.</source>
        <translation>Dieser Eintrag konnte nicht gesichert werden.</translation>
    </message>
    <message>
        <source>Quick Log</source>
        <translation>Schnelleintrag</translation>
    </message>
    <message>
        <source>Forget %1 and its category</source>
        <translation>%1 und seine Kategorie vergessen</translation>
    </message>
    <message>
        <source>Forget %1</source>
        <translation>%1 vergessen</translation>
    </message>
    <message>
        <source>Skill for %1</source>
        <translation>Skill für %1</translation>
    </message>
    <message>
        <source>Apps you use will appear here once Auto mode is on.</source>
        <translation>Apps, die du benutzt, erscheinen hier, sobald der Auto-Modus eingeschaltet ist.</translation>
    </message>
    <message>
        <source>Sparkles means Vantle categorized the app locally. Change any choice, or remove an app with ×. Browsers stay unassigned because their purpose is ambiguous.</source>
        <translation>Funken heißt: Vantle hat die App hier auf dem Rechner zugeordnet. Ändere jede Wahl oder entferne eine App mit ×. Browser bleiben ohne Zuordnung, weil ihr Zweck nicht eindeutig ist.</translation>
    </message>
    <message>
        <source>Ignore</source>
        <translation>Ignorieren</translation>
    </message>
    <message>
        <source>Not set</source>
        <translation>Nicht gesetzt</translation>
    </message>
    <message>
        <source>Couldn&apos;t export: %1</source>
        <translation>Export fehlgeschlagen: %1</translation>
    </message>
    <message>
        <source>Choose a Shortcut</source>
        <translation>Kurzbefehl wählen</translation>
    </message>
    <message>
        <source>Couldn&apos;t open Shortcuts: %1</source>
        <translation>Die Kurzbefehle ließen sich nicht öffnen: %1</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>min</source>
        <translation>min</translation>
    </message>
    <message>
        <source>h</source>
        <translation>h</translation>
    </message>
    <message>
        <source>%1 h</source>
        <translation>%1 h</translation>
    </message>
    <message>
        <source>%1 h %2 min</source>
        <translation>%1 h %2 min</translation>
    </message>
    <message>
        <source>%1 h %2</source>
        <translation>%1 h %2</translation>
    </message>
    <message>
        <source>0 min</source>
        <translation>0 min</translation>
    </message>
    <message>
        <source>%1 sec</source>
        <translation>%1 s</translation>
    </message>
    <message>
        <source>&lt;1 min</source>
        <translation>&lt;1 min</translation>
    </message>
    <message>
        <source>%1 min</source>
        <translation>%1 min</translation>
    </message>
    <message>
        <source>Natural</source>
        <translation>Natürlich</translation>
    </message>
    <message>
        <source>Hours and minutes</source>
        <translation>Stunden und Minuten</translation>
    </message>
    <message>
        <source>Minutes only</source>
        <translation>Nur Minuten</translation>
    </message>
    <message>
        <source>Clock</source>
        <translation>Uhr</translation>
    </message>
    <message>
        <source>welcome back, paused %1m</source>
        <translation>willkommen zurück, %1 min Pause</translation>
    </message>
    <message>
        <source>1 unreadable session record is preserved in the export but excluded from totals.</source>
        <translation>1 unlesbarer Sitzungseintrag bleibt im Export erhalten, zählt aber nicht zu den Summen.</translation>
    </message>
    <message numerus="yes">
        <source>%n unreadable session records are preserved in the export but excluded from totals.</source>
        <translation>
            <numerusform>%n unlesbarer Sitzungseintrag bleibt im Export erhalten, zählt aber nicht zu den Summen.</numerusform>
            <numerusform>%n unlesbare Sitzungseinträge bleiben im Export erhalten, zählen aber nicht zu den Summen.</numerusform>
        </translation>
    </message>
    <message>
        <source>Couldn’t save your hours. Check available disk space and folder permissions, then try again. (%1)</source>
        <translation>Deine Stunden konnten nicht gesichert werden. Prüf den freien Speicherplatz und die Rechte des Ordners und versuch es noch einmal. (%1)</translation>
    </message>
    <message>
        <source>Wayland session</source>
        <translation>Wayland-Sitzung</translation>
    </message>
    <message>
        <source>%1  ·  PAUSED</source>
        <translation>%1  ·  PAUSIERT</translation>
    </message>
    <message>
        <source>Start vantle</source>
        <translation>Vantle starten</translation>
    </message>
    <message>
        <source>Click a skill to start vantle</source>
        <translation>Klick einen Skill an, um Vantle zu starten</translation>
    </message>
    <message>
        <source>Click a skill to switch. Click anywhere else to stop.</source>
        <translation>Klick einen Skill an, um zu wechseln. Ein Klick anderswo stoppt.</translation>
    </message>
    <message>
        <source>Click to end the session</source>
        <translation>Ein Klick beendet die Sitzung</translation>
    </message>
    <message>
        <source>Vantle Capsule</source>
        <translation>Vantle-Kapsel</translation>
    </message>
    <message>
        <source>Vantle Command Center</source>
        <translation>Vantle-Befehlszentrale</translation>
    </message>
    <message>
        <source>Paused (away) · %1</source>
        <translation>Pausiert (abwesend) · %1</translation>
    </message>
    <message>
        <source>Ready to focus</source>
        <translation>Bereit für Fokus</translation>
    </message>
    <message>
        <source>Only active time counts.</source>
        <translation>Nur aktive Zeit zählt.</translation>
    </message>
    <message>
        <source>Time is paused while you’re away.</source>
        <translation>Solange du weg bist, steht die Zeit.</translation>
    </message>
    <message>
        <source>Choose where your effort should go.</source>
        <translation>Wähl, wohin deine Mühe gehen soll.</translation>
    </message>
    <message>
        <source>Stop · %1 · paused</source>
        <translation>Stoppen · %1 · pausiert</translation>
    </message>
    <message>
        <source>Enter %1 Mode</source>
        <translation>Modus %1 starten</translation>
    </message>
    <message>
        <source>Enter %1</source>
        <translation>%1 starten</translation>
    </message>
    <message>
        <source>Color %1</source>
        <translation>Farbe %1</translation>
    </message>
    <message>
        <source>%1, selected</source>
        <translation>%1, ausgewählt</translation>
    </message>
    <message>
        <source>%1, not selected</source>
        <translation>%1, nicht ausgewählt</translation>
    </message>
    <message>
        <source>Page %1 of %2</source>
        <translation>Seite %1 von %2</translation>
    </message>
    <message>
        <source>Nov 21 · 13:12</source>
        <translation>21. Nov. · 13:12</translation>
    </message>
    <message>
        <source>Nov 20 · 18:26</source>
        <translation>20. Nov. · 18:26</translation>
    </message>
    <message>
        <source>Save image</source>
        <translation>Bild sichern</translation>
    </message>
    <message>
        <source>PNG image</source>
        <translation>PNG-Bild</translation>
    </message>
    <message>
        <source>Couldn&apos;t render the image</source>
        <translation>Das Bild konnte nicht erzeugt werden</translation>
    </message>
    <message>
        <source>Couldn&apos;t save there. Try a different folder.</source>
        <translation>Hier ging das Sichern nicht. Versuch einen anderen Ordner.</translation>
    </message>
    <message>
        <source>Copied</source>
        <translation>Kopiert</translation>
    </message>
    <message>
        <source>Copy image</source>
        <translation>Bild kopieren</translation>
    </message>
    <message>
        <source>Wrapped</source>
        <translation>Wrapped</translation>
    </message>
    <message>
        <source>Red</source>
        <translation>Rot</translation>
    </message>
    <message>
        <source>Orange</source>
        <translation>Orange</translation>
    </message>
    <message>
        <source>Violet</source>
        <translation>Violett</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>Grün</translation>
    </message>
    <message>
        <source>Sky</source>
        <translation>Himmelblau</translation>
    </message>
    <message>
        <source>Yellow</source>
        <translation>Gelb</translation>
    </message>
    <message>
        <source>Purple</source>
        <translation>Lila</translation>
    </message>
    <message>
        <source>Pink</source>
        <translation>Rosa</translation>
    </message>
    <message>
        <source>Teal</source>
        <translation>Petrol</translation>
    </message>
    <message>
        <source>Lime</source>
        <translation>Limette</translation>
    </message>
    <message>
        <source>Another key does as well. In your desktop&apos;s keyboard settings, bind one to this command:</source>
        <translation>Eine andere Taste tut es auch. Leg in den Tastatureinstellungen deines Desktops eine auf diesen Befehl:</translation>
    </message>
    <message>
        <source>This desktop shows no tray, so there is no icon to click. Open Vantle from your applications once more, and its panel comes up.</source>
        <translation>Dieser Desktop zeigt keinen Systemabschnitt, also gibt es kein Symbol zum Anklicken. Öffne Vantle noch einmal aus deinen Anwendungen, dann erscheint sein Panel.</translation>
    </message>
    <message>
        <source>This desktop doesn&apos;t tell apps when you last used keyboard or mouse, so Vantle can&apos;t pause by that. Stop the session when you step away.</source>
        <translation>Dieser Desktop sagt Apps nicht, wann du zuletzt Tastatur oder Maus benutzt hast, also kann Vantle nicht danach pausieren. Stopp die Sitzung, wenn du weggehst.</translation>
    </message>
    <message>
        <source>This desktop tells Vantle about some apps only. In all others Auto mode does nothing, and time stays under the category it has.</source>
        <translation>Dieser Desktop sagt Vantle nur von manchen Apps etwas. In allen anderen tut der Auto-Modus nichts, und die Zeit bleibt bei ihrer Kategorie.</translation>
    </message>
    <message>
        <source>This desktop doesn&apos;t tell Vantle which app is in front, so Auto mode has nothing to go by. Choose the category by hand.</source>
        <translation>Dieser Desktop sagt Vantle nicht, welche App vorn ist, also hat der Auto-Modus nichts, wonach er sich richten kann. Wähl die Kategorie von Hand.</translation>
    </message>
    <message>
        <source>This desktop doesn&apos;t tell Vantle which app is in front, so Auto mode has nothing to go by.</source>
        <translation>Dieser Desktop sagt Vantle nicht, welche App vorn ist, also hat der Auto-Modus nichts, wonach er sich richten kann.</translation>
    </message>
    <message>
        <source>A small GNOME extension came with Vantle: it tells Vantle the name of the app in front, and nothing else.</source>
        <translation>Eine kleine GNOME-Erweiterung kam mit Vantle: Sie sagt Vantle den Namen der App, die vorn ist, und sonst nichts.</translation>
    </message>
    <message>
        <source>GNOME did not switch Vantle&apos;s extension on. Allow extensions in GNOME&apos;s Extensions app, and try again.</source>
        <translation>GNOME hat die Erweiterung von Vantle nicht eingeschaltet. Erlaub Erweiterungen in GNOMEs App „Erweiterungen“ und versuch es noch einmal.</translation>
    </message>
    <message>
        <source>A small GNOME extension came with Vantle since you logged in. Log out and in again, and you can switch it on here.</source>
        <translation>Seit deiner Anmeldung kam eine kleine GNOME-Erweiterung mit Vantle. Meld dich ab und wieder an, dann kannst du sie hier einschalten.</translation>
    </message>
    <message>
        <source>Switch the extension on</source>
        <translation>Erweiterung einschalten</translation>
    </message>
    <message>
        <source>Switching it on…</source>
        <translation>Wird eingeschaltet …</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>Noch einmal versuchen</translation>
    </message>
    <message>
        <source>This desktop doesn&apos;t tell Vantle which app is in front, so nothing starts on its own.</source>
        <translation>Dieser Desktop sagt Vantle nicht, welche App vorn ist, also startet nichts von selbst.</translation>
    </message>
    <message>
        <source>This desktop doesn&apos;t tell apps when you last used keyboard or mouse, so Vantle can&apos;t know that you are there: it starts nothing on its own, and asks about no app.</source>
        <translation>Dieser Desktop sagt Apps nicht, wann du zuletzt Tastatur oder Maus benutzt hast, also kann Vantle nicht wissen, dass du da bist: Es startet nichts von selbst und fragt nach keiner App.</translation>
    </message>
    <message>
        <source>In this %1 a ceremony would catch every click while it plays, so none plays.</source>
        <translation>In dieser %1 finge eine Zeremonie jeden Klick ab, solange sie läuft, also läuft keine.</translation>
    </message>
    <message>
        <source>This desktop gives Vantle the shortcut only if you say so: set it up, or bind a key to this command:</source>
        <translation>Dieser Desktop gibt Vantle das Tastenkürzel nur, wenn du es erlaubst: Richte es ein oder leg eine Taste auf diesen Befehl:</translation>
    </message>
    <message>
        <source>Your desktop&apos;s settings leave Vantle without keys. Choose some there, or bind a key to this command:</source>
        <translation>In den Einstellungen deines Desktops hat Vantle keine Tasten. Wähl dort welche oder leg eine Taste auf diesen Befehl:</translation>
    </message>
    <message>
        <source>In this %1 no app can take keys by itself. In your desktop&apos;s keyboard settings, bind a key to this command, and it works over all apps:</source>
        <translation>In dieser %1 kann keine App selbst Tasten belegen. Leg in den Tastatureinstellungen deines Desktops eine Taste auf diesen Befehl, dann wirkt sie über allen Apps:</translation>
    </message>
    <message>
        <source>Switch the shortcut off</source>
        <translation>Tastenkürzel ausschalten</translation>
    </message>
    <message>
        <source>Set up the shortcut</source>
        <translation>Tastenkürzel einrichten</translation>
    </message>
    <message>
        <source>%1 · active</source>
        <translation>%1 · aktiv</translation>
    </message>
    <message>
        <source>The desktop has not answered yet</source>
        <translation>Der Desktop hat noch nicht geantwortet</translation>
    </message>
    <message>
        <source>The shortcut doesn&apos;t work here yet. The settings say how it can.</source>
        <translation>Das Tastenkürzel wirkt hier noch nicht. Die Einstellungen sagen, wie es gehen kann.</translation>
    </message>
</context>
<context>
    <name>WrappedPage</name>
    <message>
        <source>Period</source>
        <translation>Zeitraum</translation>
    </message>
</context>
<context>
    <name>WrappedReadyRow</name>
    <message>
        <source>Your Wrapped is ready. Opens last week&apos;s recap.</source>
        <translation>Dein Wrapped ist fertig. Öffnet den Rückblick auf letzte Woche.</translation>
    </message>
    <message>
        <source>Opens last week&apos;s Wrapped</source>
        <translation>Öffnet das Wrapped der letzten Woche</translation>
    </message>
    <message>
        <source>Your Wrapped is ready</source>
        <translation>Dein Wrapped ist fertig</translation>
    </message>
    <message>
        <source>View it ›</source>
        <translation>Ansehen ›</translation>
    </message>
</context>
<context>
    <name>YearSwitch</name>
    <message>
        <source>Year</source>
        <translation>Jahr</translation>
    </message>
    <message>
        <source>Selected</source>
        <translation>Ausgewählt</translation>
    </message>
    <message>
        <source>Not selected</source>
        <translation>Nicht ausgewählt</translation>
    </message>
</context>
</TS>
