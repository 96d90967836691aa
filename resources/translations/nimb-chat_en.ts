<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name>ContactImport</name>
    <message numerus="yes">
        <source>; %n more</source>
        <translation>
            <numerusform>; %n more</numerusform>
            <numerusform>; %n more</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>MainLog</name>
    <message numerus="yes">
        <source>--- %n more that nobody understands received from %1 ---</source>
        <translation>
            <numerusform>--- %n more that nobody understands received from %1 ---</numerusform>
            <numerusform>--- %n more that nobody understands received from %1 ---</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>nimb::NewLinesButton</name>
    <message numerus="yes">
        <source>%n new line(s)</source>
        <translation>
            <numerusform>%n new line</numerusform>
            <numerusform>%n new lines</numerusform>
        </translation>
    </message>
</context>
</TS>
