<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="zh_CN">
<context>
    <name>CEIELegend</name>
    <message>
        <source>公共色域</source>
        <translation>Common gamut</translation>
    </message>
    <message>
        <source>目标色域</source>
        <translation>Target gamut</translation>
    </message>
    <message>
        <source>原始色域</source>
        <translation>Original gamut</translation>
    </message>
    <message>
        <source>目标点</source>
        <translation>Target point</translation>
    </message>
    <message>
        <source>原始点</source>
        <translation>Original point</translation>
    </message>
    <message>
        <source>管理后点</source>
        <translation>Managed point</translation>
    </message>
</context>
<context>
    <name>NewCEIE::CEIELegend</name>
    <message>
        <source>公共色域</source>
        <translation>Common gamut</translation>
    </message>
    <message>
        <source>目标色域</source>
        <translation>Target gamut</translation>
    </message>
    <message>
        <source>原始色域</source>
        <translation>Original gamut</translation>
    </message>
    <message>
        <source>目标点</source>
        <translation>Target point</translation>
    </message>
    <message>
        <source>原始点</source>
        <translation>Original point</translation>
    </message>
    <message>
        <source>管理后点</source>
        <translation>Managed point</translation>
    </message>
</context>
<context>
    <name>ceiechart::GamutRole</name>
    <message>
        <source>Standard</source>
        <translation>Standard</translation>
    </message>
    <message>
        <source>Target</source>
        <translation>Target</translation>
    </message>
    <message>
        <source>Original</source>
        <translation>Original</translation>
    </message>
    <message>
        <source>Measured</source>
        <translation>Measured</translation>
    </message>
    <message>
        <source>Declared</source>
        <translation>Declared</translation>
    </message>
</context>
</TS>
