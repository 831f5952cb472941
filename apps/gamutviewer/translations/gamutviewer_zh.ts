<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name>gamutviewer</name>
    <message>
        <source>the picture cannot be encoded</source>
        <translation>无法编码图片</translation>
    </message>
    <message>
        <source>cannot be read: %1</source>
        <translation>无法读取：%1</translation>
    </message>
    <message>
        <source>is a folder</source>
        <translation>是一个文件夹</translation>
    </message>
    <message>
        <source>is larger than %1 KiB</source>
        <translation>大于 %1 KiB</translation>
    </message>
    <message>
        <source>Declared</source>
        <translation>声明</translation>
    </message>
    <message>
        <source>Original</source>
        <translation>原始</translation>
    </message>
    <message>
        <source>Measured</source>
        <translation>测量</translation>
    </message>
    <message>
        <source>Target</source>
        <translation>目标</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1：%2</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
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
        <source>%1 (edited)</source>
        <translation>%1（已修改）</translation>
    </message>
    <message>
        <source>%1 (edited %2)</source>
        <translation>%1（已修改 %2）</translation>
    </message>
    <message>
        <source>%1 K</source>
        <translation>%1 K</translation>
    </message>
    <message>
        <source>Common area</source>
        <translation>公共色域</translation>
    </message>
    <message>
        <source>Standards</source>
        <translation>标准</translation>
    </message>
    <message>
        <source>Measured points</source>
        <translation>测量点</translation>
    </message>
    <message>
        <source>CCT points</source>
        <translation>色温点</translation>
    </message>
    <message>
        <source>CMY points</source>
        <translation>CMY 点</translation>
    </message>
</context>
<context>
    <name>gamutviewer::ChartPage</name>
    <message>
        <source>Chromaticity diagram, CIE 1931 x, y</source>
        <translation>CIE 1931 x, y 色度图</translation>
    </message>
</context>
<context>
    <name>gamutviewer::ComparePage</name>
    <message>
        <source>Gamuts side by side</source>
        <translation>色域并列比较</translation>
    </message>
    <message>
        <source>Red</source>
        <translation>红</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>绿</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>蓝</translation>
    </message>
    <message>
        <source>White</source>
        <translation>白</translation>
    </message>
    <message>
        <source>CCT</source>
        <translation>相关色温</translation>
    </message>
    <message>
        <source>Duv</source>
        <translation>Duv</translation>
    </message>
    <message>
        <source>Luminance</source>
        <translation>亮度</translation>
    </message>
    <message>
        <source>Area x, y</source>
        <translation>面积 x, y</translation>
    </message>
    <message>
        <source>Area u′, v′</source>
        <translation>面积 u′, v′</translation>
    </message>
    <message>
        <source>The target leaves %1 of the original&apos;s area in x, y and %2 in u′, v′ unused (hatched).</source>
        <translation>目标未使用原始色域面积的 %1（x, y）和 %2（u′, v′），即阴影部分。</translation>
    </message>
    <message>
        <source>Part of the original that the target does not use</source>
        <translation>目标未使用的原始色域部分</translation>
    </message>
</context>
<context>
    <name>gamutviewer::CsvTable</name>
    <message>
        <source>is not UTF-8 text</source>
        <translation>不是 UTF-8 文本</translation>
    </message>
    <message>
        <source>line %1: unterminated quote</source>
        <translation>第 %1 行：引号没有闭合</translation>
    </message>
