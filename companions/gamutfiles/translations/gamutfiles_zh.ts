<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name>gamutfiles::ColumnNames</name>
    <message>
        <source>name</source>
        <comment>column of a measurement list</comment>
        <translation>名称</translation>
    </message>
    <message>
        <source>cabinet</source>
        <comment>column of a measurement list</comment>
        <translation>箱体</translation>
    </message>
    <message>
        <source>row</source>
        <comment>column of a measurement list</comment>
        <translation>行</translation>
    </message>
    <message>
        <source>column</source>
        <comment>column of a measurement list</comment>
        <translation>列</translation>
    </message>
    <message>
        <source>number</source>
        <comment>column of a measurement list</comment>
        <translation>编号</translation>
    </message>
    <message>
        <source>unit</source>
        <comment>column of a measurement list</comment>
        <translation>单位</translation>
    </message>
</context>
<context>
    <name>gamutfiles::Corrections</name>
    <message>
        <source>line %1</source>
        <translation>第 %1 行</translation>
    </message>
    <message>
        <source>%1, column %2</source>
        <comment>line and column</comment>
        <translation>%1，%2 列</translation>
    </message>
    <message>
        <source>expected %1</source>
        <translation>应为 %1</translation>
    </message>
    <message>
        <source>not a number: %1</source>
        <translation>不是数字：%1</translation>
    </message>
    <message>
        <source>expected x and y</source>
        <translation>应为 x 和 y</translation>
    </message>
    <message>
        <source>expected the name of the target in quotes</source>
        <translation>应为带引号的目标名称</translation>
    </message>
    <message>
        <source>the luminance of the white must be greater than 0</source>
        <translation>白的亮度必须大于 0</translation>
    </message>
    <message>
        <source>expected %1, %2 or %3</source>
        <translation>应为 %1、%2 或 %3</translation>
    </message>
    <message>
        <source>expected the columns %1</source>
        <translation>应有以下各列：%1</translation>
    </message>
    <message>
        <source>a quote is never closed</source>
        <translation>引号没有结束</translation>
    </message>
    <message>
        <source>there is no cabinet</source>
        <translation>没有箱体</translation>
    </message>
    <message>
        <source>expected %1 fields, found %2</source>
        <translation>应有 %1 个字段，实有 %2 个</translation>
    </message>
    <message>
        <source>row and column are only known together</source>
        <translation>行和列须同时给出</translation>
    </message>
    <message>
        <source>expected a whole number</source>
        <translation>应为整数</translation>
    </message>
    <message>
        <source>a colour of the target is not finite</source>
        <translation>目标的一种颜色不是有限值</translation>
    </message>
    <message>
        <source>the primaries of the target lie nearly on a line</source>
        <translation>目标的三基色几乎在一条直线上</translation>
    </message>
    <message>
        <source>the white of the target is not a mixture of its primaries</source>
        <translation>目标的白不能由其三基色混合而成</translation>
    </message>
    <message>
        <source>there is no luminance for the white of the target: no cabinet can show it</source>
        <translation>目标的白没有亮度：没有箱体能显示它</translation>
    </message>
    <message>
        <source>a cabinet needs a name, or row and column</source>
        <translation>箱体需要名称，或行和列</translation>
    </message>
    <message>
        <source>there is already a cabinet %1</source>
        <translation>已有箱体 %1</translation>
    </message>
    <message>
        <source>there is a matrix, and a reason why there is none</source>
        <translation>既有矩阵，又有没有矩阵的原因</translation>
    </message>
    <message>
        <source>there is neither a matrix nor a reason why there is none</source>
        <translation>既没有矩阵，也没有说明原因</translation>
    </message>
    <message>
        <source>no cabinet has a matrix</source>
        <translation>没有箱体有矩阵</translation>
    </message>
    <message>
        <source>is too large for a file of corrections (more than %1 KiB)</source>
        <translation>对校正文件来说太大（超过 %1 KiB）</translation>
    </message>
    <message>
        <source>expected three rows of three numbers</source>
        <translation>应为三行，每行三个数字</translation>
    </message>
    <message>
        <source>expected three numbers</source>
        <translation>应为三个数字</translation>
    </message>
    <message>
        <source>a name has characters that cannot be stored</source>
        <translation>名称中含有无法存储的字符</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>that there is no matrix, and why</comment>
        <translation>%1：%2</translation>
    </message>
    <message>
        <source>a reason has characters that cannot be stored</source>
        <translation>原因中含有无法存储的字符</translation>
    </message>
