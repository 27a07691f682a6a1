<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name>AlertIndicator</name>
    <message numerus="yes">
        <source>%n to acknowledge</source>
        <translation>
            <numerusform>%n to acknowledge</numerusform>
            <numerusform>%n to acknowledge</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ConfigSearch</name>
    <message numerus="yes">
        <source>%n hit(s)</source>
        <translation>
            <numerusform>%n hit</numerusform>
            <numerusform>%n hits</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ConfigWindow</name>
    <message numerus="yes">
        <source>%n setting(s) changed</source>
        <translation>
            <numerusform>%n setting changed</numerusform>
            <numerusform>%n settings changed</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>LogFile</name>
    <message numerus="yes">
        <source>%n lines are missing here.</source>
        <translation>
            <numerusform>%n line is missing here.</numerusform>
            <numerusform>%n lines are missing here.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>MapImport</name>
    <message numerus="yes">
        <source>%n feature(s) without a usable shape were left out.</source>
        <translation>
            <numerusform>%n feature without a usable shape was left out.</numerusform>
            <numerusform>%n features without a usable shape were left out.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n feature(s) outside of the globe were left out. Are the coordinates not degrees, and the reference system not stated?</source>
        <translation>
            <numerusform>%n feature outside of the globe was left out. Are the coordinates not degrees, and the reference system not stated?</numerusform>
            <numerusform>%n features outside of the globe were left out. Are the coordinates not degrees, and the reference system not stated?</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ReplayWindow</name>
    <message numerus="yes">
        <source>%1, %2, %n message(s)</source>
        <translation>
            <numerusform>%1, %2, %n message</numerusform>
            <numerusform>%1, %2, %n messages</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>SensorManagerWindow</name>
    <message numerus="yes">
        <source>and %n more</source>
        <translation>
            <numerusform>and %n more</numerusform>
            <numerusform>and %n more</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n sensor(s) imported.</source>
        <translation>
            <numerusform>%n sensor imported.</numerusform>
            <numerusform>%n sensors imported.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>SourceTableModel</name>
    <message numerus="yes">
        <source>%n report(s)</source>
        <translation>
            <numerusform>%n report</numerusform>
            <numerusform>%n reports</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>TrackExplanation</name>
    <message numerus="yes">
        <source>in none of the last %n report(s)</source>
        <translation>
            <numerusform>not in the last report</numerusform>
            <numerusform>in none of the last %n reports</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>UnlockWindow</name>
    <message numerus="yes">
        <source>This is not the password. Try again in %n s.</source>
        <translation>
            <numerusform>This is not the password. Try again in %n s.</numerusform>
            <numerusform>This is not the password. Try again in %n s.</numerusform>
        </translation>
    </message>
</context>
</TS>
