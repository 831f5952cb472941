<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="zh_CN">
<context>
    <name>CEIELegend</name>
    <message>
        <source>公共色域</source>
        <translation>公共色域</translation>
    </message>
    <message>
        <source>目标色域</source>
        <translation>目标色域</translation>
    </message>
    <message>
        <source>原始色域</source>
        <translation>原始色域</translation>
    </message>
    <message>
        <source>目标点</source>
        <translation>目标点</translation>
    </message>
    <message>
        <source>原始点</source>
        <translation>原始点</translation>
    </message>
    <message>
        <source>管理后点</source>
        <translation>管理后点</translation>
    </message>
</context>
<context>
    <name>NewCEIE::CEIELegend</name>
    <message>
        <source>公共色域</source>
        <translation>公共色域</translation>
    </message>
    <message>
        <source>目标色域</source>
        <translation>目标色域</translation>
    </message>
    <message>
        <source>原始色域</source>
        <translation>原始色域</translation>
    </message>
    <message>
        <source>目标点</source>
        <translation>目标点</translation>
    </message>
    <message>
        <source>原始点</source>
        <translation>原始点</translation>
    </message>
    <message>
        <source>管理后点</source>
        <translation>管理后点</translation>
    </message>
</context>
<context>
    <name>ceiechart::DiagramView</name>
    <message>
        <source>%1, %2</source>
        <comment>name of a gamut, and its role</comment>
        <translation>%1，%2</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>primary or white, and its coordinates</comment>
        <translation>%1：%2</translation>
    </message>
    <message>
        <source>Target: white point</source>
        <translation>目标：白点</translation>
    </message>
    <message>
        <source>Target: %1 primary</source>
        <translation>目标：%1基色</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <comment>primary or white, and the name of one of its coordinates</comment>
        <translation>%1，%2</translation>
    </message>
    <message>
        <source>Arrow keys move it; with Shift, a tenth as far.</source>
        <translation>用方向键移动；按住 Shift 时步长为十分之一。</translation>
    </message>
    <message>
        <source>Move up</source>
        <translation>上移</translation>
    </message>
    <message>
        <source>Move down</source>
        <translation>下移</translation>
    </message>
    <message>
        <source>Chromaticity diagram, %1</source>
        <translation>色度图，%1</translation>
    </message>
    <message>
        <source>Tab goes from handle to handle, arrow keys move them, plus and minus zoom.</source>
        <translation>Tab 键切换控制点，方向键移动，加号和减号缩放。</translation>
    </message>
    <message>
        <source>not known</source>
        <comment>coordinates</comment>
        <translation>未知</translation>
    </message>
</context>
<context>
    <name>ceiechart::GamutRole</name>
    <message>
        <source>Standard</source>
        <translation>标准</translation>
    </message>
    <message>
        <source>Target</source>
        <translation>目标</translation>
    </message>
    <message>
        <source>Original</source>
        <translation>原始</translation>
    </message>
    <message>
        <source>Measured</source>
        <translation>实测</translation>
    </message>
    <message>
        <source>Declared</source>
        <translation>标称</translation>
    </message>
</context>
<context>
    <name>ceiechart::TargetRules</name>
    <message>
        <source>red</source>
        <translation>红</translation>
    </message>
    <message>
        <source>green</source>
        <translation>绿</translation>
    </message>
    <message>
        <source>blue</source>
        <translation>蓝</translation>
    </message>
    <message>
        <source>white</source>
        <translation>白</translation>
    </message>
    <message>
        <source>The white is locked.</source>
        <translation>白点已锁定。</translation>
    </message>
    <message>
        <source>The primaries are locked.</source>
        <translation>基色已锁定。</translation>
    </message>
    <message>
        <source>The original does not reach farther.</source>
        <translation>原始色域到此为止。</translation>
    </message>
    <message>
        <source>That is no chromaticity: x and y are from 0 to 1, and so is their sum.</source>
        <translation>这不是色度坐标：x、y 及两者之和均应在 0 到 1 之间。</translation>
    </message>
    <message>
        <source>The white would lie outside of the target.</source>
        <translation>白点将落在目标色域之外。</translation>
    </message>
    <message>
        <source>The primaries would span no triangle.</source>
        <translation>三个基色将无法构成三角形。</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <comment>gamut and colour: Rec.709 red</comment>
        <translation>%1 %2</translation>
    </message>
    <message>
        <source>original %1</source>
        <comment>colour of the original gamut</comment>
        <translation>原始色域的%1</translation>
    </message>
    <message>
        <source>edge of the original</source>
        <translation>原始色域的边</translation>
    </message>
    <message>
        <source>Planckian locus</source>
        <translation>普朗克轨迹</translation>
    </message>
</context>
</TS>
