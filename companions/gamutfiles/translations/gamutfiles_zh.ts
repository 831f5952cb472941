<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name>gamutfiles::DescriptionReader</name>
    <message>
        <source>is too large for a display description (more than %1 KiB)</source>
        <translation>对显示屏描述来说过大（大于 %1 KiB）</translation>
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
        <source>expected &quot;%1&quot; or &quot;%2&quot;</source>
        <translation>应为“%1”或“%2”</translation>
    </message>
</context>
<context>
    <name>gamutfiles::Edid</name>
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
    <name>gamutfiles::FileBytes</name>
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
</context>
<context>
    <name>gamutfiles::GamutFile</name>
    <message>
        <source>is empty</source>
        <translation>是空的</translation>
    </message>
    <message>
        <source>is not a display description (JSON), measurement list (CSV), ICC profile or EDID</source>
        <translation>不是显示屏描述（JSON）、测量列表（CSV）、ICC 特性文件或 EDID</translation>
    </message>
</context>
<context>
    <name>gamutfiles::IccProfile</name>
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
    <name>gamutfiles::Json</name>
    <message>
        <source>unexpected end of file</source>
        <translation>文件不完整，提前结束</translation>
    </message>
</context>
<context>
    <name>gamutfiles::JsonReader</name>
    <message>
        <source>is empty</source>
        <translation>是空的</translation>
    </message>
    <message>
        <source>only version %1 is supported</source>
        <translation>只支持版本 %1</translation>
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
    <name>gamutfiles::MeasurementList</name>
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
        <source>contains no measurements</source>
        <translation>没有测量数据</translation>
    </message>
    <message>
        <source>is too large for a measurement list (more than %1 KiB)</source>
        <translation>对测量列表来说过大（大于 %1 KiB）</translation>
    </message>
</context>
<context>
    <name>gamutfiles::Primaries</name>
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
    <name>gamutfiles::TolerancesReader</name>
    <message>
        <source>is too large for a file of tolerances (more than %1 KiB)</source>
        <translation>对于容差文件来说过大（超过 %1 KiB）</translation>
    </message>
    <message>
        <source>missing: a coverage differs from diagram to diagram</source>
        <translation>缺失：覆盖率因色度图而异</translation>
    </message>
    <message>
        <source>there is no coverage</source>
        <translation>没有覆盖率</translation>
    </message>
    <message>
        <source>has no limit</source>
        <translation>没有限值</translation>
    </message>
    <message>
        <source>%1 in this diagram is listed twice</source>
        <translation>此色度图中的 %1 被列出两次</translation>
    </message>
    <message>
        <source>a limit must not be negative</source>
        <translation>限值不得为负</translation>
    </message>
    <message>
        <source>must not be greater than %1</source>
        <translation>不得大于 %1</translation>
    </message>
    <message>
        <source>expected %1 or %2</source>
        <translation>应为 %1 或 %2</translation>
    </message>
</context>
</TS>
