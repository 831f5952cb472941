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
        <source>%1: %2</source>
        <translation>%1：%2</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1 %</translation>
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
        <source>the library&apos;s chart is written as PNG only</source>
        <translation>库色度图只能写为 PNG</translation>
    </message>
    <message>
        <source>%1 (default)</source>
        <comment>gamut that nobody has chosen</comment>
        <translation>%1（默认）</translation>
    </message>
    <message>
        <source>not known</source>
        <translation>未知</translation>
    </message>
    <message>
        <source>cd/m²</source>
        <translation>cd/m²</translation>
    </message>
    <message>
        <source>relative</source>
        <translation>相对值</translation>
    </message>
    <message>
        <source>unit not known</source>
        <translation>单位未知</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <comment>luminance and what its unit is: 1.0000 (relative)</comment>
        <translation>%1（%2）</translation>
    </message>
</context>
<context>
    <name>gamutviewer::AddDialog</name>
    <message>
        <source>Add files</source>
        <translation>添加文件</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is open. Add the files to it, or open them alone?</source>
        <translation>“%1”已打开。将文件添加到其中，还是单独打开？</translation>
    </message>
    <message>
        <source>Add the files to &quot;%1&quot;?</source>
        <translation>将文件添加到“%1”？</translation>
    </message>
    <message>
        <source>&amp;Add</source>
        <translation>添加(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;Open alone</source>
        <translation>单独打开(&amp;O)</translation>
    </message>
    <message>
        <source>What the gamut of %1 becomes</source>
        <translation>%1 的色域作为什么</translation>
    </message>
    <message>
        <source>Added as</source>
        <translation>添加为</translation>
    </message>
    <message>
        <source>Gamut &quot;%1&quot;</source>
        <translation>色域“%1”</translation>
    </message>
    <message>
        <source>Measured points: %1</source>
        <translation>测量点：%1</translation>
    </message>
    <message>
        <source>Gamuts: %1</source>
        <translation>色域：%1</translation>
    </message>
    <message>
        <source>The display is then called &quot;%1&quot;.</source>
        <translation>之后显示屏名为“%1”。</translation>
    </message>
    <message>
        <source>Wall of %1 cabinets</source>
        <translation>%1 个箱体的墙</translation>
    </message>
    <message>
        <source>Wall of one cabinet</source>
        <translation>1 个箱体的墙</translation>
    </message>
</context>
<context>
    <name>gamutviewer::Assessment</name>
    <message>
        <source>measured gamut</source>
        <translation>实测色域</translation>
    </message>
    <message>
        <source>original</source>
        <translation>原始色域</translation>
    </message>
    <message>
        <source>handle “%1” of the target</source>
        <translation>目标的“%1”控制点</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <comment>primary and its drive: red 71.0 %</comment>
        <translation>%1 %2</translation>
    </message>
    <message>
        <source>, </source>
        <comment>between drives</comment>
        <translation>、</translation>
    </message>
    <message>
        <source>in cd/m²</source>
        <translation>以 cd/m² 为单位</translation>
    </message>
    <message>
        <source>relative</source>
        <translation>为相对值</translation>
    </message>
    <message>
        <source>in a unit that is not known</source>
        <translation>单位未知</translation>
    </message>
    <message>
        <source>The luminances cannot be compared: those of the target are %1, those of the %2 %3.</source>
        <translation>亮度无法比较：目标的亮度%1，%2的亮度%3。</translation>
    </message>
    <message>
        <source>State the unit of the %1 in its file.</source>
        <translation>请在文件中注明%1的单位。</translation>
    </message>
    <message>
        <source>What the display is to show is not known: nobody has chosen a target. Choose one, or edit the default.</source>
        <translation>显示屏应显示什么尚不清楚：没有人选择过目标。请选择一个目标，或编辑默认目标。</translation>
    </message>
    <message>
        <source>What the display can show is not known: the primaries of the %1 span no triangle.</source>
        <translation>显示屏能显示什么尚不清楚：%1的基色不构成三角形。</translation>
    </message>
    <message>
        <source>All primaries and the white lie inside of the %1.</source>
        <translation>所有基色和白点都在%1之内。</translation>
    </message>
    <message>
        <source>%1 lies outside of the %2 by Δu′v′ %3</source>
        <translation>%1超出%2，Δu′v′ 为 %3</translation>
    </message>
    <message>
        <source>move it to %1</source>
        <translation>请将其移到 %1</translation>
    </message>
    <message>
        <source>choose %1 as the target, which lies inside</source>
        <translation>选择位于其内的 %1 作为目标</translation>
    </message>
    <message>
        <source>%1, or %2</source>
        <translation>%1，或%2</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>what is wrong and what to do</comment>
        <translation>%1：%2</translation>
    </message>
    <message>
        <source>%1.</source>
        <comment>a sentence</comment>
        <translation>%1。</translation>
    </message>
    <message>
        <source>At this white the %1 reaches %2.</source>
        <translation>在此白点下，%1可达到 %2。</translation>
    </message>
    <message>
        <source>The drive of the %1 is not known: the white lies outside of it.</source>
        <translation>%1的驱动量未知：白点在其之外。</translation>
    </message>
    <message>
        <source>What luminance the display reaches is not known: %1 of the %2 has no luminance.</source>
        <translation>显示屏能达到的亮度未知：%2的%1没有亮度。</translation>
    </message>
    <message>
        <source>What luminance the display reaches is not known: the primaries of the %1 cannot be told apart.</source>
        <translation>显示屏能达到的亮度未知：%1的基色无法区分。</translation>
    </message>
    <message>
        <source>The white of %1 needs of the %2: %3. It reaches %4 at this white (headroom %5).</source>
        <translation>%1 的白色需要%2的 %3。它在此白点下可达到 %4（余量 %5）。</translation>
    </message>
    <message>
        <source>The target is too bright: the %1 reaches %2 at this white, and the target has %3. It would need %4. Lower the luminance of the white to %2.</source>
        <translation>目标过亮：%1在此白点下可达到 %2，而目标为 %3，需要 %4。请将白点的亮度降低到 %2。</translation>
    </message>
    <message>
        <source>The luminance %1 of %2 is more than the %3 reaches: %4. Lower it to that.</source>
        <translation>%2的亮度 %1 超过%3所能达到的 %4。请降低到该值。</translation>
    </message>
    <message>
        <source>there is no target. Choose one.</source>
        <translation>没有目标。请选择一个。</translation>
    </message>
    <message>
        <source>one of the whites has no colour temperature.</source>
        <translation>其中一个白点没有色温。</translation>
    </message>
    <message>
        <source>a colour has no chromaticity or no luminance.</source>
        <translation>某个颜色没有色品或没有亮度。</translation>
    </message>
    <message>
        <source>Measured %1</source>
        <translation>实测%1</translation>
    </message>
    <message>
        <source>Measured luminance of the white</source>
        <translation>白点的实测亮度</translation>
    </message>
    <message>
        <source>Measured colour temperature of the white</source>
        <translation>白点的实测色温</translation>
    </message>
    <message>
        <source>Coverage of the target</source>
        <translation>目标的覆盖率</translation>
    </message>
    <message>
        <source>not known, as %1</source>
        <translation>未知，因为%1</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>what was judged and the judgement</comment>
        <translation>%1：%2</translation>
    </message>
    <message>
        <source>Calibrate the display, or move %1 of the target.</source>
        <translation>请校准显示屏，或移动目标的%1。</translation>
    </message>
    <message>
        <source>Calibrate the display, or change the target.</source>
        <translation>请校准显示屏，或更改目标。</translation>
    </message>
    <message>
        <source>ring around %1 of the target</source>
        <translation>目标%1周围的圆环</translation>
    </message>
    <message>
        <source>%1 %, at least %2 %.</source>
        <translation>%1 %，至少应为 %2 %。</translation>
    </message>
    <message>
        <source>Δu′v′ %1 from the target, limit %2.</source>
        <translation>与目标的 Δu′v′ 为 %1，限值 %2。</translation>
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
        <source>there is no gamut of that name.</source>
        <translation>没有该名称的色域。</translation>
    </message>
    <message>
        <source>The display shows the target within tolerance</source>
        <translation>显示屏在容差内显示目标</translation>
    </message>
    <message>
        <source>The display can show the target</source>
        <translation>显示屏能够显示目标</translation>
    </message>
    <message>
        <source>The display cannot show the target</source>
        <translation>显示屏无法显示目标</translation>
    </message>
    <message>
        <source>The display is out of tolerance</source>
        <translation>显示屏超出容差</translation>
    </message>
    <message>
        <source>Not known whether it is in tolerance</source>
        <translation>是否在容差内未知</translation>
    </message>
    <message>
        <source>Not known whether it can show the target</source>
        <translation>能否显示目标未知</translation>
    </message>
    <message>
        <source>The luminances cannot be compared: those of the target and those of the %1 are relative, and their scales need not be the same.</source>
        <translation>亮度无法比较：目标的亮度和%1的亮度都是相对值，二者的标度不一定相同。</translation>
    </message>
    <message>
        <source>It takes luminances of the %1 in cd/m².</source>
        <translation>需要%1以 cd/m² 为单位的亮度。</translation>
    </message>
    <message>
        <source>What the display can show is not known: no gamut of the display is known, neither its original nor a measured one.</source>
        <translation>显示屏能显示什么尚不清楚：不知道显示屏的任何色域，既没有原始色域，也没有实测色域。</translation>
    </message>
    <message>
        <source>Whether the white lies inside of the %1 is not known: it has no chromaticity.</source>
        <translation>白点是否位于%1之内尚不清楚：它没有色品坐标。</translation>
    </message>
    <message>
        <source>The target is too bright: the %1 reaches at most %2 at this white, if its primaries add up, and the target has %3. Lower the luminance of the white.</source>
        <translation>目标过亮：即使基色可以相加，%1在此白点下最多可达到 %2，而目标为 %3。请降低白点的亮度。</translation>
    </message>
    <message>
        <source>The white of the %1 is %2, its primaries add to %3: what luminance it reaches at the white of the target cannot be worked out. Measure it there.</source>
        <translation>%1的白色为 %2，其基色之和为 %3：无法推算它在目标白点下可达到的亮度。请在该白点下测量。</translation>
    </message>
    <message>
        <source>That is within %1 of full drive, and counts as full.</source>
        <translation>与满驱动相差不超过 %1，视为满驱动。</translation>
    </message>
    <message>
        <source>That is more than %1 above full drive.</source>
        <translation>超出满驱动 %1 以上。</translation>
    </message>
    <message>
        <source>no measured gamut of the display is known.</source>
        <translation>没有显示屏的实测色域。</translation>
    </message>
    <message>
        <source>beyond %1</source>
        <comment>a limit, by less than is shown</comment>
        <translation>超过 %1</translation>
    </message>
    <message>
        <source>%1 % from the target, limit ±%2 %.</source>
        <translation>与目标相差 %1 %，限值 ±%2 %。</translation>
    </message>
    <message>
        <source>%1 K from the target, limit ±%2 K.</source>
        <translation>与目标相差 %1 K，限值 ±%2 K。</translation>
    </message>
    <message>
        <source>less than %1</source>
        <translation>低于 %1</translation>
    </message>
    <message>
        <source>The white of the %1 is the one of the target, and reaches %2 (headroom %3).</source>
        <translation>%1的白点就是目标的白点，可达到 %2（余量 %3）。</translation>
    </message>
    <message>
        <source>The target is too bright: the %1 reaches %2 at this white, and the target has %3. Lower the luminance of the white to %2.</source>
        <translation>目标过亮：%1在此白点下可达到 %2，而目标为 %3。请将白点的亮度降低到 %2。</translation>
    </message>
    <message>
        <source>What luminance the %1 reaches is not known: its white has no luminance.</source>
        <translation>%1能达到的亮度未知：其白色没有亮度。</translation>
    </message>
    <message>
        <source>not known. %1</source>
        <comment>and why, in sentences</comment>
        <translation>未知。%1</translation>
    </message>
    <message>
        <source>A measurement list needs a choice: not all that it says of the display can be judged. Make the choice that the warnings ask for.</source>
        <translation>测量列表需要选择：它所说明的显示屏数据不能全部评判。请作出警告所要求的选择。</translation>
    </message>
    <message>
        <source>measured gamut “%1”</source>
        <translation>实测色域“%1”</translation>
    </message>
    <message>
        <source>Coverage of %1 in %2 by the %3</source>
        <comment>gamut, diagram, and which gamut of the display</comment>
        <translation>%3在 %2 中对 %1 的覆盖率</translation>
    </message>
    <message>
        <source>Cabinet %1 is within tolerance</source>
        <translation>箱体 %1 在容差内</translation>
    </message>
    <message>
        <source>Cabinet %1 can show the target</source>
        <translation>箱体 %1 能够显示目标</translation>
    </message>
    <message>
        <source>Cabinet %1 cannot show the target</source>
        <translation>箱体 %1 无法显示目标</translation>
    </message>
    <message>
        <source>Cabinet %1 is out of tolerance</source>
        <translation>箱体 %1 超出容差</translation>
    </message>
    <message>
        <source>The verdict on cabinet %1 is not known</source>
        <translation>箱体 %1 的判断结果未知</translation>
    </message>
    <message>
        <source>move it beyond %1, towards the white, as the black makes it paler</source>
        <translation>请将其移过 %1，更靠近白点，因为黑场会使其变淡</translation>
    </message>
    <message>
        <source>Whether the black of the %1 keeps it off the target is not known: the primaries of the target do not mix to its white.</source>
        <translation>%1的黑场是否使其偏离目标未知：目标的基色混合不出其白点。</translation>
    </message>
    <message>
        <source>The black of the %1 is too bright, and keeps it off %2: raise the white of the target, move these colours towards it, or measure the black without stray light.</source>
        <comment>gamut, colours and distances</comment>
        <translation>%1的黑场过亮，使其偏离目标（%2）：请提高目标白点的亮度、将这些颜色移近白点，或在没有杂散光时测量黑场。</translation>
    </message>
    <message>
        <source>Whether the black of the %1 keeps it off the target is not known, as its primaries do not add to its white. If they did, it would be off %2.</source>
        <comment>gamut, colours and distances</comment>
        <translation>%1的黑场是否使其偏离目标未知，因为其基色之和不等于其白色。若相等，则会偏离目标（%2）。</translation>
    </message>
    <message>
        <source>What luminance the display reaches is not known: %1 of the %2 has no more luminance than its black.</source>
        <translation>显示屏能达到的亮度未知：%2的%1不比其黑场亮。</translation>
    </message>
    <message>
        <source>Whether the %1 reaches the luminance of the target is not known: its black may take too much of it. Measure the black once, with its chromaticity.</source>
        <translation>%1是否达到目标的亮度未知：其黑场可能占去过多亮度。请测量一次黑场及其色品。</translation>
    </message>
    <message>
        <source>Whether the black of the %1 keeps it off the target is not known: one of its luminance can keep it off %2. Measure it once, with its chromaticity.</source>
        <comment>gamut, colours and distances</comment>
        <translation>%1的黑场是否使其偏离目标未知：具有该亮度的黑场可能使其偏离目标（%2）。请测量一次黑场及其色品。</translation>
    </message>
    <message>
        <source>Choose the unit of the target, beside Y in the window.</source>
        <translation>请选择目标的单位，在窗口中位于 Y 旁。</translation>
    </message>
    <message>
        <source>The luminance of the target is not known: its white has none. Enter it, beside Y in the window.</source>
        <translation>目标的亮度未知：其白点没有亮度。请输入，在窗口中位于 Y 旁。</translation>
    </message>
</context>
<context>
    <name>gamutviewer::CabinetModel</name>
    <message>
        <source>%1 (left out)</source>
        <comment>a cabinet</comment>
        <translation>%1（已排除）</translation>
    </message>
    <message>
        <source>Of its neighbours, %1 differs most.</source>
        <translation>相邻箱体中与 %1 相差最大。</translation>
    </message>
    <message>
        <source>The cabinet, and whether it shows the target</source>
        <translation>箱体，以及它能否显示目标</translation>
    </message>
    <message>
        <source>cabinet</source>
        <translation>箱体</translation>
    </message>
    <message>
        <source>The colour of the target that lies outside by the most, or else the primary at full drive</source>
        <translation>目标中超出最多的颜色；若无，则为满驱动的基色</translation>
    </message>
    <message>
        <source>limited by</source>
        <translation>受限于</translation>
    </message>
    <message>
        <source>Largest luminance in the white of the target</source>
        <translation>目标白点下的最大亮度</translation>
    </message>
    <message>
        <source>white %1</source>
        <comment>with the unit of the luminance</comment>
        <translation>白色 %1</translation>
    </message>
    <message>
        <source>Room above the luminance of the target&apos;s white</source>
        <translation>高于目标白色亮度的余量</translation>
    </message>
    <message>
        <source>headroom</source>
        <translation>余量</translation>
    </message>
    <message>
        <source>Between the cabinet&apos;s white, not corrected, and the target&apos;s</source>
        <translation>箱体未校正的白点与目标白点之间</translation>
    </message>
    <message>
        <source>Δu′v′ before</source>
        <translation>校正前 Δu′v′</translation>
    </message>
    <message>
        <source>Between the cabinet&apos;s white, corrected, and the target&apos;s</source>
        <translation>箱体校正后的白点与目标白点之间</translation>
    </message>
    <message>
        <source>Δu′v′ after</source>
        <translation>校正后 Δu′v′</translation>
    </message>
    <message>
        <source>The largest Δu′v′ to the white of a neighbour, not corrected</source>
        <translation>与相邻箱体白点的最大 Δu′v′（未校正）</translation>
    </message>
    <message>
        <source>Δu′v′ beside</source>
        <translation>相邻 Δu′v′</translation>
    </message>
</context>
<context>
    <name>gamutviewer::CabinetTable</name>
    <message>
        <source>Cabinets</source>
        <translation>箱体</translation>
    </message>
</context>
<context>
    <name>gamutviewer::CloseLook</name>
    <message>
        <source>Close look at %1 of all cabinets</source>
        <translation>所有箱体%1的近看</translation>
    </message>
    <message>
        <source>The target&apos;s %1 is dragged with the mouse, or moved with the arrow keys; with Shift, slowly. A click on a dot selects its cabinet.</source>
        <translation>目标的%1可用鼠标拖动，或用方向键移动；按住 Shift 则慢速移动。单击圆点选中其箱体。</translation>
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
    <message>
        <source>CIE 1931 x, y diagram</source>
        <translation>CIE 1931 x, y 色度图</translation>
    </message>
    <message>
        <source>CIE 1976 u′, v′ diagram</source>
        <translation>CIE 1976 u′, v′ 色度图</translation>
    </message>
    <message>
        <source>&amp;Compare</source>
        <translation>比较(&amp;C)</translation>
    </message>
    <message>
        <source>What the target leaves unused of the original is not known. Missing: %1</source>
        <comment>names of roles</comment>
        <translation>目标未使用原始色域的哪些部分尚不清楚。缺少：%1</translation>
    </message>
</context>
<context>
    <name>gamutviewer::CopyTable</name>
    <message>
        <source>&amp;Copy table</source>
        <translation>复制表格(&amp;C)</translation>
    </message>
    <message>
        <source>Copy &amp;selected cells</source>
        <translation>复制所选单元格(&amp;S)</translation>
    </message>
</context>
<context>
    <name>gamutviewer::DiagramPage</name>
    <message>
        <source>x, y</source>
        <translation>x, y</translation>
    </message>
    <message>
        <source>u′, v′</source>
        <translation>u′, v′</translation>
    </message>
    <message>
        <source>u, v</source>
        <translation>u, v</translation>
    </message>
    <message>
        <source>CIE 1931 x, y diagram</source>
        <translation>CIE 1931 x, y 色度图</translation>
    </message>
    <message>
        <source>CIE 1976 u′, v′ diagram</source>
        <translation>CIE 1976 u′, v′ 色度图</translation>
    </message>
    <message>
        <source>CIE 1960 u, v diagram</source>
        <translation>CIE 1960 u, v 色度图</translation>
    </message>
    <message>
        <source>All</source>
        <translation>全部</translation>
    </message>
    <message>
        <source>Show all of the diagram</source>
        <translation>显示整个色度图</translation>
    </message>
    <message>
        <source>Target</source>
        <translation>目标</translation>
    </message>
    <message>
        <source>Show the target</source>
        <translation>显示目标</translation>
    </message>
    <message>
        <source>White</source>
        <translation>白点</translation>
    </message>
    <message>
        <source>Show the white point closely</source>
        <translation>放大显示白点</translation>
    </message>
    <message>
        <source>Lens</source>
        <translation>放大镜</translation>
    </message>
    <message>
        <source>Enlarge the white point in a corner of the diagram</source>
        <translation>在色度图一角放大白点</translation>
    </message>
    <message>
        <source>Shift: slow   Ctrl: towards white   Alt: along an axis   Esc: cancel</source>
        <translation>Shift：慢速   Ctrl：朝向白点   Alt：沿坐标轴   Esc：取消</translation>
    </message>
    <message>
        <source>&amp;Diagram</source>
        <translation>色度图(&amp;D)</translation>
    </message>
    <message>
        <source>Shift: slow  Ctrl: to white  Alt: axis  Esc: cancel</source>
        <translation>Shift：慢速  Ctrl：朝向白点  Alt：沿轴  Esc：取消</translation>
    </message>
    <message>
        <source>Shift: slow  Esc: cancel</source>
        <translation>Shift：慢速  Esc：取消</translation>
    </message>
</context>
<context>
    <name>gamutviewer::ExportDialog</name>
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
        <source>At most %1 pixels per side.</source>
        <translation>每边最多 %1 像素。</translation>
    </message>
    <message>
        <source>Export picture</source>
        <translation>导出图片</translation>
    </message>
    <message>
        <source>As in the window</source>
        <translation>与窗口相同</translation>
    </message>
    <message>
        <source>Library chart</source>
        <translation>库色度图</translation>
    </message>
    <message>
        <source>&amp;Show:</source>
        <translation>显示(&amp;S)：</translation>
    </message>
    <message>
        <source>Names in a &amp;key</source>
        <translation>带名称的图例(&amp;K)</translation>
    </message>
    <message>
        <source>&amp;Format:</source>
        <translation>格式(&amp;F)：</translation>
    </message>
    <message>
        <source>Too small for the key, which will be left out.</source>
        <translation>尺寸太小，放不下图例，将省略图例。</translation>
    </message>
    <message>
        <source>%1 × %2 pixels</source>
        <translation>%1 × %2 像素</translation>
    </message>
    <message>
        <source>Lines and texts as vectors, the colours as one image</source>
        <translation>线条和文字为矢量，颜色为一幅图像</translation>
    </message>
</context>
<context>
    <name>gamutviewer::FileNotes</name>
    <message>
        <source>%1: %2</source>
        <comment>what it is and its value</comment>
        <translation>%1：%2</translation>
    </message>
    <message>
        <source>%1 says:</source>
        <comment>file</comment>
        <translation>%1 注明：</translation>
    </message>
    <message>
        <source>%1 was read as follows:</source>
        <comment>file</comment>
        <translation>%1 按如下方式读取：</translation>
    </message>
</context>
<context>
    <name>gamutviewer::FollowMenu</name>
    <message>
        <source>&amp;Measurement in progress</source>
        <translation>进行中的测量(&amp;M)</translation>
    </message>
    <message>
        <source>&amp;Follow…</source>
        <translation>跟随(&amp;F)…</translation>
    </message>
    <message>
        <source>&amp;Keep the measurement</source>
        <translation>保留测量结果(&amp;K)</translation>
    </message>
    <message>
        <source>&amp;Stop following</source>
        <translation>停止跟随(&amp;S)</translation>
    </message>
    <message>
        <source>Follow a measurement</source>
        <translation>跟随测量</translation>
    </message>
    <message>
        <source>Measurement lists (*.csv *.tsv *.txt)</source>
        <translation>测量列表 (*.csv *.tsv *.txt)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>所有文件 (*)</translation>
    </message>
    <message>
        <source>keep %1</source>
        <translation>保留 %1</translation>
    </message>
    <message>
        <source>Waiting for %1</source>
        <translation>正在等待 %1</translation>
    </message>
    <message>
        <source>The last line that was not read: %1</source>
        <translation>最近一个无法读取的行：%1</translation>
    </message>
    <message>
        <source>Lines wait to be read: %1</source>
        <translation>有待读取的行：%1</translation>
    </message>
    <message>
        <source>%1; the unit has changed: without what came before it</source>
        <comment>how far a measurement has been followed</comment>
        <translation>%1；单位已改变，不含此前的测量</translation>
    </message>
    <message>
        <source>1 line</source>
        <translation>1 行</translation>
    </message>
    <message>
        <source>%1 lines</source>
        <comment>of a measurement</comment>
        <translation>%1 行</translation>
    </message>
    <message>
        <source>%1 is followed no further, as there is not enough memory: %2, %3 not read</source>
        <translation>内存不足，不再跟随 %1：%2，其中 %3 行无法读取</translation>
    </message>
    <message>
        <source>%1 has ended: %2, %3 not read</source>
        <translation>%1 已结束：%2，其中 %3 行无法读取</translation>
    </message>
    <message>
        <source>Following %1: %2, %3 not read, %4 a second</source>
        <translation>正在跟随 %1：%2，其中 %3 行无法读取，每秒 %4 行</translation>
    </message>
</context>
<context>
    <name>gamutviewer::GamutRoles</name>
    <message>
        <source>no role</source>
        <comment>what a gamut is</comment>
        <translation>不担任角色</translation>
    </message>
    <message>
        <source>the original gamut</source>
        <translation>原始色域</translation>
    </message>
    <message>
        <source>the measured gamut</source>
        <translation>实测色域</translation>
    </message>
    <message>
        <source>the declared gamut</source>
        <translation>声明色域</translation>
    </message>
    <message>
        <source>the target</source>
        <translation>目标色域</translation>
    </message>
    <message>
        <source>a standard to compare with</source>
        <translation>用于比较的标准</translation>
    </message>
    <message>
        <source>A published gamut keeps its name.</source>
        <translation>公布的色域不能改名。</translation>
    </message>
    <message>
        <source>A gamut needs a name.</source>
        <translation>色域需要名称。</translation>
    </message>
    <message>
        <source>There is already a gamut named &quot;%1&quot;.</source>
        <translation>已有名为“%1”的色域。</translation>
    </message>
    <message>
        <source>No display can show it: it has primaries that no light has.</source>
        <translation>没有显示屏能显示它：它的基色不是任何光所能有的。</translation>
    </message>
</context>
<context>
    <name>gamutviewer::GamutsDialog</name>
    <message>
        <source>Gamuts</source>
        <translation>色域</translation>
    </message>
    <message>
        <source>&amp;Name of the display:</source>
        <translation>显示屏名称(&amp;N)：</translation>
    </message>
    <message>
        <source>Gamut</source>
        <translation>色域</translation>
    </message>
    <message>
        <source>Gamuts and their roles</source>
        <translation>色域及其角色</translation>
    </message>
    <message>
        <source>Space gives or takes a role, F2 renames, Delete removes</source>
        <translation>空格键赋予或取消角色，F2 重命名，Delete 移除</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>移除(&amp;R)</translation>
    </message>
    <message>
        <source>Remove the gamut from the description</source>
        <translation>从描述中移除此色域</translation>
    </message>
    <message>
        <source>%1: published gamut</source>
        <translation>%1：公布的色域</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>gamut and part</comment>
        <translation>%1：%2</translation>
    </message>
    <message>
        <source>%1 becomes %2</source>
        <comment>step of the history: gamut and part</comment>
        <translation>%1 作为%2</translation>
    </message>
    <message>
        <source>%1 is no longer %2</source>
        <comment>step of the history: gamut and part</comment>
        <translation>%1 不再作为%2</translation>
    </message>
    <message>
        <source>rename %1</source>
        <comment>step of the history</comment>
        <translation>重命名 %1</translation>
    </message>
    <message>
        <source>remove %1</source>
        <comment>step of the history</comment>
        <translation>移除 %1</translation>
    </message>
    <message>
        <source>name the display</source>
        <comment>step of the history</comment>
        <translation>命名显示屏</translation>
    </message>
</context>
<context>
    <name>gamutviewer::LayerKey</name>
    <message>
        <source>Key: what the diagram shows</source>
        <translation>图例：色度图显示的内容</translation>
    </message>
    <message>
        <source>Space switches an entry, Return shows it alone</source>
        <translation>空格键开关条目，回车键单独显示</translation>
    </message>
    <message>
        <source>Colours</source>
        <translation>颜色</translation>
    </message>
    <message>
        <source>full</source>
        <comment>colours of the horseshoe</comment>
        <translation>全</translation>
    </message>
    <message>
        <source>dim</source>
        <comment>colours of the horseshoe</comment>
        <translation>淡</translation>
    </message>
    <message>
        <source>off</source>
        <comment>colours of the horseshoe</comment>
        <translation>无</translation>
    </message>
    <message>
        <source>Colours: %1</source>
        <translation>颜色：%1</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>role and name of a gamut</comment>
        <translation>%1：%2</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <comment>name of a gamut, and its role</comment>
        <translation>%1，%2</translation>
    </message>
    <message>
        <source>Gamuts</source>
        <translation>色域</translation>
    </message>
    <message>
        <source>Standards</source>
        <translation>标准</translation>
    </message>
    <message>
        <source>Layers</source>
        <translation>图层</translation>
    </message>
    <message>
        <source>Common area</source>
        <translation>公共区域</translation>
    </message>
    <message>
        <source>Given up</source>
        <translation>放弃的区域</translation>
    </message>
    <message>
        <source>Planckian locus</source>
        <translation>黑体轨迹</translation>
    </message>
    <message>
        <source>Isotherms</source>
        <translation>等温线</translation>
    </message>
    <message>
        <source>Wavelengths</source>
        <translation>波长</translation>
    </message>
    <message>
        <source>Measure points</source>
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
    <message>
        <source>Tolerance rings</source>
        <translation>容差圈</translation>
    </message>
    <message>
        <source>Trail of the white</source>
        <translation>白点轨迹</translation>
    </message>
    <message>
        <source>Names</source>
        <translation>名称</translation>
    </message>
    <message>
        <source>Axes</source>
        <translation>坐标轴</translation>
    </message>
    <message>
        <source>Grid</source>
        <translation>网格</translation>
    </message>
</context>
<context>
    <name>gamutviewer::Lens</name>
    <message>
        <source>White point, enlarged</source>
        <translation>放大的白点</translation>
    </message>
    <message>
        <source>%1  Duv %2</source>
        <comment>colour temperature of the white</comment>
        <translation>%1  Duv %2</translation>
    </message>
    <message>
        <source>no colour temperature</source>
        <translation>无色温</translation>
    </message>
</context>
<context>
    <name>gamutviewer::LibraryPage</name>
    <message>
        <source>Current chart, CIE 1931 x, y</source>
        <translation>当前色度图，CIE 1931 x, y</translation>
    </message>
    <message>
        <source>Legacy chart, CIE 1931 x, y</source>
        <translation>旧版色度图，CIE 1931 x, y</translation>
    </message>
    <message>
        <source>Current: NewCEIE::CEIEGraphicsView</source>
        <translation>当前：NewCEIE::CEIEGraphicsView</translation>
    </message>
    <message>
        <source>Legacy: CEIEGraphicsView</source>
        <translation>旧版：CEIEGraphicsView</translation>
    </message>
    <message>
        <source>Charts of the library</source>
        <translation>库的色度图</translation>
    </message>
    <message>
        <source>The charts show the document. What is moved in them is logged, and leaves it as it is.</source>
        <translation>这里的色度图显示文档的内容。在其中移动的点只写入日志，文档不变。</translation>
    </message>
    <message>
        <source>Current</source>
        <translation>当前</translation>
    </message>
    <message>
        <source>Legacy</source>
        <translation>旧版</translation>
    </message>
    <message>
        <source>Library char&amp;ts</source>
        <translation>库色度图(&amp;T)</translation>
    </message>
</context>
<context>
    <name>gamutviewer::ListDialog</name>
    <message>
        <source>Measurement list</source>
        <translation>测量列表</translation>
    </message>
    <message>
        <source>%1 does not say all of what it means. What is known of it?</source>
        <translation>%1 没有写明全部含义。请补充已知的内容。</translation>
    </message>
    <message>
        <source>as the list says</source>
        <translation>按列表所写</translation>
    </message>
    <message>
        <source>cd/m²</source>
        <translation>cd/m²</translation>
    </message>
    <message>
        <source>foot-lambert</source>
        <translation>英尺朗伯</translation>
    </message>
    <message>
        <source>relative</source>
        <translation>相对值</translation>
    </message>
    <message>
        <source>&amp;Unit of the luminances:</source>
        <translation>亮度单位(&amp;U)：</translation>
    </message>
    <message>
        <source>as recognised</source>
        <translation>按识别结果</translation>
    </message>
    <message>
        <source>point</source>
        <translation>小数点</translation>
    </message>
    <message>
        <source>comma</source>
        <translation>逗号</translation>
    </message>
    <message>
        <source>&amp;Decimal sign:</source>
        <translation>小数符号(&amp;D)：</translation>
    </message>
    <message>
        <source>%1:</source>
        <comment>colour</comment>
        <translation>%1：</translation>
    </message>
    <message>
        <source>How the list is understood</source>
        <translation>列表的识别结果</translation>
    </message>
    <message>
        <source>&amp;Use</source>
        <translation>使用(&amp;U)</translation>
    </message>
    <message>
        <source>sum of red, green and blue</source>
        <translation>红、绿、蓝之和</translation>
    </message>
    <message>
        <source>line %1: %2</source>
        <translation>第 %1 行：%2</translation>
    </message>
    <message>
        <source>Cannot be read so: %1</source>
        <translation>无法这样读取：%1</translation>
    </message>
    <message>
        <source>The list makes a gamut.</source>
        <translation>列表构成一个色域。</translation>
    </message>
    <message>
        <source>The list makes no gamut, only points.</source>
        <translation>列表不构成色域，只有测量点。</translation>
    </message>
    <message>
        <source>C&amp;abinet:</source>
        <translation>箱体(&amp;A)：</translation>
    </message>
    <message>
        <source>all of them, which make no gamut</source>
        <translation>全部，不构成色域</translation>
    </message>
    <message>
        <source>the whole wall, %1 cabinets</source>
        <translation>整面墙，%1 个箱体</translation>
    </message>
    <message>
        <source>The list makes a wall.</source>
        <translation>该列表构成一面墙。</translation>
    </message>
    <message>
        <source>How is %1 to be read?</source>
        <translation>如何读取 %1？</translation>
    </message>
    <message>
        <source>%1 has measurements of %2 cabinets. What is to be made of them?</source>
        <translation>%1 包含 %2 个箱体的测量值。如何使用这些测量值？</translation>
    </message>
</context>
<context>
    <name>gamutviewer::Messages</name>
    <message>
        <source>there is not enough memory</source>
        <translation>内存不足</translation>
    </message>
</context>
<context>
    <name>gamutviewer::OpenedFiles</name>
    <message>
        <source>Gamut</source>
        <translation>色域</translation>
    </message>
    <message>
        <source>%1: is a second display description; the first is %2</source>
        <translation>%1：是第二个显示屏描述；第一个是 %2</translation>
    </message>
    <message>
        <source>is of the display &quot;%1&quot;, not of &quot;%2&quot;</source>
        <translation>属于显示屏“%1”，而不是“%2”</translation>
    </message>
    <message>
        <source>adds its gamuts only, in no role</source>
        <translation>只添加其色域，不担任角色</translation>
    </message>
    <message>
        <source>is called &quot;%1&quot; here, since another gamut has its name</source>
        <translation>在此称为“%1”，因为另一个色域已使用其名称</translation>
    </message>
    <message>
        <source>takes the place of &quot;%1&quot; as %2</source>
        <comment>gamut and part</comment>
        <translation>取代“%1”作为%2</translation>
    </message>
    <message>
        <source>takes the place of all measured points there were: %1</source>
        <translation>取代原有的全部测量点：%1</translation>
    </message>
    <message>
        <source>tells the unit of &quot;%1&quot;, which was not known: %2</source>
        <comment>gamut and unit</comment>
        <translation>给出此前未知的“%1”的单位：%2</translation>
    </message>
    <message>
        <source>is no measurement list</source>
        <translation>不是测量列表</translation>
    </message>
    <message>
        <source>takes the place of the wall that there was, of one cabinet</source>
        <translation>取代原有的墙（1 个箱体）</translation>
    </message>
    <message>
        <source>takes the place of the wall that there was, of %1 cabinets</source>
        <translation>取代原有的墙（%1 个箱体）</translation>
    </message>
</context>
<context>
    <name>gamutviewer::SidePanel</name>
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
        <source>Covera&amp;ge</source>
        <translation>覆盖率(&amp;G)</translation>
    </message>
    <message>
        <source>V&amp;alues</source>
        <translation>数值(&amp;A)</translation>
    </message>
    <message>
        <source>Dominant wavelength in nm</source>
        <translation>主波长 (nm)</translation>
    </message>
    <message>
        <source>Excitation purity</source>
        <translation>激发纯度</translation>
    </message>
    <message>
        <source>Dominant wavelengths of all gamuts</source>
        <translation>所有色域的主波长</translation>
    </message>
    <message>
        <source>Relative to the white of the same gamut, which stands in its title. The wavelength of a purple is the complementary one, with a minus sign.</source>
        <translation>相对于同一色域的白点（见其标题）。紫色的波长为补色波长，带负号。</translation>
    </message>
    <message>
        <source>H&amp;ue</source>
        <translation>色调(&amp;U)</translation>
    </message>
    <message>
        <source>%1 – Y: %2</source>
        <comment>gamut and the unit of its luminances</comment>
        <translation>%1 – Y：%2</translation>
    </message>
    <message>
        <source>%1 – white: %2, %3</source>
        <comment>gamut and its reference white</comment>
        <translation>%1 – 白点：%2, %3</translation>
    </message>
    <message>
        <source>What the files say</source>
        <translation>文件的说明</translation>
    </message>
    <message>
        <source>File&amp;s</source>
        <translation>文件(&amp;S)</translation>
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
    <message>
        <source>Hold &amp;white</source>
        <translation>保持白点(&amp;W)</translation>
    </message>
    <message>
        <source>Y, unit?</source>
        <translation>Y，单位？</translation>
    </message>
    <message>
        <source>Y, %1</source>
        <translation>Y，%1</translation>
    </message>
    <message>
        <source>Luminance: %1</source>
        <translation>亮度：%1</translation>
    </message>
    <message>
        <source>Unit of the luminances: %1</source>
        <translation>亮度的单位：%1</translation>
    </message>
    <message>
        <source>Unit of the luminances. From relative to cd/m², the white becomes the brightest that the display is known to reach; from cd/m² to relative, it becomes 1.</source>
        <translation>亮度的单位。从相对值改为 cd/m² 时，白点取已知显示屏所能达到的最大亮度；从 cd/m² 改为相对值时，白点为 1。</translation>
    </message>
</context>
<context>
    <name>gamutviewer::TargetSession</name>
    <message>
        <source>There is no target to edit.</source>
        <translation>没有可编辑的目标。</translation>
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
        <source>fit to the display</source>
        <translation>移入显示屏色域</translation>
    </message>
    <message>
        <source>The white would lie outside of the target.</source>
        <translation>白点将位于目标之外。</translation>
    </message>
    <message>
        <source>change unit of luminances</source>
        <translation>更改亮度单位</translation>
    </message>
    <message>
        <source>What luminance the display reaches is not known. Enter that of the white.</source>
        <translation>显示屏能达到的亮度未知。请输入白点的亮度。</translation>
    </message>
    <message>
        <source>There is no wall to fit the target to.</source>
        <translation>没有可供目标适配的墙。</translation>
    </message>
    <message>
        <source>There is no target to fit.</source>
        <translation>没有可适配的目标。</translation>
    </message>
    <message>
        <source>fit to the wall</source>
        <translation>适配到墙</translation>
    </message>
    <message>
        <source>The target fits the wall as far as is known.</source>
        <translation>就已知而言，目标已适合该墙。</translation>
    </message>
    <message>
        <source>leave out cabinets</source>
        <translation>排除箱体</translation>
    </message>
    <message>
        <source>count cabinets again</source>
        <translation>重新计入箱体</translation>
    </message>
    <message>
        <source>remove the wall</source>
        <translation>移除墙</translation>
    </message>
</context>
<context>
    <name>gamutviewer::TargetView</name>
    <message>
        <source>outside of the cabinet %1 by Δu′v′ %2</source>
        <translation>超出箱体 %1，Δu′v′ 为 %2</translation>
    </message>
    <message>
        <source>outside of %1 cabinets, of %2 by Δu′v′ %3</source>
        <comment>how many, the farthest, and how far</comment>
        <translation>超出 %1 个箱体，其中超出 %2 的 Δu′v′ 为 %3</translation>
    </message>
    <message>
        <source>outside of the %1 by Δu′v′ %2</source>
        <comment>gamut and distance</comment>
        <translation>超出%1，Δu′v′ 为 %2</translation>
    </message>
</context>
<context>
    <name>gamutviewer::TextReport</name>
    <message>
        <source>declared</source>
        <translation>声明</translation>
    </message>
    <message>
        <source>original</source>
        <translation>原始</translation>
    </message>
    <message>
        <source>measured</source>
        <translation>测量</translation>
    </message>
    <message>
        <source>target</source>
        <translation>目标</translation>
    </message>
    <message>
        <source>gamut</source>
        <translation>色域</translation>
    </message>
    <message>
        <source>red x y</source>
        <translation>红 x y</translation>
    </message>
    <message>
        <source>green x y</source>
        <translation>绿 x y</translation>
    </message>
    <message>
        <source>blue x y</source>
        <translation>蓝 x y</translation>
    </message>
    <message>
        <source>white x y</source>
        <translation>白 x y</translation>
    </message>
    <message>
        <source>luminance of white</source>
        <translation>白色亮度</translation>
    </message>
    <message>
        <source>difference of whites</source>
        <translation>白点差异</translation>
    </message>
    <message>
        <source>without corrections</source>
        <translation>未校正</translation>
    </message>
    <message>
        <source>with corrections</source>
        <translation>已校正</translation>
    </message>
    <message>
        <source>Δu′v′, any two</source>
        <translation>Δu′v′，任意两个</translation>
    </message>
    <message>
        <source>Δu′v′, neighbours</source>
        <translation>Δu′v′，相邻</translation>
    </message>
    <message>
        <source>luminance, any two</source>
        <translation>亮度，任意两个</translation>
    </message>
    <message>
        <source>luminance, neighbours</source>
        <translation>亮度，相邻</translation>
    </message>
    <message>
        <source>cabinet</source>
        <translation>箱体</translation>
    </message>
    <message>
        <source>shows the target</source>
        <translation>显示目标</translation>
    </message>
    <message>
        <source>limit</source>
        <translation>限制</translation>
    </message>
    <message>
        <source>largest white, %1</source>
        <translation>最大白色，%1</translation>
    </message>
    <message>
        <source>headroom</source>
        <translation>余量</translation>
    </message>
    <message>
        <source>left out</source>
        <translation>已排除</translation>
    </message>
    <message>
        <source>Δu′v′ of the white without correction</source>
        <translation>未校正时白的 Δu′v′</translation>
    </message>
    <message>
        <source>Δu′v′ of the white with correction</source>
        <translation>校正后白的 Δu′v′</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <comment>cabinet, and why nothing is known of it</comment>
        <translation>%1（%2）</translation>
    </message>
    <message>
        <source>temperature of white</source>
        <translation>白色的色温</translation>
    </message>
    <message>
        <source>Duv</source>
        <translation>Duv</translation>
    </message>
    <message>
        <source>coverage of</source>
        <translation>覆盖率</translation>
    </message>
    <message>
        <source>%1 x, y</source>
        <comment>part of a gamut: measured x, y</comment>
        <translation>%1 x, y</translation>
    </message>
    <message>
        <source>u′, v′</source>
        <translation>u′, v′</translation>
    </message>
    <message>
        <source>warning: %1</source>
        <translation>警告：%1</translation>
    </message>
</context>
<context>
    <name>gamutviewer::TolerancesMenu</name>
    <message>
        <source>T&amp;olerances</source>
        <translation>容差(&amp;O)</translation>
    </message>
    <message>
        <source>&amp;None</source>
        <translation>无(&amp;N)</translation>
    </message>
    <message>
        <source>&amp;Choose file…</source>
        <translation>选择文件(&amp;C)…</translation>
    </message>
    <message>
        <source>Choose tolerances</source>
        <translation>选择容差</translation>
    </message>
    <message>
        <source>Tolerances (*.json)</source>
        <translation>容差 (*.json)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>所有文件 (*)</translation>
    </message>
</context>
<context>
    <name>gamutviewer::Verdict</name>
    <message>
        <source>&amp;Move inside the original</source>
        <translation>移入原始色域(&amp;M)</translation>
    </message>
    <message>
        <source>Moves each primary that lies outside to the nearest colour that the display can show</source>
        <translation>把位于外面的每个基色移到显示屏能显示的最近的颜色</translation>
    </message>
    <message>
        <source>Grounds of the verdict</source>
        <translation>判定的依据</translation>
    </message>
    <message>
        <source>Return shows the mark of a line on the diagram</source>
        <translation>按回车键在图上显示该行的标记</translation>
    </message>
    <message>
        <source>On the diagram: %1</source>
        <translation>在图上：%1</translation>
    </message>
    <message>
        <source>&amp;Move inside the measured gamut</source>
        <translation>移入实测色域(&amp;M)</translation>
    </message>
    <message>
        <source>F&amp;it target to the wall</source>
        <translation>将目标适配到墙(&amp;I)</translation>
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
        <source>&amp;Lock primaries</source>
        <translation>锁定基色(&amp;L)</translation>
    </message>
    <message>
        <source>&amp;Snap</source>
        <translation>吸附(&amp;S)</translation>
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
        <source>Unsaved changes</source>
        <translation>未保存的修改</translation>
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
    <message>
        <source>&amp;Export picture…</source>
        <translation>导出图片(&amp;E)…</translation>
    </message>
    <message>
        <source>Hold &amp;white</source>
        <translation>保持白点(&amp;W)</translation>
    </message>
    <message>
        <source>&amp;Copy picture</source>
        <translation>复制图片(&amp;C)</translation>
    </message>
    <message>
        <source>Export picture</source>
        <translation>导出图片</translation>
    </message>
    <message>
        <source>Pictures (*.%1)</source>
        <translation>图片 (*.%1)</translation>
    </message>
    <message>
        <source>Exported to %1, without a key for lack of room</source>
        <translation>已导出到 %1，因空间不足没有图例</translation>
    </message>
    <message>
        <source>The picture has been copied to the clipboard.</source>
        <translation>图片已复制到剪贴板。</translation>
    </message>
    <message>
        <source>Chromaticity under the pointer: %1</source>
        <translation>指针处的色度：%1</translation>
    </message>
    <message>
        <source>add %1 files</source>
        <translation>添加 %1 个文件</translation>
    </message>
    <message>
        <source>Nothing is known of this display yet: open its files, or drop them here.</source>
        <translation>对此显示屏尚一无所知：请打开其文件，或将文件拖放到此处。</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>添加</translation>
    </message>
    <message>
        <source>display</source>
        <comment>proposed name of a file</comment>
        <translation>显示屏</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has been modified. Save the changes?</source>
        <translation>“%1”已修改。是否保存更改？</translation>
    </message>
    <message>
        <source>%1 (sample)</source>
        <translation>%1（示例）</translation>
    </message>
    <message>
        <source>&amp;New</source>
        <translation>新建(&amp;N)</translation>
    </message>
    <message>
        <source>A&amp;dd…</source>
        <translation>添加(&amp;D)…</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>关闭(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Gamuts…</source>
        <translation>色域(&amp;G)…</translation>
    </message>
    <message>
        <source>Dominant wavelength λ and excitation purity p are relative to the white of the target</source>
        <translation>主波长 λ 和激发纯度 p 相对于目标的白点</translation>
    </message>
    <message>
        <source>   λ %1 nm  p %2</source>
        <comment>dominant wavelength and purity, for the white of the target</comment>
        <translation>   λ %1 nm  p %2</translation>
    </message>
    <message>
        <source>Saved as %1, without the measurement in progress</source>
        <translation>已保存为 %1，不含进行中的测量</translation>
    </message>
    <message>
        <source>Export corrections</source>
        <translation>导出校正</translation>
    </message>
    <message>
        <source>Corrections (*.csv)</source>
        <translation>校正 (*.csv)</translation>
    </message>
    <message>
        <source>Corrections (*.json)</source>
        <translation>校正 (*.json)</translation>
    </message>
    <message>
        <source>%1 corrections</source>
        <comment>proposed name of a file, without its suffix</comment>
        <translation>%1 校正</translation>
    </message>
    <message>
        <source>Corrections exported to %1</source>
        <translation>校正已导出到 %1</translation>
    </message>
    <message>
        <source>&amp;Fit target to the wall</source>
        <translation>将目标适配到墙(&amp;F)</translation>
    </message>
    <message>
        <source>Judge without the selected &amp;cabinet</source>
        <translation>判断时排除所选箱体(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Export corrections…</source>
        <translation>导出校正(&amp;E)…</translation>
    </message>
    <message>
        <source>&amp;Remove the wall</source>
        <translation>移除墙(&amp;R)</translation>
    </message>
    <message>
        <source>Wall</source>
        <translation>墙</translation>
    </message>
    <message>
        <source>Diagram:
Wheel, + and − – zoom about the pointer; 0 or Home – all of it
Drag on free ground, middle button, arrow keys – move the view
R, G, B, W or Tab – select a primary or the white
Drag or arrow keys – move it; with Shift a tenth as far
Ctrl – towards the white; the white at its colour temperature
Alt – along an axis; Ctrl+Alt – without snapping
Alt+arrows – move the view all the same
Esc – cancel a drag or a move by keys; otherwise select nothing

Key:
Click or Space – show or hide an entry
Double click or Return – show it alone

Numbers:
Up, Down – one step; with Shift a tenth of a step, with Ctrl ten steps
Page Up, Page Down – ten steps
Esc – restore the value of the target

Wall:
Arrows – select the next cabinet; Esc – none

Tables:
Ctrl+C – copy all of the table
Del – remove the gamut that is selected, in the list of gamuts

Ctrl+Z – undo; Ctrl+Shift+Z or Ctrl+Y – redo
Ctrl+1 to Ctrl+4 – show a page
Esc – close the messages that have the focus
The menus show further keys.</source>
        <translation>色度图：
滚轮、+ 和 − – 以指针为中心缩放；0 或 Home – 全部
在空白处拖动、鼠标中键、方向键 – 平移
R、G、B、W 或 Tab – 选择基色或白点
拖动或方向键 – 移动；按住 Shift 为十分之一
Ctrl – 朝向白点；白点保持其色温
Alt – 沿坐标轴；Ctrl+Alt – 不吸附
Alt+方向键 – 始终平移
Esc – 取消拖动或按键移动；否则取消选择

图例：
单击或空格键 – 显示或隐藏条目
双击或回车键 – 单独显示

数值：
上、下方向键 – 一步；按住 Shift 为十分之一步，按住 Ctrl 为十步
Page Up、Page Down – 十步
Esc – 恢复目标的数值

墙：
方向键 – 选择下一个箱体；Esc – 不选

表格：
Ctrl+C – 复制整个表格
Del – 在色域列表中移除所选色域

Ctrl+Z – 撤销；Ctrl+Shift+Z 或 Ctrl+Y – 重做
Ctrl+1 到 Ctrl+4 – 显示页面
Esc – 关闭有焦点的消息
菜单中还有其他按键。</translation>
    </message>
    <message>
        <source>Open sam&amp;ple</source>
        <translation>打开示例(&amp;P)</translation>
    </message>
    <message>
        <source>The &amp;gamuts of an LED wall</source>
        <translation>LED 墙的色域(&amp;G)</translation>
    </message>
    <message>
        <source>The &amp;cabinets of a simulated wall</source>
        <translation>模拟墙的箱体(&amp;C)</translation>
    </message>
    <message>
        <source>Read &amp;list again</source>
        <translation>重新读取列表(&amp;L)</translation>
    </message>
    <message>
        <source>%1: cannot be read: %2</source>
        <translation>%1：无法读取：%2</translation>
    </message>
</context>
<context>
    <name>gamutviewer::WallAssessment</name>
    <message>
        <source>%1.</source>
        <comment>a sentence</comment>
        <translation>%1。</translation>
    </message>
    <message>
        <source>%1 and %2</source>
        <comment>names of cabinets</comment>
        <translation>%1和%2</translation>
    </message>
    <message>
        <source>, </source>
        <comment>between names</comment>
        <translation>、</translation>
    </message>
    <message>
        <source>%1: no target can be shown by all.</source>
        <translation>%1：没有所有箱体都能显示的目标。</translation>
    </message>
    <message>
        <source>%1 other cabinets do not show it either.</source>
        <translation>另有 %1 个箱体也不能显示。</translation>
    </message>
    <message>
        <source>Of %1 other cabinets it is not known either.</source>
        <translation>另有 %1 个箱体也未知。</translation>
    </message>
    <message>
        <source>wall</source>
        <translation>墙</translation>
    </message>
    <message>
        <source>There are no corrections: %1</source>
        <translation>没有校正：%1</translation>
    </message>
    <message>
        <source>a colour of the target has no chromaticity.</source>
        <translation>目标的某个颜色没有色度。</translation>
    </message>
    <message>
        <source>the primaries of the target lie too close to a line.</source>
        <translation>目标的基色几乎在一条直线上。</translation>
    </message>
    <message>
        <source>the white of the target is not a mixture of its primaries.</source>
        <translation>目标的白点不能由其基色混合而成。</translation>
    </message>
    <message>
        <source>no cabinet reaches the white of the target.</source>
        <translation>没有箱体能达到目标的白点。</translation>
    </message>
    <message>
        <source>%1 (%2 is the limit, with %3 at full drive)</source>
        <comment>luminance, cabinet, primary</comment>
        <translation>%1（受限于 %2，其%3满驱动）</translation>
    </message>
    <message>
        <source>All others reach a white of %1.</source>
        <translation>其余箱体均可达到 %1 的白色。</translation>
    </message>
    <message>
        <source>All others of which it is known reach a white of %1.</source>
        <translation>其余已知的箱体均可达到 %1 的白色。</translation>
    </message>
    <message>
        <source>All of which it is known reach a white of %1.</source>
        <translation>已知的箱体均可达到 %1 的白色。</translation>
    </message>
    <message>
        <source>All reach a white of %1.</source>
        <translation>所有箱体均可达到 %1 的白色。</translation>
    </message>
    <message>
        <source>The corrections are for a white of %1.</source>
        <translation>校正针对 %1 的白色。</translation>
    </message>
    <message>
        <source>Fitted to the wall, the target keeps %1 of its area in u′, v′ and has a white of %2.</source>
        <translation>适配到墙后，目标在 u′, v′ 中保留 %1 的面积，白色为 %2。</translation>
    </message>
    <message>
        <source>Without %1, all show the target.</source>
        <translation>排除 %1 后，所有箱体均能显示目标。</translation>
    </message>
    <message>
        <source>Left out of this verdict: %1.</source>
        <comment>names of cabinets</comment>
        <translation>未计入此结论：%1。</translation>
    </message>
    <message>
        <source>Left out of this verdict: %1 cabinets.</source>
        <translation>未计入此结论：%1 个箱体。</translation>
    </message>
    <message>
        <source>The cabinet %1 does not show this target</source>
        <translation>箱体 %1 不能显示此目标</translation>
    </message>
    <message>
        <source>Not known whether the cabinet %1 shows this target</source>
        <translation>箱体 %1 能否显示此目标未知</translation>
    </message>
    <message>
        <source>The cabinet %1 shows this target</source>
        <translation>箱体 %1 能显示此目标</translation>
    </message>
    <message>
        <source>Nothing is judged: all cabinets are left out</source>
        <translation>没有判断：所有箱体均被排除</translation>
    </message>
    <message>
        <source>Not known whether the cabinets show this target</source>
        <translation>箱体能否显示此目标未知</translation>
    </message>
    <message>
        <source>All %1 cabinets show this target</source>
        <translation>全部 %1 个箱体均能显示此目标</translation>
    </message>
    <message>
        <source>None of the %1 cabinets shows this target</source>
        <translation>%1 个箱体均不能显示此目标</translation>
    </message>
    <message>
        <source>%1 of %2 cabinets show this target</source>
        <comment>count that do, and of all</comment>
        <translation>%2 个箱体中有 %1 个能显示此目标</translation>
    </message>
    <message>
        <source>%1 does not</source>
        <comment>name of a cabinet</comment>
        <translation>%1 不能</translation>
    </message>
    <message>
        <source>%1 do not</source>
        <comment>names of cabinets</comment>
        <translation>%1 不能</translation>
    </message>
    <message>
        <source>%1 and %2 others do not</source>
        <comment>name of a cabinet and how many</comment>
        <translation>%1 和另外 %2 个不能</translation>
    </message>
    <message>
        <source>%1; %2</source>
        <comment>how many cabinets show a target, and which do not</comment>
        <translation>%1；%2</translation>
    </message>
    <message>
        <source>%1; of %2 it is not known</source>
        <comment>which cabinets show a target</comment>
        <translation>%1；%2 个未知</translation>
    </message>
    <message>
        <source>a colour has no chromaticity</source>
        <translation>某个颜色没有色度</translation>
    </message>
    <message>
        <source>a primary has no luminance</source>
        <translation>某个基色没有亮度</translation>
    </message>
    <message>
        <source>%1 has no luminance of its own</source>
        <comment>a primary</comment>
        <translation>%1没有自己的亮度</translation>
    </message>
    <message>
        <source>the primaries cannot be told apart</source>
        <translation>基色无法区分</translation>
    </message>
    <message>
        <source>the primaries cannot be told apart: the others almost mix %1</source>
        <translation>基色无法区分：其余基色几乎能混合出%1</translation>
    </message>
    <message>
        <source>white reaches %1 (%2 is the limit)</source>
        <translation>白色可达 %1（受限于%2）</translation>
    </message>
    <message>
        <source>white reaches %1 only, of %2 (%3 is the limit)</source>
        <translation>白色仅达 %1，目标为 %2（受限于%3）</translation>
    </message>
    <message>
        <source>white reaches %1, of %2 (%3 is the limit)</source>
        <translation>白色可达 %1，目标为 %2（受限于%3）</translation>
    </message>
    <message>
        <source>%1 reaches %2 only, Δu′v′ %3 off</source>
        <translation>%1仅达 %2，相差 Δu′v′ %3</translation>
    </message>
    <message>
        <source>%1 is out of reach</source>
        <translation>%1无法达到</translation>
    </message>
    <message>
        <source>the primaries span no triangle</source>
        <translation>基色不构成三角形</translation>
    </message>
    <message>
        <source>the white is %1, the primaries add to %2: what it reaches cannot be worked out</source>
        <translation>白色为 %1，基色相加为 %2：无法算出其能达到的亮度</translation>
    </message>
    <message>
        <source>the target is too bright for it in any case</source>
        <translation>无论如何目标对它都过亮</translation>
    </message>
    <message>
        <source>not known whether it shows the target</source>
        <translation>能否显示目标未知</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>a cabinet and what is known of it</comment>
        <translation>%1：%2</translation>
    </message>
    <message>
        <source>; </source>
        <comment>between parts of a sentence</comment>
        <translation>；</translation>
    </message>
    <message>
        <source>It is not known what the cabinets have in common</source>
        <translation>箱体的共同色域未知</translation>
    </message>
    <message>
        <source>%1 have no colour in common</source>
        <comment>names of cabinets</comment>
        <translation>%1 没有共同的颜色</translation>
    </message>
    <message>
        <source>The gamuts of the cabinets only touch</source>
        <translation>箱体的色域仅相接触</translation>
    </message>
    <message>
        <source>The target cannot be fitted: a colour of it has no chromaticity.</source>
        <translation>目标无法适配：其某个颜色没有色度。</translation>
    </message>
    <message>
        <source>The target cannot be fitted: %1.</source>
        <comment>why</comment>
        <translation>目标无法适配：%1。</translation>
    </message>
    <message>
        <source>The target cannot be fitted: not all cabinets can show its white (%1 is the limit). The nearest that they can show is %2. Move the white beyond that, towards the middle.</source>
        <translation>目标无法适配：并非所有箱体都能显示其白点（受限于 %1）。它们能显示的最近白点为 %2。请将白点移过该点，朝向中间。</translation>
    </message>
    <message>
        <source>The target cannot be fitted: its white is not inside of its primaries.</source>
        <translation>目标无法适配：其白点不在基色之内。</translation>
    </message>
    <message>
        <source>The target cannot be fitted: too little of it would be left.</source>
        <translation>目标无法适配：所剩过少。</translation>
    </message>
    <message>
        <source>white reaches %1 only, of %2</source>
        <translation>白色仅达 %1，目标为 %2</translation>
    </message>
    <message>
        <source>the white is %1, the primaries add to %2: what it shows with its correction cannot be worked out</source>
        <translation>白色为 %1，基色相加为 %2：无法算出其校正后显示的颜色</translation>
    </message>
    <message>
        <source>%1 by Δu′v′ %2</source>
        <comment>colour and distance</comment>
        <translation>%1相差 Δu′v′ %2</translation>
    </message>
    <message>
        <source>red, green and blue seem to be exchanged</source>
        <translation>红、绿、蓝似乎互换了</translation>
    </message>
    <message>
        <source>red and green seem to be exchanged</source>
        <translation>红与绿似乎互换了</translation>
    </message>
    <message>
        <source>green and blue seem to be exchanged</source>
        <translation>绿与蓝似乎互换了</translation>
    </message>
    <message>
        <source>red and blue seem to be exchanged</source>
        <translation>红与蓝似乎互换了</translation>
    </message>
    <message>
        <source>the black is too bright, and keeps it off %1: raise the white of the target, fit the target to the wall, or measure the black without stray light</source>
        <comment>colours and distances</comment>
        <translation>黑场过亮，使其偏离目标（%1）：请提高目标白点的亮度、将目标适配到墙，或在没有杂散光时测量黑场</translation>
    </message>
    <message>
        <source>%1 and %2 others</source>
        <comment>name of a cabinet and how many</comment>
        <translation>%1 和另外 %2 个</translation>
    </message>
    <message>
        <source>Check the measurement: a correction drives the primaries as they are named.</source>
        <translation>请检查测量：校正按基色的名称驱动基色。</translation>
    </message>
    <message>
        <source>The target cannot be fitted: its white is too dark over the black of %1. Raise the luminance of the white, or measure the black again without stray light.</source>
        <translation>目标无法适配：与 %1 的黑场相比，其白点过暗。请提高白点的亮度，或在没有杂散光时重新测量黑场。</translation>
    </message>
    <message>
        <source>%1 (%2 is the limit)</source>
        <comment>luminance, cabinet</comment>
        <translation>%1（受限于 %2）</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <comment>colour and luminance</comment>
        <translation>%1 %2</translation>
    </message>
    <message>
        <source>The luminances of the target&apos;s primaries do not mix to its white. A correction is for those that do: %1.</source>
        <translation>目标各基色的亮度混合不出其白点。校正采用能混合出白点的亮度：%1。</translation>
    </message>
    <message>
        <source>All that are not left out reach a white of %1.</source>
        <translation>未排除的箱体均可达到 %1 的白色。</translation>
    </message>
    <message>
        <source>It reaches a white of %1.</source>
        <translation>可达到 %1 的白色。</translation>
    </message>
    <message>
        <source>corrected, %1 is %2 over the black, Δu′v′ %3 off</source>
        <translation>校正后，%1叠加黑场为 %2，相差 Δu′v′ %3</translation>
    </message>
    <message>
        <source>%1 reaches %2 at most, without its black, Δu′v′ %3 off</source>
        <translation>不计黑场，%1最多达 %2，相差 Δu′v′ %3</translation>
    </message>
    <message>
        <source>Measured whites are up to %1 and Δu′v′ %2 off the sums of the primaries (%3).</source>
        <translation>实测白色与各基色之和最多相差 %1 和 Δu′v′ %2（%3）。</translation>
    </message>
    <message>
        <source>Measured whites are up to %1 off the sums of the primaries (%2).</source>
        <comment>part of a luminance, cabinet</comment>
        <translation>实测白色与各基色之和最多相差 %1（%2）。</translation>
    </message>
    <message>
        <source>Measured whites are up to Δu′v′ %1 off the sums of the primaries (%2).</source>
        <comment>distance, cabinet</comment>
        <translation>实测白色与各基色之和最多相差 Δu′v′ %1（%2）。</translation>
    </message>
    <message>
        <source>What corrections leave is worked out from the primaries, and known no better than that.</source>
        <translation>校正后的剩余差异由基色算出，其准确程度不会更高。</translation>
    </message>
    <message>
        <source>The target has %1.</source>
        <comment>luminance of its white</comment>
        <translation>目标为 %1。</translation>
    </message>
    <message>
        <source>Fitted to the cabinets of which it is known, the target keeps %1 of its area in u′, v′ and has a white of %2.</source>
        <translation>适配到已知色域的箱体后，目标在 u′, v′ 中保留 %1 的面积，白色为 %2。</translation>
    </message>
    <message>
        <source>1 of %1 cabinets shows this target</source>
        <translation>%1 个箱体中有 1 个能显示此目标</translation>
    </message>
    <message>
        <source>1 of %1 cabinets does not show this target</source>
        <translation>%1 个箱体中有 1 个不能显示此目标</translation>
    </message>
    <message>
        <source>%1 of %2 cabinets do not show this target</source>
        <comment>count that do not, and of all</comment>
        <translation>%2 个箱体中有 %1 个不能显示此目标</translation>
    </message>
    <message>
        <source>%1; of the other it is not known</source>
        <comment>how many cabinets fail</comment>
        <translation>%1；另一个未知</translation>
    </message>
    <message>
        <source>%1; of the others it is not known</source>
        <comment>how many cabinets fail</comment>
        <translation>%1；其余未知</translation>
    </message>
    <message>
        <source>the chromaticity of its black is not known, and one of this luminance can keep it off %1: measure it</source>
        <comment>colours and distances</comment>
        <translation>其黑场的色品未知，而具有该亮度的黑场可能使其偏离目标（%1）：请测量</translation>
    </message>
    <message>
        <source>its black was not measured, and one as bright as that of %1 can keep it off %2: measure it</source>
        <comment>name of a cabinet, colours and distances</comment>
        <translation>其黑场未测量，而与 %1 一样亮的黑场可能使其偏离目标（%2）：请测量</translation>
    </message>
    <message>
        <source>the chromaticity of its black is not known, and over one of this luminance white can reach %1 only, of %2: measure it</source>
        <translation>其黑场的色品未知，而在具有该亮度的黑场之上，白色可能只能达到 %1（目标为 %2）：请测量</translation>
    </message>
    <message>
        <source>its black was not measured, and over one as bright as that of %1 white can reach %2 only, of %3: measure it</source>
        <comment>name of a cabinet, luminances</comment>
        <translation>其黑场未测量，而在与 %1 一样亮的黑场之上，白色可能只能达到 %2（目标为 %3）：请测量</translation>
    </message>
    <message>
        <source>Content that is darker than the target is not judged: at a tenth of its luminance, the black of %1 shifts %2 by Δu′v′ %3.</source>
        <translation>比目标更暗的内容不作判断：在其亮度的十分之一处，%1 的黑场使%2偏移 Δu′v′ %3。</translation>
    </message>
    <message>
        <source>%1 for %2</source>
        <comment>name of a cabinet, and the primary that it limits</comment>
        <translation>%2受 %1 限制</translation>
    </message>
    <message>
        <source>%1; one is left out</source>
        <comment>how many cabinets show a target</comment>
        <translation>%1；1 个被排除</translation>
    </message>
    <message>
        <source>%1; %2 are left out</source>
        <comment>how many cabinets show a target, and a count</comment>
        <translation>%1；%2 个被排除</translation>
    </message>
    <message>
        <source>%1 cabinets show this target</source>
        <translation>%1 个箱体能显示此目标</translation>
    </message>
    <message>
        <source>The other reaches a white of %1.</source>
        <translation>另一个可达到白色 %1。</translation>
    </message>
    <message>
        <source>The only other of which it is known reaches a white of %1.</source>
        <translation>其余已知的一个可达到白色 %1。</translation>
    </message>
    <message>
        <source>The only one of which it is known reaches a white of %1.</source>
        <translation>唯一已知的一个可达到白色 %1。</translation>
    </message>
    <message>
        <source>Both reach a white of %1.</source>
        <translation>两者均可达到白色 %1。</translation>
    </message>
    <message>
        <source>Without %1, the other cabinet shows the target.</source>
        <translation>除 %1 外，另一个箱体能显示目标。</translation>
    </message>
    <message>
        <source>Both cabinets show this target</source>
        <translation>两个箱体均能显示此目标</translation>
    </message>
    <message>
        <source>Neither cabinet shows this target</source>
        <translation>两个箱体均不能显示此目标</translation>
    </message>
    <message>
        <source>Limited by %1.</source>
        <translation>限制因素：%1。</translation>
    </message>
    <message>
        <source>its white was not measured, and that of %1 is not the sum of its primaries: measure it</source>
        <comment>name of a cabinet</comment>
        <translation>其白点未测量，而 %1 的白点不等于其各基色之和：请测量</translation>
    </message>
    <message>
        <source>Content that is darker than the target is not judged: at a tenth of its luminance, the black of %1, whose chromaticity is not known, can shift %2 by up to Δu′v′ %3.</source>
        <translation>比目标更暗的内容不作判断：在其亮度的十分之一处，%1 的黑场（色度未知）可能使%2偏移多达 Δu′v′ %3。</translation>
    </message>
    <message>
        <source>The whites of %1 cabinets were not measured, and that of %2 is not the sum of its primaries: measure them.</source>
        <translation>有 %1 个箱体的白点未测量，而 %2 的白点不等于其各基色之和：请测量。</translation>
    </message>
    <message>
        <source>the chromaticity of its black is not known, nor whether its white is the sum of its primaries over it: measure it</source>
        <translation>其黑场的色度未知，也不知道在其之上白点是否等于各基色之和：请测量</translation>
    </message>
    <message>
        <source>its white was not measured, and reaches %1 only, of %2, if it is as far below the sum of the primaries as that of %3: measure it</source>
        <comment>luminances, name of a cabinet</comment>
        <translation>其白点未测量；若它与 %3 的白点一样低于各基色之和，则只能达到 %1（目标为 %2）：请测量</translation>
    </message>
    <message>
        <source>white reaches %1 at most, of %2</source>
        <translation>白色最多达到 %1，目标为 %2</translation>
    </message>
    <message>
        <source>The luminance of the target is not known: its white has none. Enter it, beside Y in the window.</source>
        <translation>目标的亮度未知：其白点没有亮度。请输入，在窗口中位于 Y 旁。</translation>
    </message>
    <message>
        <source>the %1 of the target is too bright for it</source>
        <comment>a primary</comment>
        <translation>目标的%1对它过亮</translation>
    </message>
</context>
<context>
    <name>gamutviewer::WallCommand</name>
    <message>
        <source>no cabinet of the wall is called &quot;%1&quot;</source>
        <translation>墙上没有名为“%1”的箱体</translation>
    </message>
    <message>
        <source>several cabinets are called &quot;%1&quot;: %2 and %3, for example</source>
        <translation>有多个箱体名为“%1”：例如 %2 和 %3</translation>
    </message>
    <message>
        <source>%1 and %2 more</source>
        <comment>names of cabinets and a number</comment>
        <translation>%1 和另外 %2 个</translation>
    </message>
    <message>
        <source>a pair of tables is for one display: choose a cabinet by --cabinet, or write csv or json</source>
        <translation>一对表格只用于一台显示屏：请用 --cabinet 选择箱体，或写入 csv 或 json</translation>
    </message>
    <message>
        <source>%1; csv and json have the matrix as it is</source>
        <translation>%1；csv 和 json 中的矩阵保持原样</translation>
    </message>
    <message>
        <source>has no wall: that is in a measurement list with a column for the cabinet, or in a display description</source>
        <translation>没有墙：墙来自带有箱体列的测量列表或显示屏描述</translation>
    </message>
    <message>
        <source>takes the place of the wall that there was</source>
        <translation>取代原有的墙</translation>
    </message>
    <message>
        <source>there is no gamut called &quot;%1&quot; for the target; there are %2</source>
        <translation>没有名为“%1”的色域可作目标；现有 %2</translation>
    </message>
    <message>
        <source>no display can show &quot;%1&quot;</source>
        <translation>没有显示屏能显示“%1”</translation>
    </message>
    <message>
        <source>there is no wall to fit the target to</source>
        <translation>没有可供目标适配的墙</translation>
    </message>
    <message>
        <source>there is no target to fit to the wall</source>
        <translation>没有可适配到墙的目标</translation>
    </message>
    <message>
        <source>the target fits the wall as it is, as far as that is known</source>
        <translation>就已知而言，目标无需改变即适合该墙</translation>
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
        <source>%1 by Δu′v′ %2 (%3 is the limit)</source>
        <comment>primary, how far, and cabinet</comment>
        <translation>%1移动 Δu′v′ %2（受限于 %3）</translation>
    </message>
    <message>
        <source>fitted to the wall, the target has moved towards its white: %1</source>
        <translation>适配到墙后，目标朝其白点移动：%1</translation>
    </message>
    <message>
        <source>fitted to the wall, the target has a white of %1 instead of %2</source>
        <translation>适配到墙后，目标的白色为 %1 而不是 %2</translation>
    </message>
    <message>
        <source>there is no target, which corrections are for: choose one by --target</source>
        <translation>没有校正所针对的目标：请用 --target 选择</translation>
    </message>
    <message>
        <source>there is nothing to correct: no wall, and no measured or original gamut</source>
        <translation>没有可校正的对象：没有墙，也没有测量或原始色域</translation>
    </message>
    <message>
        <source>there is no correction for %1: %2</source>
        <comment>cabinet, and why</comment>
        <translation>%1 没有校正：%2</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <comment>cabinet, and why nothing is known of it</comment>
        <translation>%1（%2）</translation>
    </message>
    <message>
        <source>the white of the target has no luminance</source>
        <translation>目标白点没有亮度</translation>
    </message>
    <message>
        <source>the luminance of the target cannot be compared with theirs</source>
        <translation>目标的亮度无法与箱体的亮度比较</translation>
    </message>
    <message>
        <source>the correction is for a white of %1, the largest that the display reaches, as %2</source>
        <translation>校正针对的白点亮度为 %1，即显示屏能达到的最大值，因为%2</translation>
    </message>
    <message>
        <source>the corrections are for a white of %1, the largest that all cabinets reach, as %2</source>
        <translation>校正针对的白点亮度为 %1，即所有箱体都能达到的最大值，因为%2</translation>
    </message>
    <message>
        <source>the corrections are for a white of %1, the largest that all cabinets reach of which it is known, as %2</source>
        <translation>校正针对的白点亮度为 %1，即所有已知的箱体都能达到的最大值，因为%2</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>what is true of cabinets, and their names</comment>
        <translation>%1：%2</translation>
    </message>
    <message>
        <source>cabinets without a correction</source>
        <translation>没有校正的箱体</translation>
    </message>
    <message>
        <source>the display differs from the target even so, by up to %1, as it cannot show all of it</source>
        <translation>校正后显示屏仍与目标相差，最多 %1，因为它无法显示目标的全部颜色</translation>
    </message>
    <message>
        <source>cabinets that differ from the target even so, by up to %1, as they cannot show all of it</source>
        <translation>校正后仍与目标相差最多 %1 的箱体，因为它们无法显示目标的全部颜色</translation>
    </message>
    <message>
        <source>the display does not show the target even so</source>
        <translation>校正后显示屏仍达不到目标</translation>
    </message>
    <message>
        <source>cabinets that do not show the target even so</source>
        <translation>校正后仍达不到目标的箱体</translation>
    </message>
    <message>
        <source>the white of the display is not the sum of its primaries, which the correction is for; what it shows is not known</source>
        <translation>显示屏的白点不等于其各基色之和，而校正是按此和计算的；校正后显示什么并不可知</translation>
    </message>
    <message>
        <source>cabinets whose measured white is not the sum of their primaries, which the corrections are for, so that it is not known what they show</source>
        <translation>实测白点不等于各基色之和的箱体，而校正是按此和计算的，因此校正后显示什么并不可知</translation>
    </message>
    <message>
        <source>the luminance of the target cannot be compared with those of the display</source>
        <translation>目标的亮度无法与显示屏的亮度比较</translation>
    </message>
    <message>
        <source>the correction is for a white of %1, the largest that the primaries of the display add to, as %2</source>
        <translation>校正针对的白点亮度为 %1，即显示屏各基色之和的最大值，因为%2</translation>
    </message>
    <message>
        <source>the corrections are for a white of %1, the largest that the primaries of all cabinets add to, as %2</source>
        <translation>校正针对的白点亮度为 %1，即所有箱体的基色之和都能达到的最大值，因为%2</translation>
    </message>
    <message>
        <source>the luminances of the target&apos;s primaries did not mix to its white, and do now</source>
        <translation>目标各基色的亮度原先混合不出其白点，现已改正</translation>
    </message>
    <message>
        <source>the luminance of the target is relative</source>
        <translation>目标的亮度是相对的</translation>
    </message>
    <message>
        <source>%1; its white is taken at %2, the largest that all cabinets reach</source>
        <translation>%1；其白色取 %2，即所有箱体都能达到的最大值</translation>
    </message>
    <message>
        <source>%1; its white is taken at %2, the largest that all cabinets reach of which it is known</source>
        <translation>%1；其白色取 %2，即所有已知的箱体都能达到的最大值</translation>
    </message>
    <message>
        <source>the display shows the target, but for up to %1</source>
        <translation>显示屏能显示目标，最多相差 %1</translation>
    </message>
    <message>
        <source>cabinets that show the target, but for up to %1</source>
        <translation>能显示目标、但最多相差 %1 的箱体</translation>
    </message>
    <message>
        <source>fitted to the cabinets of which it is known, the target has moved towards its white: %1</source>
        <translation>适配到已知色域的箱体后，目标朝其白点移动：%1</translation>
    </message>
    <message>
        <source>the fitted target covers %1 of the area of the wished one in x, y and %2 in u′, v′</source>
        <translation>适配后的目标在 x, y 中覆盖所期望目标面积的 %1，在 u′, v′ 中覆盖 %2</translation>
    </message>
    <message>
        <source>fitted to the cabinets of which it is known, the target has a white of %1 instead of %2</source>
        <translation>适配到已知色域的箱体后，目标的白色为 %1 而不是 %2</translation>
    </message>
    <message>
        <source>Δu′v′ %1</source>
        <comment>how much remains</comment>
        <translation>Δu′v′ %1</translation>
    </message>
    <message>
        <source>%1 of the luminance</source>
        <comment>how much remains</comment>
        <translation>亮度的 %1</translation>
    </message>
    <message>
        <source>%1 and %2</source>
        <comment>how much remains</comment>
        <translation>%1和%2</translation>
    </message>
    <message>
        <source>the luminance of the target cannot be compared with those of the cabinet</source>
        <translation>目标的亮度无法与该箱体的亮度比较</translation>
    </message>
    <message>
        <source>the correction is for a white of %1, the largest that the cabinet reaches, as %2</source>
        <translation>校正针对白色 %1，即该箱体能达到的最大值，因为%2</translation>
    </message>
    <message>
        <source>the correction is for a white of %1, the largest that the primaries of the cabinet add to, as %2</source>
        <translation>校正针对白色 %1，即该箱体各基色之和的最大值，因为%2</translation>
    </message>
    <message>
        <source>cabinet without a correction</source>
        <translation>没有校正的箱体</translation>
    </message>
    <message>
        <source>cabinet that differs from the target even so, by up to %1, as it cannot show all of it</source>
        <translation>仍与目标相差最多 %1 的箱体，因其不能完全显示目标</translation>
    </message>
    <message>
        <source>cabinet that shows the target, but for up to %1</source>
        <translation>能显示目标但相差最多 %1 的箱体</translation>
    </message>
    <message>
        <source>cabinet that does not show the target even so</source>
        <translation>仍不能显示目标的箱体</translation>
    </message>
    <message>
        <source>cabinet whose measured white is not the sum of its primaries, which the correction is for, so that it is not known what it shows</source>
        <translation>实测白色不等于其基色之和的箱体，而校正以基色之和为准，因此不知道它显示什么</translation>
    </message>
    <message>
        <source>the black of the display is not known, so that it is not known whether it shows the target</source>
        <translation>显示设备的黑场未知，因此不知道它能否显示目标</translation>
    </message>
    <message>
        <source>cabinet whose black is not known, so that it is not known whether it shows the target</source>
        <translation>黑场未知、因此不知道能否显示目标的箱体</translation>
    </message>
    <message>
        <source>cabinets whose blacks are not known, so that it is not known whether they show the target</source>
        <translation>黑场未知、因此不知道能否显示目标的箱体</translation>
    </message>
    <message>
        <source>cabinet whose white was not measured, so that it is not known what it shows, as another white is not the sum of its primaries</source>
        <translation>白点未测量、因此不知道显示什么的箱体，因为另有箱体的白点不等于其各基色之和</translation>
    </message>
    <message>
        <source>cabinets whose whites were not measured, so that it is not known what they show, as another white is not the sum of its primaries</source>
        <translation>白点未测量、因此不知道显示什么的箱体，因为另有箱体的白点不等于其各基色之和</translation>
    </message>
</context>
<context>
    <name>gamutviewer::WallMap</name>
    <message>
        <source>left out</source>
        <translation>已排除</translation>
    </message>
    <message>
        <source>Not known whether the cabinets show the target: there is none</source>
        <translation>箱体能否显示目标未知：没有目标</translation>
    </message>
    <message>
        <source>Position not known</source>
        <translation>位置未知</translation>
    </message>
    <message>
        <source>Map of the wall</source>
        <translation>墙的地图</translation>
    </message>
    <message>
        <source>Cabinets whose position is not known</source>
        <translation>位置未知的箱体</translation>
    </message>
    <message>
        <source>%1. ◥ does not show the target, ○ not known, ╱ %2</source>
        <comment>what is shown, and the legend&apos;s marks</comment>
        <translation>%1。◥ 不能显示目标，○ 未知，╱ %2</translation>
    </message>
</context>
<context>
    <name>gamutviewer::WallMapModel</name>
    <message>
        <source>not known whether it shows the target</source>
        <translation>能否显示目标未知</translation>
    </message>
    <message>
        <source>does not show the target</source>
        <translation>不能显示目标</translation>
    </message>
    <message>
        <source>shows the target</source>
        <translation>显示目标</translation>
    </message>
    <message>
        <source>%1, %2 %3, %4</source>
        <comment>cabinet, what is shown, its value, whether it shows the target</comment>
        <translation>%1，%2 %3，%4</translation>
    </message>
    <message>
        <source>%1, left out</source>
        <comment>what is known of a cabinet</comment>
        <translation>%1，已排除</translation>
    </message>
    <message>
        <source>%1: nothing is known of it: %2</source>
        <comment>cabinet, and why</comment>
        <translation>%1：情况未知：%2</translation>
    </message>
    <message>
        <source>%1 %2: %3 %4</source>
        <comment>mark, cabinet, what is shown, its value</comment>
        <translation>%1 %2：%3 %4</translation>
    </message>
</context>
<context>
    <name>gamutviewer::WallPage</name>
    <message>
        <source>No wall is known of this display.

Open a list of measurements with a column for the cabinet, or for its row and column, and with red, green and blue of each; or a display description that has a wall.</source>
        <translation>此显示屏没有已知的墙。

请打开带有箱体列（或行列两列）且含每个箱体红、绿、蓝的测量列表，或含有墙的显示屏描述。</translation>
    </message>
    <message>
        <source>Position not known</source>
        <translation>位置未知</translation>
    </message>
    <message>
        <source>Cabinets, worst first</source>
        <translation>箱体，最差的在前</translation>
    </message>
    <message>
        <source>Sort those first that do not show the target</source>
        <translation>将不能显示目标的排在前面</translation>
    </message>
    <message>
        <source>Copy table</source>
        <translation>复制表格</translation>
    </message>
    <message>
        <source>Copy all of the table, for a spreadsheet</source>
        <translation>复制整个表格，用于电子表格</translation>
    </message>
    <message>
        <source>Wall</source>
        <translation>墙</translation>
    </message>
    <message>
        <source>Wall %1 × %2</source>
        <comment>rows, columns</comment>
        <translation>墙 %1 × %2</translation>
    </message>
    <message>
        <source>Arrows: next cabinet   Esc: none</source>
        <translation>方向键：下一个箱体   Esc：不选</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <comment>cabinet, and why nothing is known of it</comment>
        <translation>%1（%2）</translation>
    </message>
    <message>
        <source>%1 and %2 more</source>
        <comment>names of cabinets and a number</comment>
        <translation>%1 以及另外 %2 个</translation>
    </message>
    <message>
        <source>Nothing is known of %1.</source>
        <comment>cabinets</comment>
        <translation>以下箱体情况未知：%1。</translation>
    </message>
    <message>
        <source>Cabinets of which nothing is known</source>
        <translation>情况未知的箱体</translation>
    </message>
    <message>
        <source>Drag a corner of the target in a close look: move it   Arrows: next cabinet   Esc: none   Ctrl+C in the table: copy it</source>
        <translation>近看中拖动目标的角：移动   方向键：下一个箱体   Esc：不选   表格中 Ctrl+C：复制</translation>
    </message>
    <message>
        <source>Drag a corner of the target in a close look: move it   Arrows: next cabinet</source>
        <translation>近看中拖动目标的角：移动   方向键：下一个箱体</translation>
    </message>
    <message>
        <source>Selected cabinet</source>
        <translation>所选箱体</translation>
    </message>
    <message>
        <source>The wall that was open is shown again when the list is followed no further.</source>
        <translation>停止跟随列表后，将重新显示先前打开的墙。</translation>
    </message>
    <message>
        <source>What is followed is no wall yet.

It is shown as a wall as soon as the list names a second cabinet, and one cabinet has red, green and blue, and no line that could not be read.</source>
        <translation>所跟随的列表尚不构成墙。

一旦列表中出现第二个箱体，且其中一个箱体有红、绿、蓝，并且没有无法读取的行，就显示为墙。</translation>
    </message>
</context>
<context>
    <name>gamutviewer::WallScale</name>
    <message>
        <source>%1 %</source>
        <comment>room above a luminance, with its sign</comment>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>white Δu′v′</source>
        <translation>白点 Δu′v′</translation>
    </message>
    <message>
        <source>Δu′v′ corrected</source>
        <translation>校正后 Δu′v′</translation>
    </message>
    <message>
        <source>luminance</source>
        <translation>亮度</translation>
    </message>
    <message>
        <source>headroom</source>
        <translation>余量</translation>
    </message>
    <message>
        <source>limits</source>
        <translation>限制</translation>
    </message>
    <message>
        <source>Δu′v′ between each cabinet&apos;s white, not corrected, and the target&apos;s</source>
        <translation>每个箱体未校正的白点与目标白点之间的 Δu′v′</translation>
    </message>
    <message>
        <source>Δu′v′ between each cabinet&apos;s white, corrected, and the target&apos;s</source>
        <translation>每个箱体校正后的白点与目标白点之间的 Δu′v′</translation>
    </message>
    <message>
        <source>largest luminance of each cabinet in the target&apos;s white</source>
        <translation>每个箱体在目标白点下的最大亮度</translation>
    </message>
    <message>
        <source>room above the target&apos;s white on each cabinet</source>
        <translation>每个箱体高于目标白色的余量</translation>
    </message>
    <message>
        <source>colour that limits each cabinet</source>
        <translation>限制每个箱体的颜色</translation>
    </message>
</context>
<context>
    <name>gamutviewer::WallVerdict</name>
    <message>
        <source>Grounds of the verdict on the wall</source>
        <translation>对墙的结论的依据</translation>
    </message>
    <message>
        <source>Return selects the cabinet of a line</source>
        <translation>按回车键选择该行的箱体</translation>
    </message>
    <message>
        <source>Moves each primary towards the white until all cabinets show it, and lowers the luminance of the white to what all reach</source>
        <translation>将每个基色朝白点移动，直到所有箱体都能显示，并将白色亮度降低到全部都能达到</translation>
    </message>
    <message>
        <source>Judges the wall without the cabinet; its corrections are still made</source>
        <translation>判断时排除该箱体；仍为其生成校正</translation>
    </message>
    <message>
        <source>Judges the wall with all of its cabinets</source>
        <translation>判断时计入所有箱体</translation>
    </message>
    <message>
        <source>Writes the matrix of each cabinet to a file</source>
        <translation>将每个箱体的矩阵写入文件</translation>
    </message>
    <message>
        <source>Not known whether the cabinets show the target</source>
        <translation>箱体能否显示目标未知</translation>
    </message>
    <message>
        <source>What they are to show is not known: nobody has chosen a target. Choose one, or edit the default.</source>
        <translation>它们应显示什么未知：尚未选择目标。请选择目标，或编辑默认目标。</translation>
    </message>
    <message>
        <source>Without %1</source>
        <comment>name of a cabinet</comment>
        <translation>排除 %1</translation>
    </message>
    <message>
        <source>Without %1 and %2</source>
        <comment>names of cabinets</comment>
        <translation>排除 %1 和 %2</translation>
    </message>
    <message>
        <source>Fit target to the wall</source>
        <translation>将目标适配到墙</translation>
    </message>
    <message>
        <source>Count all again</source>
        <translation>重新计入全部</translation>
    </message>
    <message>
        <source>Export corrections…</source>
        <translation>导出校正…</translation>
    </message>
    <message>
        <source>Without the cabinet</source>
        <translation>排除该箱体</translation>
    </message>
</context>
<context>
    <name>gamutviewer::WarningBar</name>
    <message>
        <source>Dismiss the warnings</source>
        <translation>关闭警告</translation>
    </message>
    <message>
        <source>Warnings</source>
        <translation>警告</translation>
    </message>
    <message>
        <source>Warnings about what was opened: %1</source>
        <comment>with their number</comment>
        <translation>所打开文件的警告：%1</translation>
    </message>
</context>
</TS>