</context>
<context>
    <name>gamutviewer::DescriptionReader</name>
    <message>
        <source>is too large for a display description (more than %1 KiB)</source>
        <translation>对显示屏描述来说过大（大于 %1 KiB）</translation>
    </message>
    <message>
        <source>is empty</source>
        <translation>是空的</translation>
    </message>
    <message>
        <source>only version %1 is supported</source>
        <translation>只支持版本 %1</translation>
    </message>
    <message>
        <source>there is already a gamut named %1</source>
        <translation>已有名为 %1 的色域</translation>
    </message>
    <message>
        <source>luminance must not be negative</source>
        <translation>亮度不能为负</translation>
    </message>
    <message>
        <source>there is no gamut named %1</source>
        <translation>没有名为 %1 的色域</translation>
    </message>
    <message>
        <source>%1 is listed twice</source>
        <translation>%1 在列表中重复</translation>
    </message>
    <message>
        <source>a chromaticity coordinate must not be negative</source>
        <translation>色度坐标不能为负</translation>
    </message>
    <message>
        <source>y must be greater than 0</source>
        <translation>y 必须大于 0</translation>
    </message>
    <message>
        <source>x + y must not exceed 1</source>
        <translation>x + y 不能大于 1</translation>
    </message>
    <message>
        <source>unknown key</source>
        <translation>未知的键</translation>
    </message>
    <message>
        <source>missing</source>
        <translation>缺失</translation>
    </message>
    <message>
        <source>a boolean</source>
        <translation>布尔值</translation>
    </message>
    <message>
        <source>a number</source>
        <translation>数字</translation>
    </message>
    <message>
        <source>a string</source>
        <translation>字符串</translation>
    </message>
    <message>
        <source>an array</source>
        <translation>数组</translation>
    </message>
    <message>
        <source>an object</source>
        <translation>对象</translation>
    </message>
    <message>
        <source>null</source>
        <translation>null</translation>
    </message>
    <message>
        <source>expected %1, found %2</source>
        <translation>应为%1，实为%2</translation>
    </message>
    <message>
        <source>the name must not be empty</source>
        <translation>名称不能为空</translation>
    </message>
</context>
<context>
    <name>gamutviewer::DiagramKey</name>
    <message>
        <source>Key</source>
        <translation>图例</translation>
    </message>
</context>
<context>
    <name>gamutviewer::Edid</name>
    <message>
        <source>is a truncated EDID: %1 bytes instead of at least %2</source>
        <translation>EDID 不完整：只有 %1 字节，至少应有 %2 字节</translation>
    </message>
    <message>
        <source>is not an EDID</source>
        <translation>不是 EDID</translation>
    </message>
    <message>
        <source>is a damaged EDID: its checksum is wrong</source>
        <translation>EDID 已损坏：校验和错误</translation>
    </message>
    <message>
        <source>is an EDID that cannot be read: %1</source>
        <translation>无法读取的 EDID：%1</translation>
    </message>
    <message>
        <source>is an EDID without primaries</source>
        <translation>EDID 中没有基色</translation>
    </message>
    <message>
        <source>is an EDID without usable primaries: %1</source>
        <translation>EDID 中没有可用的基色：%1</translation>
    </message>
</context>
<context>
    <name>gamutviewer::EditPage</name>
    <message>
        <source>Editable diagram, CIE 1931 x, y</source>
        <translation>可编辑的 CIE 1931 x, y 色度图</translation>
    </message>
    <message>
        <source>Editable diagram, CIE 1976 u′, v′</source>
        <translation>可编辑的 CIE 1976 u′, v′ 色度图</translation>
    </message>
    <message>
        <source>R, G, B, W select; arrow keys move; Esc cancels a drag</source>
        <translation>R、G、B、W 选择；方向键移动；Esc 取消拖动</translation>
    </message>
</context>
<context>
    <name>gamutviewer::ExportDialog</name>
    <message>
        <source>Export chart</source>
        <translation>导出色度图</translation>
    </message>
    <message>
        <source> px</source>
        <translation> 像素</translation>
    </message>
    <message>
        <source>&amp;Width:</source>
        <translation>宽度(&amp;W)：</translation>
    </message>
    <message>
        <source>&amp;Height:</source>
        <translation>高度(&amp;H)：</translation>
    </message>
    <message>
        <source>Number of PNG pixels per pixel of the size above</source>
        <translation>上述尺寸中每个像素对应的 PNG 像素数</translation>
    </message>
    <message>
        <source>Device &amp;pixel ratio:</source>
        <translation>设备像素比(&amp;P)：</translation>
    </message>
    <message>
        <source>&amp;Export…</source>
        <translation>导出(&amp;E)…</translation>
    </message>
    <message>
        <source>A PNG will have %1 × %2 pixels.</source>
        <translation>PNG 将为 %1 × %2 像素。</translation>
    </message>
    <message>
        <source>At most %1 pixels per side.</source>
        <translation>每边最多 %1 像素。</translation>
    </message>
