<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de">
<context>
    <name>Row</name>
    <message>
        <source>⌘Q</source>
        <translation>Strg+Q</translation>
    </message>
</context>
<context>
    <name>Words</name>
    <message>
        <source>Kept on this Mac</source>
        <translation>Bleibt auf diesem Rechner</translation>
    </message>
    <message>
        <source>Made on this Mac</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shown in Finder</source>
        <translation>Im Dateimanager gezeigt</translation>
    </message>
</context>
</TS>
