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
    <name>ceiechart::DiagramView</name>
    <message>
        <source>%1, %2</source>
        <comment>name of a gamut, and its role</comment>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>primary or white, and its coordinates</comment>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Target: white point</source>
        <translation>Target: white point</translation>
    </message>
    <message>
        <source>Target: %1 primary</source>
        <translation>Target: %1 primary</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <comment>primary or white, and the name of one of its coordinates</comment>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>Arrow keys move it; with Shift, a tenth as far.</source>
        <translation>Arrow keys move it; with Shift, a tenth as far.</translation>
    </message>
    <message>
        <source>Move up</source>
        <translation>Move up</translation>
    </message>
    <message>
        <source>Move down</source>
        <translation>Move down</translation>
    </message>
    <message>
        <source>Chromaticity diagram, %1</source>
        <translation>Chromaticity diagram, %1</translation>
    </message>
    <message>
        <source>Tab goes from handle to handle, arrow keys move them, plus and minus zoom.</source>
        <translation>Tab goes from handle to handle, arrow keys move them, plus and minus zoom.</translation>
    </message>
    <message>
        <source>not known</source>
        <comment>coordinates</comment>
        <translation>not known</translation>
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
<context>
    <name>ceiechart::TargetRules</name>
    <message>
        <source>red</source>
        <translation>red</translation>
    </message>
    <message>
        <source>green</source>
        <translation>green</translation>
    </message>
    <message>
        <source>blue</source>
        <translation>blue</translation>
    </message>
    <message>
        <source>white</source>
        <translation>white</translation>
    </message>
    <message>
        <source>The white is locked.</source>
        <translation>The white is locked.</translation>
    </message>
    <message>
        <source>The primaries are locked.</source>
        <translation>The primaries are locked.</translation>
    </message>
    <message>
        <source>The original does not reach farther.</source>
        <translation>The original does not reach farther.</translation>
    </message>
    <message>
        <source>That is no chromaticity: x and y are from 0 to 1, and so is their sum.</source>
        <translation>That is no chromaticity: x and y are from 0 to 1, and so is their sum.</translation>
    </message>
    <message>
        <source>The white would lie outside of the target.</source>
        <translation>The white would lie outside of the target.</translation>
    </message>
    <message>
        <source>The primaries would span no triangle.</source>
        <translation>The primaries would span no triangle.</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <comment>gamut and colour: Rec.709 red</comment>
        <translation>%1 %2</translation>
    </message>
    <message>
        <source>original %1</source>
        <comment>colour of the original gamut</comment>
        <translation>original %1</translation>
    </message>
    <message>
        <source>edge of the original</source>
        <translation>edge of the original</translation>
    </message>
    <message>
        <source>Planckian locus</source>
        <translation>Planckian locus</translation>
    </message>
</context>
</TS>
