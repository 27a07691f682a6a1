<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
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
    <name>TrackExplanation</name>
    <message numerus="yes">
        <source>in none of the last %n report(s)</source>
        <translation>
            <numerusform>not in the last report</numerusform>
            <numerusform>in none of the last %n reports</numerusform>
        </translation>
    </message>
</context>
</TS>
