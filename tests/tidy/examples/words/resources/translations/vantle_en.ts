<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en">
<context>
    <name>Row</name>
    <message>
        <source>⌘Q</source>
        <translation>Ctrl+Q</translation>
    </message>
</context>
<context>
    <name>Words</name>
    <message>
        <source>Made on this Mac</source>
        <translation>Made on this computer</translation>
    </message>
    <message>
        <source>Shown in Finder</source>
        <translation>Shown in the Finder of this desktop</translation>
    </message>
    <message>
        <source>Draft</source>
        <translation>Draft</translation>
    </message>
    <message>
        <source>Gone from this Mac</source>
        <translation>Gone from this computer</translation>
    </message>
</context>
</TS>