</context>
<context>
    <name>gamutviewer::GamutDiagram</name>
    <message>
        <source>Gamuts on CIE 1931 x, y</source>
        <translation>CIE 1931 x, y 图上的色域</translation>
    </message>
    <message>
        <source>Gamuts on CIE 1976 u′, v′</source>
        <translation>CIE 1976 u′, v′ 图上的色域</translation>
    </message>
    <message>
        <source>x, y</source>
        <translation>x, y</translation>
    </message>
    <message>
        <source>u′, v′</source>
        <translation>u′, v′</translation>
    </message>
</context>
<context>
    <name>gamutviewer::IccProfile</name>
    <message>
        <source>a grey profile</source>
        <translation>灰度特性文件</translation>
    </message>
    <message>
        <source>a CMYK profile</source>
        <translation>CMYK 特性文件</translation>
    </message>
    <message>
        <source>a Lab profile</source>
        <translation>Lab 特性文件</translation>
    </message>
    <message>
        <source>an XYZ profile</source>
        <translation>XYZ 特性文件</translation>
    </message>
    <message>
        <source>not an RGB profile</source>
        <translation>非 RGB 特性文件</translation>
    </message>
    <message>
        <source>is a truncated ICC profile: the header is incomplete</source>
        <translation>ICC 特性文件不完整：文件头不完整</translation>
    </message>
    <message>
        <source>is not an ICC profile</source>
        <translation>不是 ICC 特性文件</translation>
    </message>
    <message>
        <source>is a truncated ICC profile: %1 bytes instead of %2</source>
        <translation>ICC 特性文件不完整：%2 字节中只有 %1 字节</translation>
    </message>
    <message>
        <source>is a damaged ICC profile</source>
        <translation>ICC 特性文件已损坏</translation>
    </message>
    <message>
        <source>has no primaries: it is %1</source>
        <translation>没有基色：这是%1</translation>
    </message>
    <message>
        <source>has no primaries: the ICC profile has no colorant tags</source>
        <translation>没有基色：ICC 特性文件中没有色料标签</translation>
    </message>
    <message>
        <source>is an ICC profile without usable primaries: %1</source>
        <translation>ICC 特性文件中没有可用的基色：%1</translation>
    </message>
</context>
<context>
    <name>gamutviewer::Json</name>
    <message>
        <source>unexpected end of file</source>
        <translation>文件不完整，提前结束</translation>
    </message>
