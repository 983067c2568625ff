<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name>TamselSolarTimes</name>
    <message>
        <source>Sun times use your Mac&apos;s saved location, calculated locally.</source>
        <translation>Sun times use this computer&apos;s saved location, calculated locally.</translation>
    </message>
    <message>
        <source>Waiting for your Mac&apos;s location...</source>
        <translation>Waiting for this computer&apos;s location...</translation>
    </message>
    <message>
        <source>Sun times use your Mac&apos;s location, calculated locally.</source>
        <translation>Sun times use this computer&apos;s location, calculated locally.</translation>
    </message>
</context>
<context>
    <name>TimeRows</name>
    <message>
        <source>Update Mac location...</source>
        <translation>Update this computer&apos;s location...</translation>
    </message>
    <message>
        <source>Use Mac location...</source>
        <translation>Use this computer&apos;s location...</translation>
    </message>
    <message>
        <source>Sunrise and sunset need your Mac&apos;s location</source>
        <translation>Sunrise and sunset need this computer&apos;s location</translation>
    </message>
    <message>
        <source>Allow location access in the Pelko Location app, or choose Custom time in the From and To menus. The location stays on this Mac.</source>
        <translation>Allow location access in the Pelko Location app, or choose Custom time in the From and To menus. The location stays on this computer.</translation>
    </message>
    <message>
        <source>Use Mac location</source>
        <translation>Use this computer&apos;s location</translation>
    </message>
</context>
</TS>