</context>
<context>
    <name>gamutfiles::CubePair</name>
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
        <source>is too large for one of a pair of tables (more than %1 KiB)</source>
        <translation>对成对的表来说太大（超过 %1 KiB）</translation>
    </message>
    <message>
        <source>line %1</source>
        <translation>第 %1 行</translation>
    </message>
    <message>
        <source>not three numbers, nor a keyword with its numbers: %1</source>
        <translation>不是三个数字，也不是关键字及其数字：%1</translation>
    </message>
    <message>
        <source>is not that of a table of size 2 from 0 to 1: %1</source>
        <translation>不属于范围为 0 到 1、大小为 2 的表：%1</translation>
    </message>
    <message>
        <source>expected %1 lines of numbers, found %2</source>
        <translation>应有 %1 行数字，实有 %2 行</translation>
    </message>
    <message>
        <source>the drive of %1 for %2 is %3: a table is not exact below 0</source>
        <translation>显示%2时%1的驱动为 %3：低于 0 时表不精确</translation>
    </message>
    <message>
        <source>the drive of %1 for white is %2: a table is not exact above 1</source>
        <translation>显示白时%1的驱动为 %2：高于 1 时表不精确</translation>
    </message>
    <message>
        <source>the table of three dimensions is not that of a matrix</source>
        <translation>三维表不是矩阵的表</translation>
    </message>
    <message>
        <source>the table of one dimension is not that of gains</source>
        <translation>一维表不是增益的表</translation>
    </message>