</context>
<context>
    <name>gamutviewer::LayerRow</name>
    <message>
        <source>&amp;Original</source>
        <translation>原始(&amp;O)</translation>
    </message>
    <message>
        <source>Show the original gamut</source>
        <translation>显示原始色域</translation>
    </message>
    <message>
        <source>&amp;Measured</source>
        <translation>测量(&amp;M)</translation>
    </message>
    <message>
        <source>Show the measured gamut</source>
        <translation>显示测量色域</translation>
    </message>
    <message>
        <source>&amp;Declared</source>
        <translation>声明(&amp;D)</translation>
    </message>
    <message>
        <source>Show the gamut that the display declares</source>
        <translation>显示显示屏声明的色域</translation>
    </message>
    <message>
        <source>&amp;Target</source>
        <translation>目标(&amp;T)</translation>
    </message>
    <message>
        <source>Show the target gamut</source>
        <translation>显示目标色域</translation>
    </message>
    <message>
        <source>&amp;Standards</source>
        <translation>标准(&amp;S)</translation>
    </message>
    <message>
        <source>Show the standard gamuts</source>
        <translation>显示标准色域</translation>
    </message>
    <message>
        <source>&amp;Common area</source>
        <translation>公共色域(&amp;C)</translation>
    </message>
    <message>
        <source>Colour the common area of target and original</source>
        <translation>为目标与原始色域的公共部分着色</translation>
    </message>
    <message>
        <source>&amp;Axes</source>
        <translation>坐标轴(&amp;A)</translation>
    </message>
    <message>
        <source>Show axes and grid</source>
        <translation>显示坐标轴和网格</translation>
    </message>
    <message>
        <source>&amp;Wavelengths</source>
        <translation>波长(&amp;W)</translation>
    </message>
    <message>
        <source>Show wavelengths along the spectral locus, in nanometres</source>
        <translation>显示边缘上的波长（纳米）</translation>
    </message>
    <message>
        <source>Planc&amp;kian locus</source>
        <translation>黑体轨迹(&amp;K)</translation>
    </message>
    <message>
        <source>Show the Planckian locus, the chromaticities of black bodies</source>
        <translation>显示黑体轨迹，即黑体的色度</translation>
    </message>
    <message>
        <source>Meas&amp;ured points</source>
        <translation>测量点(&amp;U)</translation>
    </message>
    <message>
        <source>Show the other measured colours</source>
        <translation>显示其他测得的颜色</translation>
    </message>
    <message>
        <source>CCT po&amp;ints</source>
        <translation>色温点(&amp;P)</translation>
    </message>
    <message>
        <source>Show the colour-temperature points</source>
        <translation>显示各色温的点</translation>
    </message>
    <message>
        <source>CM&amp;Y points</source>
        <translation>CMY 点(&amp;Y)</translation>
    </message>
    <message>
        <source>Show the cyan, magenta and yellow points</source>
        <translation>显示青、品红、黄三点</translation>
    </message>
</context>
<context>
    <name>gamutviewer::LensPage</name>
    <message>
        <source>Zoom in (+)</source>
        <translation>放大 (+)</translation>
    </message>
    <message>
        <source>Zoom out (−)</source>
        <translation>缩小 (−)</translation>
    </message>
    <message>
        <source>All</source>
        <translation>全部</translation>
    </message>
    <message>
        <source>Show all white points (0)</source>
        <translation>显示所有白点 (0)</translation>
    </message>
    <message>
        <source>Rings: Δu′v′ 0.001, 0.003, 0.005</source>
        <translation>圆环：Δu′v′ 0.001、0.003、0.005</translation>
    </message>
    <message>
        <source>Distance from the target&apos;s white point. The dotted line joins its positions before the last edits.</source>
        <translation>到目标白点的距离。点线连接最近几次修改前白点的各个位置。</translation>
    </message>
</context>
<context>
    <name>gamutviewer::LensWidget</name>
    <message>
        <source>White points, CIE 1976 u′, v′</source>
        <translation>白点，CIE 1976 u′, v′</translation>
    </message>
    <message>
        <source>%1 K</source>
        <translation>%1 K</translation>
    </message>
    <message>
        <source>, Δu′v′ %1</source>
        <translation>，Δu′v′ %1</translation>
    </message>
    <message>
        <source>%1: %2, Duv %3</source>
        <translation>%1：%2，Duv %3</translation>
    </message>
    <message>
        <source>%1: no colour temperature</source>
        <translation>%1：无相关色温</translation>
    </message>
