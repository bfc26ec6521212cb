<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name>ClockStudio::PropertyPanel</name>
    <message numerus="yes">
        <source>%n clock(s)</source>
        <translation>
            <numerusform>%n clock</numerusform>
            <numerusform>%n clocks</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ClockStudio::WallView</name>
    <message numerus="yes">
        <source>%n clock(s) selected</source>
        <translation>
            <numerusform>%n clock selected</numerusform>
            <numerusform>%n clocks selected</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ClockStudio::ZoneSection</name>
    <message numerus="yes">
        <source>Daylight saving moves this zone&apos;s time by %n minute(s); a clock can only move by an hour.</source>
        <translation>
            <numerusform>Daylight saving moves this zone&apos;s time by %n minute; a clock can only move by an hour.</numerusform>
            <numerusform>Daylight saving moves this zone&apos;s time by %n minutes; a clock can only move by an hour.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The clock will be wrong %n time(s) in the next ten years, first from %1 to %2.</source>
        <translation>
            <numerusform>The clock will be wrong once in the next ten years, from %1 to %2.</numerusform>
            <numerusform>The clock will be wrong %n times in the next ten years, first from %1 to %2.</numerusform>
        </translation>
    </message>
</context>
</TS>