</context>
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
    <message>
        <source>luminance must not be positive where y is negative</source>
        <translation>y 为负时亮度不能为正</translation>
    </message>
    <message>
        <source>no display can show %1: it has primaries with x &lt; 0, y &lt;= 0 or x + y &gt; 1</source>
        <translation>没有显示屏能显示 %1：其中有基色的 x &lt; 0、y &lt;= 0 或 x + y &gt; 1</translation>
    </message>
    <message>
        <source>x and y must be from -1 to 2, y not 0 and -2x + 12y + 3 greater than 0</source>
        <translation>x 和 y 必须在 -1 到 2 之间，y 不能为 0，且 -2x + 12y + 3 必须大于 0</translation>
    </message>
    <message>
        <source>a cabinet needs a name, or row and column</source>
        <translation>箱体需要名称，或行和列</translation>
    </message>
    <message>
        <source>there is already a cabinet %1</source>
        <translation>已有箱体 %1</translation>
    </message>
    <message>
        <source>there is already a cabinet in row %1, column %2</source>
        <translation>第 %1 行、第 %2 列已有箱体</translation>
    </message>
    <message>
        <source>missing: row and column are only known together</source>
        <translation>缺少：行和列须同时给出</translation>
    </message>
    <message>
        <source>there is no other cabinet</source>
        <translation>没有其他箱体</translation>
    </message>
    <message>
        <source>must not be empty</source>
        <translation>不得为空</translation>
    </message>
    <message>
        <source>a name has characters that cannot be stored</source>
        <translation>名称中含有无法存储的字符</translation>
    </message>
    <message>
        <source>has more than %1 gamuts</source>
        <translation>含有超过 %1 个色域</translation>
    </message>
    <message numerus="yes">
        <source>%n further warning(s)</source>
        <translation>
            <numerusform>还有 %n 条警告</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>gamutfiles::DescriptionWriter</name>
    <message>
        <source>has more than %1 gamuts, and could not be read again</source>
        <translation>含有超过 %1 个色域，无法再次读取</translation>
    </message>
    <message>
        <source>would be larger than %1 KiB, and could not be read again</source>
        <translation>会大于 %1 KiB，无法再次读取</translation>
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
        <source>the EDID states exactly %1: many makers write this without measuring</source>
        <translation>EDID 声明的正是 %1：许多制造商未经测量就写入此值</translation>
    </message>
    <message>
        <source>, and this display also takes signals of a wider gamut (%1)</source>
        <translation>，而且此显示屏还接受更宽色域的信号（%1）</translation>
    </message>
    <message>
        <source>holds no EDID</source>
        <translation>其中没有 EDID</translation>
    </message>
    <message>
        <source>holds %1 EDIDs, of which only the first is read</source>
        <translation>包含 %1 个 EDID，只读取第一个</translation>
    </message>
    <message>
        <source>is missing, number of extension blocks announced: %1</source>
        <translation>缺失，声明的扩展块数：%1</translation>
    </message>
    <message>
        <source>is truncated: %1 bytes instead of %2</source>
        <translation>不完整：%2 字节中只有 %1 字节</translation>
    </message>
    <message>
        <source>is damaged, and not read: its checksum is wrong</source>
        <translation>已损坏，未读取：校验和错误</translation>
    </message>
    <message>
        <source>is not read, number of extension blocks announced: %1</source>
        <translation>未读取，声明的扩展块数：%1</translation>
    </message>
    <message>
        <source>the data blocks end at byte %1, which is not inside of the block</source>
        <translation>数据块结束于字节 %1，不在扩展块之内</translation>
    </message>
    <message>
        <source>the data block has %1 bytes, of which only %2 lie before the end</source>
        <translation>数据块有 %1 字节，其中只有 %2 字节在结束位置之前</translation>
    </message>
    <message>
        <source>colorimetry data block</source>
        <translation>色度数据块</translation>
    </message>
    <message>
        <source>HDR static metadata data block</source>
        <translation>HDR 静态元数据数据块</translation>
    </message>
    <message>
        <source>the HDR metadata state an average of a frame above its maximum: %1 and %2 cd/m²</source>
        <translation>HDR 元数据中的帧平均亮度高于最大亮度：%1 和 %2 cd/m²</translation>
    </message>
    <message>
        <source>the DisplayID section has %1 bytes, which is more than its block</source>
        <translation>DisplayID 区段有 %1 字节，超出其所在的块</translation>
    </message>
    <message>
        <source>is damaged, and not read: the checksum of the DisplayID section is wrong</source>
        <translation>已损坏，未读取：DisplayID 区段的校验和错误</translation>
    </message>
    <message>
        <source>display parameters data block</source>
        <translation>显示参数数据块</translation>
    </message>
    <message>
        <source>color characteristics data block</source>
        <translation>颜色特性数据块</translation>
    </message>
    <message>
        <source>the %1 has %2 bytes instead of at least %3</source>
        <translation>%1只有 %2 字节，至少应有 %3 字节</translation>
    </message>
    <message>
        <source>extension block %1</source>
        <translation>扩展块 %1</translation>
    </message>
    <message>
        <source>extension block %1, byte %2</source>
        <translation>扩展块 %1，字节 %2</translation>
    </message>
    <message>
        <source>the base block states another gamut than the DisplayID extension: %1; that of the base block is used</source>
        <translation>基本块声明的色域与 DisplayID 扩展不同：%1；采用基本块的色域</translation>
    </message>
    <message>
        <source>%1 at %2, %3 has x + y above 1, as rounding can make it: it is read as %4, %5</source>
        <translation>%1位于 %2, %3，x + y 大于 1，可能是舍入所致：按 %4, %5 读取</translation>
    </message>
    <message>
        <source>%1 at %2, %3 and at %4, %5</source>
        <translation>%1分别位于 %2, %3 和 %4, %5</translation>
    </message>
    <message>
        <source>two data blocks state different gamuts: %1; that of the first is kept</source>
        <translation>两个数据块声明的色域不同：%1；保留第一个数据块的色域</translation>
    </message>
    <message>
        <source>%1 cd/m²</source>
        <translation>%1 cd/m²</translation>
    </message>
    <message>
        <source>not stated</source>
        <comment>a luminance</comment>
        <translation>未声明</translation>
    </message>
    <message>
        <source>%1, guaranteed</source>
        <translation>%1（有保证）</translation>
    </message>
    <message>
        <source>two data blocks state different luminances of a white screen: %1 and %2; that of the first is kept</source>
        <translation>两个数据块声明的全白屏亮度不同：%1和%2；保留第一个数据块的亮度</translation>
    </message>
    <message>
        <source>there is more that is wrong</source>
        <translation>还有其他错误</translation>
    </message>
    <message>
        <source>the display states a white screen of %1 cd/m², but white on 10 % of it with %2 cd/m²</source>
        <translation>显示屏声明全屏白色为 %1 cd/m²，而 10 % 面积的白色只有 %2 cd/m²</translation>
    </message>
    <message>
        <source>the display states a black of %1 cd/m² and a white of %2 cd/m²</source>
        <translation>显示屏声明黑色为 %1 cd/m²，白色为 %2 cd/m²</translation>
    </message>
    <message>
        <source>is an EDID, which cannot be read here: the program was built without colord</source>
        <translation>是 EDID，此处无法读取：程序在构建时未使用 colord</translation>
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
    <message>
        <source>there is no such file</source>
        <translation>没有此文件</translation>
    </message>
    <message>
        <source>it cannot be opened</source>
        <translation>无法打开</translation>
    </message>
    <message>
        <source>permission denied</source>
        <translation>没有权限</translation>
    </message>
    <message>
        <source>it is a folder</source>
        <translation>这是一个文件夹</translation>
    </message>
    <message>
        <source>there is no such folder</source>
        <translation>没有此文件夹</translation>
    </message>
    <message>
        <source>writing failed; the disk may be full</source>
        <translation>写入失败；磁盘可能已满</translation>
    </message>
    <message>
        <source>it is a pipe, which may never end; its content is read from standard input, named -</source>
        <translation>这是一个管道，可能永不结束；其内容可从标准输入读取，文件名写为 -</translation>
    </message>
    <message>
        <source>reading fails after %1 bytes</source>
        <translation>读取 %1 字节后失败</translation>
    </message>
    <message>
        <source>it is a pipe from which no program reads</source>
        <translation>这是一个管道，没有程序从中读取</translation>
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
    <message>
        <source>%1 cd/m²</source>
        <translation>%1 cd/m²</translation>
    </message>
    <message>
        <source>manufacturer</source>
        <translation>制造商</translation>
    </message>
    <message>
        <source>year of manufacture</source>
        <translation>制造年份</translation>
    </message>
    <message>
        <source>year of the model</source>
        <translation>型号年份</translation>
    </message>
    <message>
        <source>gamma</source>
        <translation>伽马</translation>
    </message>
    <message>
        <source>luminance of a white screen</source>
        <translation>全屏白色的亮度</translation>
    </message>
    <message>
        <source>luminance of white on 10 % of the screen</source>
        <translation>屏幕 10 % 面积为白色时的亮度</translation>
    </message>
    <message>
        <source>luminance of black</source>
        <translation>黑色的亮度</translation>
    </message>
    <message>
        <source>these luminances are</source>
        <translation>以上亮度为</translation>
    </message>
    <message>
        <source>desired maximum luminance of content</source>
        <translation>期望的内容最大亮度</translation>
    </message>
    <message>
        <source>desired maximum average of a frame</source>
        <translation>期望的最大帧平均亮度</translation>
    </message>
    <message>
        <source>desired minimum luminance of content</source>
        <translation>期望的内容最小亮度</translation>
    </message>
    <message>
        <source>takes signals of</source>
        <translation>接受的信号</translation>
    </message>
    <message>
        <source>takes transfer functions</source>
        <translation>接受的传递函数</translation>
    </message>
    <message>
        <source>luminance of white</source>
        <translation>白色的亮度</translation>
    </message>
    <message>
        <source>calibration curves</source>
        <translation>校准曲线</translation>
    </message>
    <message>
        <source>in the profile; its gamut holds while they are loaded</source>
        <translation>包含在特性文件中；仅在加载校准曲线时，其色域才成立</translation>
    </message>
    <message>
        <source>standard input</source>
        <translation>标准输入</translation>
    </message>
    <message>
        <source>guaranteed, by the display&apos;s own statement</source>
        <translation>由显示屏自己声明为保证值</translation>
    </message>
    <message>
        <source>not guaranteed</source>
        <translation>不保证</translation>
    </message>
    <message>
        <source>%1, as a field that was left empty also says</source>
        <translation>%1，留空的字段也是此值</translation>
    </message>
    <message>
        <source>is a ZIP archive, as spreadsheets are: save the list as text, with the suffix csv</source>
        <translation>是 ZIP 压缩包，电子表格即为此类：请将列表另存为文本，扩展名为 csv</translation>
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
    <message>
        <source>the profile says that it was made from an EDID, not from a measurement</source>
        <translation>特性文件注明其由 EDID 生成，而非来自测量</translation>
    </message>
    <message>
        <source>the profile says that it was made from a standard, not from a measurement</source>
        <translation>特性文件注明其由标准生成，而非来自测量</translation>
    </message>
    <message>
        <source>the name of the profile cannot be read</source>
        <translation>无法读取特性文件的名称</translation>
    </message>
    <message>
        <source>the luminance of white cannot be read: luminances are relative</source>
        <translation>无法读取白色的亮度：亮度为相对值</translation>
    </message>
    <message>
        <source>the colours of the profile follow a table: its colorants, which are read, need not be the primaries of the display</source>
        <translation>此特性文件的颜色由查找表决定：所读取的三原色标签不一定是显示屏的基色</translation>
    </message>
    <message>
        <source>is a damaged ICC profile: its white cannot be read</source>
        <translation>是已损坏的 ICC 特性文件：无法读取其白点</translation>
    </message>
    <message>
        <source>the metadata are larger than their tag: the further ones are left out</source>
        <translation>元数据大于其标签：其余的被忽略</translation>
    </message>
    <message>
        <source>the profile states exactly %1: that is a standard, not a measurement of a display</source>
        <translation>该特性文件与 %1 完全相同：这是标准的数值，不是对显示屏的测量</translation>
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
    <message>
        <source>the key %1 is there twice in this object: the last one counts</source>
        <translation>键 %1 在此对象中出现两次：以最后一个为准</translation>
    </message>
    <message>
        <source>expected a whole number</source>
        <translation>应为整数</translation>
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
    <message>
        <source>the decimal sign must be a point or a comma</source>
        <translation>小数符号必须是小数点或逗号</translation>
    </message>
    <message>
        <source>unterminated quote</source>
        <translation>引号未闭合</translation>
    </message>
    <message>
        <source>columns %1 and %2 are both %3: column %1 is read</source>
        <translation>第 %1 列和第 %2 列都是 %3：读取第 %1 列</translation>
    </message>
    <message>
        <source>missing column %1</source>
        <translation>缺少列 %1</translation>
    </message>
    <message>
        <source>no column names the measurements; lines can be chosen as red, green, blue and white</source>
        <translation>没有给出测量名称的列；可以选择红、绿、蓝、白所在的行</translation>
    </message>
    <message>
        <source>the unit of the luminances is not stated</source>
        <translation>未注明亮度的单位</translation>
    </message>
    <message>
        <source>the unit &quot;%1&quot; is not known: the luminances are read as numbers of an unknown unit</source>
        <translation>单位“%1”未知：亮度按单位未知的数值读取</translation>
    </message>
    <message>
        <source>the luminances are converted from foot-lamberts to cd/m²</source>
        <translation>亮度已从英尺朗伯换算为 cd/m²</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has a decimal comma, but &quot;%2&quot; (%3) has a decimal point: state the decimal sign</source>
        <translation>“%1”用逗号作小数符号，而“%2”（%3）用小数点：请指定小数符号</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is read with a decimal point; state the decimal sign if the point divides thousands</source>
        <translation>“%1”中的点按小数点读取；如果它是千位分隔符，请指定小数符号</translation>
    </message>
    <message>
        <source>the separator seems to divide numbers: quote them or use another separator</source>
        <translation>分隔符似乎把数字拆开了：请给数字加引号，或使用其他分隔符</translation>
    </message>
    <message numerus="yes">
        <source>; so in %n further line(s)</source>
        <translation>
            <numerusform>；另有 %n 行也是如此</numerusform>
        </translation>
    </message>
    <message>
        <source>has no numbers and is not read</source>
        <translation>没有数字，未读取</translation>
    </message>
    <message>
        <source>has more fields than the line that names the columns</source>
        <translation>字段数多于列名所在的行</translation>
    </message>
    <message>
        <source>has a luminance but no chromaticity</source>
        <translation>有亮度但没有色度</translation>
    </message>
    <message>
        <source>a tristimulus value must not be negative</source>
        <translation>三刺激值不能为负</translation>
    </message>
    <message>
        <source>the tristimulus values are too large</source>
        <translation>三刺激值过大</translation>
    </message>
    <message>
        <source>v&apos; must be greater than 0</source>
        <translation>v&apos; 必须大于 0</translation>
    </message>
    <message>
        <source>u&apos; and v&apos; are not those of a colour</source>
        <translation>u&apos; 和 v&apos; 不对应任何颜色</translation>
    </message>
    <message>
        <source>the full level of &quot;%1&quot; is not known: no level without a unit is taken as the full one</source>
        <translation>“%1”的最高灰阶未知：没有单位的灰阶都不作为最高灰阶</translation>
    </message>
    <message>
        <source>line %1 has no measurement to choose</source>
        <translation>第 %1 行没有可选择的测量数据</translation>
    </message>
    <message>
        <source>no measurement is called &quot;%1&quot;</source>
        <translation>没有名为“%1”的测量数据</translation>
    </message>
    <message>
        <source>cabinet &quot;%1&quot;</source>
        <translation>箱体“%1”</translation>
    </message>
    <message>
        <source>row %1, column %2</source>
        <translation>箱体第 %1 行、第 %2 列</translation>
    </message>
    <message>
        <source>further cabinets are not checked: there are too many warnings</source>
        <translation>其余箱体未检查：警告过多</translation>
    </message>
    <message>
        <source>%1 is there more than once, first in line %2: there is no gamut; choose the line or the name that is %1</source>
        <translation>%1出现多次，首次在第 %2 行：没有色域；请选择作为%1的行或名称</translation>
    </message>
    <message>
        <source>black is there more than once, first in line %1: none is used</source>
        <translation>黑出现多次，首次在第 %1 行：均不采用</translation>
    </message>
    <message>
        <source>%1 has no chromaticity: there is no gamut</source>
        <translation>%1没有色度：没有色域</translation>
    </message>
    <message>
        <source>white is missing: the sum of red, green and blue is taken as white</source>
        <translation>缺少白：以红、绿、蓝之和作为白</translation>
    </message>
    <message>
        <source>white is missing: there is no gamut; choose a measurement as white, or ask for the sum of red, green and blue</source>
        <translation>缺少白：没有色域；请选择一个测量数据作为白，或指定采用红、绿、蓝之和</translation>
    </message>
    <message>
        <source>line %1, column %2</source>
        <translation>第 %1 行，列 %2</translation>
    </message>
    <message>
        <source>line %1</source>
        <translation>第 %1 行</translation>
    </message>
    <message>
        <source>tab</source>
        <translation>制表符</translation>
    </message>
    <message>
        <source>semicolon</source>
        <translation>分号</translation>
    </message>
    <message>
        <source>comma</source>
        <translation>逗号</translation>
    </message>
    <message>
        <source>point</source>
        <translation>点</translation>
    </message>
    <message>
        <source>apostrophe</source>
        <translation>撇号</translation>
    </message>
    <message>
        <source>space</source>
        <translation>空格</translation>
    </message>
    <message>
        <source> (the list says &quot;%1&quot;)</source>
        <translation>（列表写的是“%1”）</translation>
    </message>
    <message>
        <source>Unit of the luminances: not known</source>
        <translation>亮度的单位：未知</translation>
    </message>
    <message>
        <source>Unit of the luminances: cd/m²</source>
        <translation>亮度的单位：cd/m²</translation>
    </message>
    <message>
        <source>Unit of the luminances: foot-lambert, converted to cd/m²</source>
        <translation>亮度的单位：英尺朗伯，已换算为 cd/m²</translation>
    </message>
    <message>
        <source>Unit of the luminances: relative</source>
        <translation>亮度的单位：相对值</translation>
    </message>
    <message>
        <source>Unit of the luminances: not stated</source>
        <translation>亮度的单位：未注明</translation>
    </message>
    <message>
        <source>%1 in column %2</source>
        <translation>%1 在第 %2 列</translation>
    </message>
    <message>
        <source>Columns, named in line %1: %2</source>
        <translation>列（列名在第 %1 行）：%2</translation>
    </message>
    <message>
        <source>Columns, which no line names: %1</source>
        <translation>列（没有列名行）：%1</translation>
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
        <source>black</source>
        <translation>黑</translation>
    </message>
    <message>
        <source>Encoding: %1</source>
        <translation>编码：%1</translation>
    </message>
    <message>
        <source>Separator of the fields: %1</source>
        <translation>字段分隔符：%1</translation>
    </message>
    <message>
        <source>Decimal sign: %1</source>
        <translation>小数符号：%1</translation>
    </message>
    <message>
        <source>Decimal sign: none</source>
        <translation>小数符号：无</translation>
    </message>
    <message>
        <source>Thousands separator: %1</source>
        <translation>千位分隔符：%1</translation>
    </message>
    <message>
        <source>Full level in names: %1</source>
        <translation>名称中的最高灰阶：%1</translation>
    </message>
    <message>
        <source>Line %1, &quot;%2&quot;: %3</source>
        <translation>第 %1 行，“%2”：%3</translation>
    </message>
    <message>
        <source>Further lines with a part: %1</source>
        <translation>其他有角色的行：%1</translation>
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
        <source>states %1; %2 was chosen</source>
        <comment>units</comment>
        <translation>写明的是 %1；选择的是 %2</translation>
    </message>
    <message>
        <source>no cabinet is called &quot;%1&quot;</source>
        <translation>没有名为“%1”的箱体</translation>
    </message>
    <message>
        <source>several cabinets are called &quot;%1&quot;: %2 and %3, for example</source>
        <translation>有多个名为“%1”的箱体，例如 %2 和 %3</translation>
    </message>
    <message>
        <source>%1 cabinets (%2): there is no measured gamut of all of them; choose a cabinet</source>
        <translation>%1 个箱体（%2）：它们合起来没有实测色域；请选择一个箱体</translation>
    </message>
    <message>
        <source>column %1 is of the 10° observer and is not read</source>
        <translation>第 %1 列属于 10° 观察者，不读取</translation>
    </message>
    <message>
        <source>the columns are of the 10° observer: those of CIE 1931 (2°) are needed</source>
        <translation>这些列属于 10° 观察者：需要 CIE 1931（2°）的数据</translation>
    </message>
    <message>
        <source>%1 columns give a luminance: column %2, &quot;%3&quot;, is read</source>
        <translation>有 %1 列给出亮度：读取第 %2 列“%3”</translation>
    </message>
    <message>
        <source>the unit &quot;%1&quot; is not that of the line of the names, &quot;%2&quot;: state the unit</source>
        <translation>单位“%1”与列名行中的单位“%2”不一致：请指定单位</translation>
    </message>
    <message>
        <source>&quot;%1&quot; can be %2 or %3, and no other number that is read tells: state the decimal sign</source>
        <translation>“%1”可能是 %2 或 %3，所读取的其他数字无法判断：请指定小数符号</translation>
    </message>
    <message>
        <source>there is no gamut, as no measurement is recognised as red, green, blue or white; lines or names can be chosen as these colours</source>
        <translation>没有色域，因为没有识别出红、绿、蓝或白的测量；可以选择这些颜色对应的行或名称</translation>
    </message>
    <message>
        <source>there is no gamut; missing: %1; choose the lines or the names that are these colours</source>
        <translation>没有色域；缺少：%1；请选择这些颜色对应的行或名称</translation>
    </message>
    <message>
        <source>names other columns than line %1: divide the list here</source>
        <translation>列名与第 %1 行不同：请在此处拆分列表</translation>
    </message>
    <message>
        <source>repeats the line that names the columns and is not read</source>
        <translation>重复了列名所在的行，未读取</translation>
    </message>
    <message>
        <source>is as dark as noise, with numbers that no colour has: it is read without a chromaticity</source>
        <translation>暗至噪声水平，其数值不属于任何颜色：按没有色度读取</translation>
    </message>
    <message>
        <source>has a value slightly below 0, as noise gives: it is read as 0</source>
        <translation>有一个值因噪声略小于 0：按 0 读取</translation>
    </message>
    <message>
        <source>the list says that it is of the 10° observer, but the names of the columns do not: they are read as those of CIE 1931 (2°)</source>
        <translation>列表声明采用 10° 观察者，但列名没有说明：这些列按 CIE 1931（2°）读取</translation>
    </message>
    <message>
        <source>%1 has a chromaticity but a luminance of 0</source>
        <translation>%1有色度，但亮度为 0</translation>
    </message>
    <message>
        <source>x and y are not those of X, Y and Z: x and y are read</source>
        <translation>x、y 与 X、Y、Z 不一致：读取 x、y</translation>
    </message>
    <message>
        <source>x and y are not those of u&apos; and v&apos;: x and y are read</source>
        <translation>x、y 与 u&apos;、v&apos; 不一致：读取 x、y</translation>
    </message>
    <message>
        <source>the unit &quot;%1&quot; is not that of line %2, &quot;%3&quot;: state the unit</source>
        <translation>单位“%1”与第 %2 行的单位“%3”不同：请指定单位</translation>
    </message>
    <message>
        <source>the columns u and v can be those of CIE 1960 or of CIE 1976: call these u&apos; and v&apos;</source>
        <translation>u 和 v 列可能是 CIE 1960 或 CIE 1976 的：后者请命名为 u&apos; 和 v&apos;</translation>
    </message>
    <message>
        <source>begins with # and is not read, though it has the numbers of a measurement; to read it, put its first field in quotes</source>
        <translation>以 # 开头，未读取，但其中有测量的数值；如需读取，请给第一个字段加引号</translation>
    </message>
    <message>
        <source>cabinet &quot;%1&quot; has no numbers</source>
        <translation>箱体“%1”没有数值</translation>
    </message>
    <message>
        <source>is a measurement above the line that names the columns: move line %1 to the top</source>
        <translation>是列名行之上的测量：请将第 %1 行移到最前</translation>
    </message>