</context>
<context>
    <name>gamutviewer::MeasurementList</name>
    <message>
        <source>the name must not be empty</source>
        <translation>名称不能为空</translation>
    </message>
    <message>
        <source>luminance must not be negative</source>
        <translation>亮度不能为负</translation>
    </message>
    <message>
        <source>a chromaticity coordinate must not be negative</source>
        <translation>色度坐标不能为负</translation>
    </message>
    <message>
        <source>y must be greater than 0</source>
        <translation>y 必须大于 0</translation>
    </message>
    <message>
        <source>x + y must not exceed 1</source>
        <translation>x + y 不能大于 1</translation>
    </message>
    <message>
        <source>missing</source>
        <translation>缺失</translation>
    </message>
    <message>
        <source>not a number: &quot;%1&quot;</source>
        <translation>不是数字：“%1”</translation>
    </message>
    <message>
        <source>line %1, column %2: %3</source>
        <translation>第 %1 行，第 %2 列：%3</translation>
    </message>
    <message>
        <source>contains no measurements</source>
        <translation>没有测量数据</translation>
    </message>
    <message>
        <source>line %1: missing column %2</source>
        <translation>第 %1 行：缺少列 %2</translation>
    </message>
</context>
<context>
    <name>gamutviewer::OpenedFile</name>
    <message>
        <source>Gamut</source>
        <translation>色域</translation>
    </message>
    <message>
        <source>is empty</source>
        <translation>是空的</translation>
    </message>
    <message>
        <source>is too large for a measurement list (more than %1 KiB)</source>
        <translation>对测量列表来说过大（大于 %1 KiB）</translation>
    </message>
    <message>
        <source>is not a display description (JSON), measurement list (CSV), ICC profile or EDID</source>
        <translation>不是显示屏描述（JSON）、测量列表（CSV）、ICC 特性文件或 EDID</translation>
    </message>
    <message>
        <source>%1: is a second display description; the first is %2</source>
        <translation>%1：是第二个显示屏描述；第一个是 %2</translation>
    </message>
</context>
<context>
    <name>gamutviewer::Primaries</name>
    <message>
        <source>the red primary</source>
        <translation>红基色</translation>
    </message>
    <message>
        <source>the green primary</source>
        <translation>绿基色</translation>
    </message>
    <message>
        <source>the blue primary</source>
        <translation>蓝基色</translation>
    </message>
    <message>
        <source>the white point</source>
        <translation>白点</translation>
    </message>
    <message>
        <source>%1 is not a valid chromaticity: x %2, y %3</source>
        <translation>%1不是有效色度：x %2，y %3</translation>
    </message>
    <message>
        <source>the primaries do not form a triangle</source>
        <translation>三基色不能构成三角形</translation>
    </message>
    <message>
        <source>the white point lies outside the triangle of the primaries</source>
        <translation>白点在三基色三角形之外</translation>
    </message>
</context>
<context>
    <name>gamutviewer::SidePanel</name>
    <message>
        <source>Validity of the target</source>
        <translation>目标是否有效</translation>
    </message>
    <message>
        <source>Y</source>
        <translation>Y</translation>
    </message>
    <message>
        <source>x</source>
        <translation>x</translation>
    </message>
    <message>
        <source>y</source>
        <translation>y</translation>
    </message>
    <message>
        <source>u′</source>
        <translation>u′</translation>
    </message>
    <message>
        <source>v′</source>
        <translation>v′</translation>
    </message>
    <message>
        <source>CCT</source>
        <translation>相关色温</translation>
    </message>
    <message>
        <source>Duv</source>
        <translation>Duv</translation>
    </message>
    <message>
        <source>Colours of all gamuts</source>
        <translation>所有色域的颜色</translation>
    </message>
    <message>
        <source>Standard</source>
        <translation>标准</translation>
    </message>
    <message>
        <source>xy cov.</source>
        <translation>xy 覆盖</translation>
    </message>
    <message>
        <source>xy ratio</source>
        <translation>xy 面积比</translation>
    </message>
    <message>
        <source>u′v′ cov.</source>
        <translation>u′v′ 覆盖</translation>
    </message>
    <message>
        <source>u′v′ ratio</source>
        <translation>u′v′ 面积比</translation>
    </message>
    <message>
        <source>Coverage of the standards</source>
        <translation>标准色域覆盖率</translation>
    </message>
    <message>
        <source>Coverage: share of the standard&apos;s area that the gamut contains. Ratio: area of the gamut divided by that of the standard.</source>
        <translation>覆盖：该色域包含的标准色域面积的比例。面积比：该色域面积与标准色域面积之比。</translation>
    </message>
    <message>
        <source>&amp;Values</source>
        <translation>数值(&amp;V)</translation>
    </message>
    <message>
        <source>Covera&amp;ge</source>
        <translation>覆盖率(&amp;G)</translation>
    </message>
    <message>
        <source>Si&amp;gnals</source>
        <translation>信号(&amp;I)</translation>
    </message>
    <message>
        <source>✓ The display can show the target.</source>
        <translation>✓ 显示屏可以显示目标色域。</translation>
    </message>
    <message>
        <source>✗ Outside the original: %1</source>
        <translation>✗ 超出原始色域：%1</translation>
    </message>
    <message>
        <source>, </source>
        <comment>between names of colours</comment>
        <translation>、</translation>
    </message>