</context>
<context>
    <name>gamutfiles::MeasurementStream</name>
    <message>
        <source>the header and the first measurement are awaited</source>
        <translation>正在等待表头和第一个测量值</translation>
    </message>
    <message>
        <source>has no numbers</source>
        <translation>没有数字</translation>
    </message>
    <message>
        <source>is longer than %1 KiB</source>
        <translation>超过 %1 KiB</translation>
    </message>
    <message>
        <source>unterminated quote</source>
        <translation>引号未闭合</translation>
    </message>
    <message>
        <source>has no end, and may be cut off</source>
        <translation>没有行尾，可能不完整</translation>
    </message>
    <message>
        <source>is above the line that names the columns</source>
        <translation>位于列名行之上</translation>
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
    <message>
        <source>%1 at %2, %3 lies outside of the spectral locus by %4 in x, y: no light has this colour</source>
        <translation>%1（%2, %3）在光谱轨迹之外，x, y 上相距 %4：没有光具有此颜色</translation>
    </message>
    <message>
        <source>%1 has no chromaticity</source>
        <translation>%1没有色度</translation>
    </message>
    <message>
        <source>red, green and blue lie clockwise in x, y: two of them may be exchanged</source>
        <translation>红、绿、蓝在 x、y 图上按顺时针排列：其中两个可能互换了</translation>
    </message>
    <message>
        <source>the white lies outside of the triangle of the primaries</source>
        <translation>白点位于基色三角形之外</translation>
    </message>
    <message>
        <source>the white is darker than one of the primaries</source>
        <translation>白色比其中一种基色还暗</translation>
    </message>
</context>
<context>
    <name>gamutfiles::TextEncoding</name>
    <message>
        <source>is not %1 text</source>
        <translation>不是 %1 文本</translation>
    </message>
    <message>
        <source>is GB18030 text, which this system cannot convert</source>
        <translation>是 GB18030 文本，本系统无法转换</translation>
    </message>
    <message>
        <source>is read as %1 text but could be %2; state the encoding if names look wrong</source>
        <translation>按 %1 文本读取，但也可能是 %2；如果名称显示不正确，请指定编码</translation>
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
<context>
    <name>gamutfiles::Wall</name>
    <message>
        <source>one without a name</source>
        <translation>一个没有名称的箱体</translation>
    </message>
    <message>
        <source>%1 and %2 more</source>
        <comment>names of cabinets and a number</comment>
        <translation>%1 以及另外 %2 个</translation>
    </message>
    <message>
        <source>names no cabinets: a wall needs a column with the cabinet, or one with the row and one with the column</source>
        <translation>没有指明箱体：墙需要一列箱体，或一列行号和一列列号</translation>
    </message>
    <message>
        <source>several cabinets have the same row and column: they are parts of the names, and no place is known</source>
        <translation>有多个箱体的行和列相同：行和列成为名称的一部分，位置未知</translation>
    </message>
    <message>
        <source>red is missing</source>
        <translation>缺少红</translation>
    </message>
    <message>
        <source>green is missing</source>
        <translation>缺少绿</translation>
    </message>
    <message>
        <source>blue is missing</source>
        <translation>缺少蓝</translation>
    </message>
    <message>
        <source>red has no chromaticity</source>
        <translation>红没有色品</translation>
    </message>
    <message>
        <source>green has no chromaticity</source>
        <translation>绿没有色品</translation>
    </message>
    <message>
        <source>blue has no chromaticity</source>
        <translation>蓝没有色品</translation>
    </message>
    <message>
        <source>red is there more than once</source>
        <translation>红出现多次</translation>
    </message>
    <message>
        <source>green is there more than once</source>
        <translation>绿出现多次</translation>
    </message>
    <message>
        <source>blue is there more than once</source>
        <translation>蓝出现多次</translation>
    </message>
    <message>
        <source>white is there more than once</source>
        <translation>白出现多次</translation>
    </message>
    <message>
        <source>black is there more than once</source>
        <translation>黑出现多次</translation>
    </message>
    <message>
        <source>it has no name of its own</source>
        <translation>没有自己的名称</translation>
    </message>
    <message>
        <source>cabinets of which nothing is known, as they have no name of their own: %1</source>
        <translation>以下箱体没有自己的名称，情况未知：%1</translation>
    </message>
    <message>
        <source>cabinets of which nothing is known, as a colour is there more than once: %1</source>
        <translation>以下箱体有颜色出现多次，情况未知：%1</translation>
    </message>
    <message>
        <source>white has no chromaticity</source>
        <translation>白没有色品</translation>
    </message>
    <message>
        <source>it is being measured</source>
        <translation>正在测量</translation>
    </message>
    <message>
        <source>cabinets of which nothing is known, as red, green or blue is missing, or a colour has no chromaticity: %1</source>
        <translation>以下箱体情况未知，因为缺少红、绿或蓝，或某个颜色没有色品：%1</translation>
    </message>
    <message>
        <source>cabinets whose black does not count in corrections, as it has no chromaticity: %1</source>
        <translation>以下箱体的黑场没有色品，不计入校正：%1</translation>
    </message>
    <message>
        <source>no cabinet was measured well enough: each needs a name, and red, green and blue once</source>
        <translation>没有箱体的测量足够完整：每个箱体都需要名称，以及红、绿、蓝各一次</translation>
    </message>
    <message>
        <source>red could not be read</source>
        <translation>红无法读取</translation>
    </message>
    <message>
        <source>green could not be read</source>
        <translation>绿无法读取</translation>
    </message>
    <message>
        <source>blue could not be read</source>
        <translation>蓝无法读取</translation>
    </message>
    <message>
        <source>white could not be read</source>
        <translation>白无法读取</translation>
    </message>
    <message>
        <source>black could not be read</source>
        <translation>黑无法读取</translation>
    </message>
</context>
</TS>