</context>
<context>
    <name>gamutviewer::SignalLog</name>
    <message>
        <source>Log of the charts&apos; signals</source>
        <translation>色度图信号日志</translation>
    </message>
    <message>
        <source>The signals of the charts appear here.</source>
        <translation>此处显示色度图发出的信号。</translation>
    </message>
    <message>
        <source>valid</source>
        <translation>有效</translation>
    </message>
    <message>
        <source>invalid</source>
        <translation>无效</translation>
    </message>
</context>
<context>
    <name>gamutviewer::TargetEditor</name>
    <message>
        <source>&amp;Reset to</source>
        <translation>重置为(&amp;R)</translation>
    </message>
    <message>
        <source>Replace the target with a standard or with a gamut of this display</source>
        <translation>用标准色域或本显示屏的色域替换目标</translation>
    </message>
    <message>
        <source>&amp;Hold white</source>
        <translation>保持白点(&amp;H)</translation>
    </message>
    <message>
        <source>Moving a primary leaves the white point where it is</source>
        <translation>移动基色时白点不变</translation>
    </message>
    <message>
        <source>&amp;Lock primaries</source>
        <translation>锁定基色(&amp;L)</translation>
    </message>
    <message>
        <source>Only the white point can be moved</source>
        <translation>只能移动白点</translation>
    </message>
    <message>
        <source>S&amp;nap</source>
        <translation>吸附(&amp;N)</translation>
    </message>
    <message>
        <source>Dragged points snap to the corresponding points of the standards and of the original</source>
        <translation>拖动时吸附到标准色域和原始色域的点</translation>
    </message>
    <message>
        <source>x, y</source>
        <translation>x, y</translation>
    </message>
    <message>
        <source>u′, v′</source>
        <translation>u′, v′</translation>
    </message>
    <message>
        <source>Coordinates to display and edit</source>
        <translation>显示和编辑所用的坐标</translation>
    </message>
    <message>
        <source>Coordinates</source>
        <translation>坐标</translation>
    </message>
    <message>
        <source>Y</source>
        <translation>Y</translation>
    </message>
    <message>
        <source>Luminance</source>
        <translation>亮度</translation>
    </message>
    <message>
        <source>%1: luminance</source>
        <translation>%1：亮度</translation>
    </message>
    <message>
        <source>CCT, Duv</source>
        <translation>色温, Duv</translation>
    </message>
    <message>
        <source>Correlated colour temperature of the white point and its distance from the Planckian locus</source>
        <translation>白点的相关色温及其到黑体轨迹的距离</translation>
    </message>
    <message>
        <source>white: colour temperature</source>
        <translation>白：色温</translation>
    </message>
    <message>
        <source> K</source>
        <translation> K</translation>
    </message>
    <message>
        <source>white: Duv</source>
        <translation>白：Duv</translation>
    </message>
    <message>
        <source>No target</source>
        <translation>没有目标</translation>
    </message>
    <message>
        <source>u′</source>
        <translation>u′</translation>
    </message>
    <message>
        <source>x</source>
        <translation>x</translation>
    </message>
    <message>
        <source>v′</source>
        <translation>v′</translation>
    </message>
    <message>
        <source>y</source>
        <translation>y</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1：%2</translation>
    </message>
    <message>
        <source>%1 Waiting for the other coordinate; Esc discards it.</source>
        <translation>%1 等待输入另一个坐标；按 Esc 放弃。</translation>
    </message>
    <message>
        <source>Not applied: %1</source>
        <translation>未采用：%1</translation>
    </message>
</context>
<context>
    <name>gamutviewer::TargetSession</name>
    <message>
        <source>There is no target to edit.</source>
        <translation>没有可编辑的目标。</translation>
    </message>
    <message>
        <source>The white point is held.</source>
        <translation>白点已保持。</translation>
    </message>
    <message>
        <source>The primaries are locked.</source>
        <translation>基色已锁定。</translation>
    </message>
    <message>
        <source>Not a valid chromaticity: x must be at least 0, y greater than 0 and x + y at most 1.</source>
        <translation>不是有效色度：x 不得小于 0，y 必须大于 0，x + y 不得大于 1。</translation>
    </message>
    <message>
        <source>The white point would lie outside the target.</source>
        <translation>白点将落在目标色域之外。</translation>
    </message>
    <message>
        <source>move %1</source>
        <translation>移动%1</translation>
    </message>
    <message>
        <source>change luminance of %1</source>
        <translation>修改%1的亮度</translation>
    </message>
    <message>
        <source>That luminance is not possible for this target.</source>
        <translation>该目标不能有这样的亮度。</translation>
    </message>
    <message>
        <source>No white point has that colour temperature and Duv.</source>
        <translation>没有这种色温和 Duv 的白点。</translation>
    </message>
    <message>
        <source>reset to %1</source>
        <translation>重置为 %1</translation>
    </message>
    <message>
        <source>The primaries would not form a triangle.</source>
        <translation>三基色将不能构成三角形。</translation>
    </message>
</context>
<context>
    <name>gamutviewer::ViewerWindow</name>
    <message>
        <source>&amp;File</source>
        <translation>文件(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Open…</source>
        <translation>打开(&amp;O)…</translation>
    </message>
    <message>
        <source>Open &amp;recent</source>
        <translation>最近打开(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>保存(&amp;S)</translation>
    </message>
    <message>
        <source>Save &amp;as…</source>
        <translation>另存为(&amp;A)…</translation>
    </message>
    <message>
        <source>&amp;Export chart…</source>
        <translation>导出色度图(&amp;E)…</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>退出(&amp;Q)</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>编辑(&amp;E)</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <comment>verb and step of the history</comment>
        <translation>%1（%2）</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>撤销(&amp;U)</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>重做(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Hold white</source>
        <translation>保持白点(&amp;H)</translation>
    </message>
    <message>
        <source>&amp;Lock primaries</source>
        <translation>锁定基色(&amp;L)</translation>
    </message>
    <message>
        <source>&amp;Snap</source>
        <translation>吸附(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Copy chart</source>
        <translation>复制色度图(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>视图(&amp;V)</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>帮助(&amp;H)</translation>
    </message>
    <message>
        <source>&amp;Keys</source>
        <translation>按键(&amp;K)</translation>
    </message>
    <message>
        <source>&amp;About</source>
        <translation>关于(&amp;A)</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>打开</translation>
    </message>
    <message>
        <source>Displays and gamuts (%1)</source>
        <translation>显示屏和色域 (%1)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>所有文件 (*)</translation>
    </message>
    <message>
        <source>Save as</source>
        <translation>另存为</translation>
    </message>
    <message>
        <source>Display descriptions (*.json)</source>
        <translation>显示屏描述 (*.json)</translation>
    </message>
    <message>
        <source>Export chart</source>
        <translation>导出色度图</translation>
    </message>
    <message>
        <source>Pictures (*.png *.svg *.pdf)</source>
        <translation>图片 (*.png *.svg *.pdf)</translation>
    </message>
    <message>
        <source>None</source>
        <translation>无</translation>
    </message>
    <message>
        <source>&amp;Clear</source>
        <translation>清除(&amp;C)</translation>
    </message>
    <message>
        <source>Keys</source>
        <translation>按键</translation>
    </message>
    <message>
        <source>Editable diagrams:
R, G, B, W – select a primary or the white
Arrow keys – move it by 0.001; with Shift by 0.0001, with Ctrl by 0.01
Esc – cancel a drag

Numbers:
Up, Down – one step; with Shift a tenth of a step, with Ctrl ten steps
Esc – restore the value of the target

White point:
+, − or the wheel – zoom in or out
0 – show all white points

Ctrl+1 to Ctrl+5 – show a page</source>
        <translation>可编辑的色度图：
R、G、B、W – 选择基色或白点
方向键 – 移动 0.001；按住 Shift 为 0.0001，按住 Ctrl 为 0.01
Esc – 取消拖动

数值：
上、下 – 一步；按住 Shift 为十分之一步，按住 Ctrl 为十步
Esc – 恢复目标的数值

白点：
+、− 或滚轮 – 放大、缩小
0 – 显示所有白点

Ctrl+1 到 Ctrl+5 – 切换页面</translation>
    </message>
    <message>
        <source>About the gamut viewer</source>
        <translation>关于色域查看器</translation>
    </message>
    <message>
        <source>Gamut viewer %1

Shows and edits the colour gamuts of LED displays on CIE chromaticity diagrams.</source>
        <translation>色域查看器 %1

在 CIE 色度图上显示和编辑 LED 显示屏的色域。</translation>
    </message>
    <message>
        <source>Chromaticity under the pointer</source>
        <translation>指针处的色度</translation>
    </message>
    <message>
        <source>Chart</source>
        <translation>色度图</translation>
    </message>
    <message>
        <source>Edit target</source>
        <translation>编辑目标</translation>
    </message>
    <message>
        <source>u′v′</source>
        <translation>u′v′</translation>
    </message>
    <message>
        <source>White point</source>
        <translation>白点</translation>
    </message>
    <message>
        <source>Compare</source>
        <translation>比较</translation>
    </message>
    <message>
        <source>add %1</source>
        <translation>添加 %1</translation>
    </message>
    <message>
        <source>%1: cannot be written: %2</source>
        <translation>%1：无法写入：%2</translation>
    </message>
    <message>
        <source>Saved as %1</source>
        <translation>已保存为 %1</translation>
    </message>
    <message>
        <source>%1: the name must end in .png, .svg or .pdf</source>
        <translation>%1：文件名必须以 .png、.svg 或 .pdf 结尾</translation>
    </message>
    <message>
        <source>Exported to %1</source>
        <translation>已导出到 %1</translation>
    </message>
    <message>
        <source>The chart has been copied to the clipboard.</source>
        <translation>色度图已复制到剪贴板。</translation>
    </message>
    <message>
        <source>Unsaved changes</source>
        <translation>未保存的修改</translation>
    </message>
    <message>
        <source>The display description has been modified. Save the changes?</source>
        <translation>显示屏描述已修改。是否保存？</translation>
    </message>
    <message>
        <source>Untitled</source>
        <translation>未命名</translation>
    </message>
    <message>
        <source>%1[*] – Gamut viewer</source>
        <translation>%1[*] – 色域查看器</translation>
    </message>
    <message>
        <source>x %1  y %2   u′ %3  v′ %4</source>
        <translation>x %1  y %2   u′ %3  v′ %4</translation>
    </message>
    <message>
        <source>Gamut viewer</source>
        <translation>色域查看器</translation>
    </message>
    <message>
        <source>   %1  Duv %2</source>
        <comment>with the temperature</comment>
        <translation>   %1  Duv %2</translation>
    </message>
</context>
<context>
    <name>main</name>
    <message>
        <source>%1: cannot be written: %2</source>
        <translation>%1：无法写入：%2</translation>
    </message>
</context>
</TS>
