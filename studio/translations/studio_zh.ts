<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh">
<context>
    <name>ClockFit::Parts</name>
    <message>
        <source>title</source>
        <translation>标签</translation>
    </message>
    <message>
        <source>date</source>
        <translation>日期</translation>
    </message>
    <message>
        <source>weekday</source>
        <translation>星期</translation>
    </message>
    <message>
        <source>time</source>
        <translation>时间</translation>
    </message>
    <message>
        <source>lunar date</source>
        <translation>农历</translation>
    </message>
    <message>
        <source>AM/PM badge</source>
        <translation>上午/下午标记</translation>
    </message>
    <message>
        <source>numerals</source>
        <translation>小时数字</translation>
    </message>
    <message>
        <source>hour marks</source>
        <translation>小时刻度</translation>
    </message>
    <message>
        <source>minute marks</source>
        <translation>分钟刻度</translation>
    </message>
    <message>
        <source>hour hand</source>
        <translation>时针</translation>
    </message>
    <message>
        <source>minute hand</source>
        <translation>分针</translation>
    </message>
    <message>
        <source>second hand</source>
        <translation>秒针</translation>
    </message>
</context>
<context>
    <name>ClockStudio::Attributes</name>
    <message>
        <source>Kind of clock</source>
        <translation>时钟类型</translation>
    </message>
    <message>
        <source>Style</source>
        <translation>样式</translation>
    </message>
    <message>
        <source>Hour hand colour</source>
        <translation>时针颜色</translation>
    </message>
    <message>
        <source>Minute hand colour</source>
        <translation>分针颜色</translation>
    </message>
    <message>
        <source>Second hand colour</source>
        <translation>秒针颜色</translation>
    </message>
    <message>
        <source>Hour mark colour</source>
        <translation>小时刻度颜色</translation>
    </message>
    <message>
        <source>Minute mark colour</source>
        <translation>分钟刻度颜色</translation>
    </message>
    <message>
        <source>Hour marks</source>
        <translation>小时刻度</translation>
    </message>
    <message>
        <source>Minute marks</source>
        <translation>分钟刻度</translation>
    </message>
    <message>
        <source>Second hand</source>
        <translation>秒针</translation>
    </message>
    <message>
        <source>Minute hand</source>
        <translation>分针</translation>
    </message>
    <message>
        <source>Hour hand</source>
        <translation>时针</translation>
    </message>
    <message>
        <source>Numeral font</source>
        <translation>数字字体</translation>
    </message>
    <message>
        <source>Numeral size</source>
        <translation>数字大小</translation>
    </message>
    <message>
        <source>Show the top text</source>
        <translation>显示标签</translation>
    </message>
    <message>
        <source>Show the date</source>
        <translation>显示日期</translation>
    </message>
    <message>
        <source>Show the weekday</source>
        <translation>显示星期</translation>
    </message>
    <message>
        <source>Show the time</source>
        <translation>显示时间</translation>
    </message>
    <message>
        <source>Show the lunar date</source>
        <translation>显示农历</translation>
    </message>
    <message>
        <source>Show AM/PM</source>
        <translation>显示上午/下午</translation>
    </message>
    <message>
        <source>AM/PM font</source>
        <translation>上午/下午字体</translation>
    </message>
    <message>
        <source>AM/PM size</source>
        <translation>上午/下午大小</translation>
    </message>
    <message>
        <source>AM/PM colour</source>
        <translation>上午/下午颜色</translation>
    </message>
    <message>
        <source>Top text</source>
        <translation>标签</translation>
    </message>
    <message>
        <source>Top text font</source>
        <translation>标签字体</translation>
    </message>
    <message>
        <source>Top text size</source>
        <translation>标签大小</translation>
    </message>
    <message>
        <source>Top text colour</source>
        <translation>标签颜色</translation>
    </message>
    <message>
        <source>Date format</source>
        <translation>日期格式</translation>
    </message>
    <message>
        <source>Date font</source>
        <translation>日期字体</translation>
    </message>
    <message>
        <source>Date size</source>
        <translation>日期大小</translation>
    </message>
    <message>
        <source>Date colour</source>
        <translation>日期颜色</translation>
    </message>
    <message>
        <source>Weekday font</source>
        <translation>星期字体</translation>
    </message>
    <message>
        <source>Weekday size</source>
        <translation>星期大小</translation>
    </message>
    <message>
        <source>Weekday colour</source>
        <translation>星期颜色</translation>
    </message>
    <message>
        <source>Lunar date font</source>
        <translation>农历字体</translation>
    </message>
    <message>
        <source>Lunar date size</source>
        <translation>农历大小</translation>
    </message>
    <message>
        <source>Lunar date colour</source>
        <translation>农历颜色</translation>
    </message>
    <message>
        <source>Time format</source>
        <translation>时间格式</translation>
    </message>
    <message>
        <source>Time font</source>
        <translation>时间字体</translation>
    </message>
    <message>
        <source>Time size</source>
        <translation>时间大小</translation>
    </message>
    <message>
        <source>Time colour</source>
        <translation>时间颜色</translation>
    </message>
    <message>
        <source>analog</source>
        <translation>指针</translation>
    </message>
    <message>
        <source>digital</source>
        <translation>数字</translation>
    </message>
    <message>
        <source>picture</source>
        <translation>图片</translation>
    </message>
    <message>
        <source>ahead</source>
        <translation>提前</translation>
    </message>
    <message>
        <source>behind</source>
        <translation>滞后</translation>
    </message>
    <message>
        <source>lines</source>
        <translation>线</translation>
    </message>
    <message>
        <source>dots</source>
        <translation>点</translation>
    </message>
    <message>
        <source>squares</source>
        <translation>方块</translation>
    </message>
    <message>
        <source>squares and twelve numerals</source>
        <translation>方块和十二个数字</translation>
    </message>
    <message>
        <source>squares and four numerals</source>
        <translation>方块和四个数字</translation>
    </message>
    <message>
        <source>bar</source>
        <translation>条形</translation>
    </message>
    <message>
        <source>arrow with a ring</source>
        <translation>带环箭头</translation>
    </message>
    <message>
        <source>year/month/day</source>
        <translation>年/月/日</translation>
    </message>
    <message>
        <source>month/day/year</source>
        <translation>月/日/年</translation>
    </message>
    <message>
        <source>day/month/year</source>
        <translation>日/月/年</translation>
    </message>
    <message>
        <source>month name, day, year</source>
        <translation>月份名、日、年</translation>
    </message>
    <message>
        <source>day, month name, year</source>
        <translation>日、月份名、年</translation>
    </message>
    <message>
        <source>year, month and day with labels</source>
        <translation>带标签的年、月、日</translation>
    </message>
    <message>
        <source>month and day with labels</source>
        <translation>带标签的月、日</translation>
    </message>
    <message>
        <source>Persian year/month/day</source>
        <translation>波斯 年/月/日</translation>
    </message>
    <message>
        <source>year-month-day</source>
        <translation>年-月-日</translation>
    </message>
    <message>
        <source>hours:minutes:seconds</source>
        <translation>时:分:秒</translation>
    </message>
    <message>
        <source>hours:minutes</source>
        <translation>时:分</translation>
    </message>
    <message>
        <source>hours, minutes and seconds with labels</source>
        <translation>带标签的时、分、秒</translation>
    </message>
    <message>
        <source>hours and minutes with labels</source>
        <translation>带标签的时、分</translation>
    </message>
    <message>
        <source>hours:minutes without a leading zero</source>
        <translation>时:分，无前导零</translation>
    </message>
    <message>
        <source>language of the clocks</source>
        <translation>时钟的语言</translation>
    </message>
    <message>
        <source>English</source>
        <translation>英文</translation>
    </message>
    <message>
        <source>short English</source>
        <translation>英文缩写</translation>
    </message>
    <message>
        <source>Persian</source>
        <translation>波斯文</translation>
    </message>
    <message>
        <source>twenty-four hours</source>
        <translation>二十四小时</translation>
    </message>
    <message>
        <source>twelve hours</source>
        <translation>十二小时</translation>
    </message>
    <message>
        <source>Daylight saving</source>
        <translation>夏令时</translation>
    </message>
    <message>
        <source>Direction of the adjustment</source>
        <translation>调整的方向</translation>
    </message>
    <message>
        <source>Adjustment</source>
        <translation>调整</translation>
    </message>
    <message>
        <source>Gap</source>
        <translation>间距</translation>
    </message>
    <message>
        <source>Row gap</source>
        <translation>行距</translation>
    </message>
    <message>
        <source>Hours</source>
        <translation>小时</translation>
    </message>
    <message>
        <source>Layout</source>
        <translation>布局</translation>
    </message>
    <message>
        <source>Swap date and weekday</source>
        <translation>交换日期和星期</translation>
    </message>
    <message>
        <source>Weekday names</source>
        <translation>星期名称</translation>
    </message>
    <message>
        <source>rows</source>
        <translation>多行</translation>
    </message>
    <message>
        <source>one line</source>
        <translation>一行</translation>
    </message>
    <message>
        <source>Colour of the AM/PM badge.</source>
        <translation>上午/下午标记的颜色。</translation>
    </message>
    <message>
        <source>Size of the AM/PM badge in points.</source>
        <translation>上午/下午标记的字号（磅）。</translation>
    </message>
    <message>
        <source>Font family of the AM/PM badge; empty is the default font.</source>
        <translation>上午/下午标记的字体；留空为默认字体。</translation>
    </message>
    <message>
        <source>Whether the AM/PM badge is shown.</source>
        <translation>是否显示上午/下午标记。</translation>
    </message>
    <message>
        <source>Colour of the date.</source>
        <translation>日期的颜色。</translation>
    </message>
    <message>
        <source>Size of the date in points.</source>
        <translation>日期的字号（磅）。</translation>
    </message>
    <message>
        <source>Font family of the date; empty is the default font.</source>
        <translation>日期的字体；留空为默认字体。</translation>
    </message>
    <message>
        <source>Whether the date is shown.</source>
        <translation>是否显示日期。</translation>
    </message>
    <message>
        <source>Colour of the hour hand.</source>
        <translation>时针的颜色。</translation>
    </message>
    <message>
        <source>Shape of the hour hand.</source>
        <translation>时针的形状。</translation>
    </message>
    <message>
        <source>Colour of the minute hand.</source>
        <translation>分针的颜色。</translation>
    </message>
    <message>
        <source>Shape of the minute hand.</source>
        <translation>分针的形状。</translation>
    </message>
    <message>
        <source>Shape of the second hand.</source>
        <translation>秒针的形状。</translation>
    </message>
    <message>
        <source>Colour of the hour marks and numerals.</source>
        <translation>小时刻度和数字的颜色。</translation>
    </message>
    <message>
        <source>Colour of the lunar date.</source>
        <translation>农历的颜色。</translation>
    </message>
    <message>
        <source>Size of the lunar date in points.</source>
        <translation>农历的字号（磅）。</translation>
    </message>
    <message>
        <source>Font family of the lunar date; empty is the default font.</source>
        <translation>农历的字体；留空为默认字体。</translation>
    </message>
    <message>
        <source>Colour of the minute marks.</source>
        <translation>分钟刻度的颜色。</translation>
    </message>
    <message>
        <source>Shape of the minute marks.</source>
        <translation>分钟刻度的形状。</translation>
    </message>
    <message>
        <source>Colour of the second hand and of the cap in the centre.</source>
        <translation>秒针和中心盖的颜色。</translation>
    </message>
    <message>
        <source>Colour of the time.</source>
        <translation>时间的颜色。</translation>
    </message>
    <message>
        <source>Size of the time in points.</source>
        <translation>时间的字号（磅）。</translation>
    </message>
    <message>
        <source>Font family of the time; empty is the default font.</source>
        <translation>时间的字体；留空为默认字体。</translation>
    </message>
    <message>
        <source>Whether the time is shown.</source>
        <translation>是否显示时间。</translation>
    </message>
    <message>
        <source>Colour of the top text.</source>
        <translation>顶部文字的颜色。</translation>
    </message>
    <message>
        <source>Size of the top text in points.</source>
        <translation>顶部文字的字号（磅）。</translation>
    </message>
    <message>
        <source>Font family of the top text; empty is the default font.</source>
        <translation>顶部文字的字体；留空为默认字体。</translation>
    </message>
    <message>
        <source>Whether the top text is shown.</source>
        <translation>是否显示顶部文字。</translation>
    </message>
    <message>
        <source>Colour of the weekday.</source>
        <translation>星期的颜色。</translation>
    </message>
    <message>
        <source>Size of the weekday in points.</source>
        <translation>星期的字号（磅）。</translation>
    </message>
    <message>
        <source>Font family of the weekday; empty is the default font.</source>
        <translation>星期的字体；留空为默认字体。</translation>
    </message>
    <message>
        <source>Whether the weekday is shown.</source>
        <translation>是否显示星期。</translation>
    </message>
    <message>
        <source>Size of the hour numerals in points.</source>
        <translation>小时数字的字号（磅）。</translation>
    </message>
    <message>
        <source>Font family of the hour numerals; empty is the default font.</source>
        <translation>小时数字的字体；留空为默认字体。</translation>
    </message>
    <message>
        <source>Whether the Chinese lunar date is shown.</source>
        <translation>是否显示农历。</translation>
    </message>
    <message>
        <source>Gap between the rows, or between the texts on one line, in pixels; may be negative.</source>
        <translation>各行之间或同一行文字之间的间距（像素），可为负。</translation>
    </message>
    <message>
        <source>Gap between the text rows in pixels; may be negative.</source>
        <translation>文字行之间的间距（像素），可为负。</translation>
    </message>
    <message>
        <source>Language and length of the weekday names.</source>
        <translation>星期名称的语言和长短。</translation>
    </message>
    <message>
        <source>Order and form of the parts of the date.</source>
        <translation>日期各部分的顺序和形式。</translation>
    </message>
    <message>
        <source>Picture style of the clock.</source>
        <translation>时钟的图片样式。</translation>
    </message>
    <message>
        <source>Shape of the hour marks, and which numerals are shown.</source>
        <translation>小时刻度的形状，以及显示哪些数字。</translation>
    </message>
    <message>
        <source>The fixed text in the first position.</source>
        <translation>位于首位的固定文字。</translation>
    </message>
    <message>
        <source>The fixed text in the upper half of the dial.</source>
        <translation>表盘上半部的固定文字。</translation>
    </message>
    <message>
        <source>Whether each text has a row of its own or all are on one line.</source>
        <translation>每段文字各占一行，还是全部在同一行。</translation>
    </message>
    <message>
        <source>Whether hours are shown in 24-hour or 12-hour form with an AM/PM mark.</source>
        <translation>小时以 24 小时制显示，还是以带上午/下午标记的 12 小时制显示。</translation>
    </message>
    <message>
        <source>Whether the AM/PM mark of the 12-hour form is shown; shown if the key is absent.</source>
        <translation>12 小时制是否显示上午/下午标记；未设置时显示。</translation>
    </message>
    <message>
        <source>Whether the clock is analog, digital or made of pictures.</source>
        <translation>时钟是指针式、数字式还是由图片组成。</translation>
    </message>
    <message>
        <source>Whether the date and the weekday swap places.</source>
        <translation>日期和星期是否交换位置。</translation>
    </message>
    <message>
        <source>Which parts of the time are shown, and in which form.</source>
        <translation>显示时间的哪些部分，以及形式。</translation>
    </message>
    <message>
        <source>railway</source>
        <translation>铁路</translation>
    </message>
    <message>
        <source>roman</source>
        <translation>罗马</translation>
    </message>
    <message>
        <source>minimal</source>
        <translation>简约</translation>
    </message>
    <message>
        <source>Arabic-Indic</source>
        <translation>阿拉伯-印度数字</translation>
    </message>
    <message>
        <source>classic</source>
        <translation>经典</translation>
    </message>
    <message>
        <source>night</source>
        <translation>夜间</translation>
    </message>
    <message>
        <source>ornament</source>
        <translation>纹饰</translation>
    </message>
    <message>
        <source>factory</source>
        <translation>工厂</translation>
    </message>
    <message>
        <source>balloons</source>
        <translation>气球</translation>
    </message>
    <message>
        <source>diner</source>
        <translation>餐馆</translation>
    </message>
    <message>
        <source>Identity</source>
        <translation>标识</translation>
    </message>
    <message>
        <source>Number of the clock in the names of its glyph files; a new clock gets a random one from 1000 to 1999.</source>
        <translation>时钟字形文件名中的编号；新时钟随机取 1000 到 1999。</translation>
    </message>
    <message>
        <source>Whether the clock runs ahead of or behind its zone by the adjustment.</source>
        <translation>时钟按调整量比其时区快还是慢。</translation>
    </message>
    <message>
        <source>How far the clock differs from its zone&apos;s time: hours, &quot;A&quot;, minutes, &quot;B&quot;, seconds, two digits each.</source>
        <translation>时钟与其时区相差多少：小时、“A”、分钟、“B”、秒，各两位数字。</translation>
    </message>
    <message>
        <source>Time zone</source>
        <translation>时区</translation>
    </message>
    <message>
        <source>Offset from UTC: a sign, then &quot;hh:mm&quot; or &quot;h:mm&quot;. The first character always counts as the sign.</source>
        <translation>与 UTC 的偏移：符号，然后是“hh:mm”或“h:mm”。第一个字符总是作为符号。</translation>
    </message>
    <message>
        <source>Whether the clock is one hour ahead between the start and the end of daylight saving.</source>
        <translation>夏令时开始到结束之间，时钟是否快一小时。</translation>
    </message>
    <message>
        <source>Start of daylight saving</source>
        <translation>夏令时开始</translation>
    </message>
    <message>
        <source>When daylight saving starts, in standard time: month.occurrence.weekday.hh:mm:ss.</source>
        <translation>夏令时何时开始（标准时间）：月.第几个.星期.hh:mm:ss。</translation>
    </message>
    <message>
        <source>End of daylight saving</source>
        <translation>夏令时结束</translation>
    </message>
    <message>
        <source>When daylight saving ends, in standard time: month.occurrence.weekday.hh:mm:ss.</source>
        <translation>夏令时何时结束（标准时间）：月.第几个.星期.hh:mm:ss。</translation>
    </message>
    <message>
        <source>Daylight-saving choice</source>
        <translation>夏令时选项</translation>
    </message>
    <message>
        <source>The rule chosen in the editor&apos;s list; stored only.</source>
        <translation>编辑器列表中所选的规则；仅作保存。</translation>
    </message>
    <message>
        <source>Zone choice</source>
        <translation>时区选项</translation>
    </message>
    <message>
        <source>The zone chosen in the editor&apos;s list; stored only.</source>
        <translation>编辑器列表中所选的时区；仅作保存。</translation>
    </message>
    <message>
        <source>If present, the SDK export writes the node&apos;s GUID.</source>
        <translation>如果存在，SDK 导出会写入节点的 GUID。</translation>
    </message>
</context>
<context>
    <name>ClockStudio::ColourButton</name>
    <message>
        <source>Other colour…</source>
        <translation>其他颜色…</translation>
    </message>
    <message>
        <source>Colour</source>
        <translation>颜色</translation>
    </message>
</context>
<context>
    <name>ClockStudio::FamilyBox</name>
    <message>
        <source>Default font</source>
        <translation>默认字体</translation>
    </message>
    <message>
        <source>%1 (not installed)</source>
        <translation>%1（未安装）</translation>
    </message>
    <message>
        <source>%1 (missing %2)</source>
        <translation>%1（缺少 %2）</translation>
    </message>
</context>
<context>
    <name>ClockStudio::FindingsPanel</name>
    <message>
        <source>Fix</source>
        <translation>修正</translation>
    </message>
    <message>
        <source>No findings.</source>
        <translation>未发现问题。</translation>
    </message>
    <message>
        <source>Findings</source>
        <translation>检查结果</translation>
    </message>
    <message>
        <source>Apply the suggested fix</source>
        <translation>写入建议的内容</translation>
    </message>
    <message>
        <source>Clock %1: </source>
        <translation>时钟 %1：</translation>
    </message>
    <message>
        <source>Line %1</source>
        <translation>第 %1 行</translation>
    </message>
    <message>
        <source>The text is not a valid program.</source>
        <translation>文本不是有效的节目。</translation>
    </message>
    <message>
        <source>The days of a year are not checked: %1</source>
        <translation>未检查一年中的各天：%1</translation>
    </message>
</context>
<context>
    <name>ClockStudio::FitCheck</name>
    <message>
        <source>%1 is missing or cannot be started.</source>
        <translation>%1 缺失或无法启动。</translation>
    </message>
    <message>
        <source>%1 ended with code %2.</source>
        <translation>%1 以代码 %2 结束。</translation>
    </message>
    <message>
        <source>it takes longer than two minutes.</source>
        <translation>用时超过两分钟。</translation>
    </message>
</context>
<context>
    <name>ClockStudio::Gallery</name>
    <message>
        <source>Back to the wall</source>
        <translation>返回墙面</translation>
    </message>
    <message>
        <source>Empty wall</source>
        <translation>空白墙</translation>
    </message>
    <message>
        <source>Open a file…</source>
        <translation>打开文件…</translation>
    </message>
    <message>
        <source>Recent</source>
        <translation>最近</translation>
    </message>
    <message>
        <source>Recent files</source>
        <translation>最近的文件</translation>
    </message>
    <message>
        <source>Templates</source>
        <translation>模板</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>开始</translation>
    </message>
</context>
<context>
    <name>ClockStudio::KeysDialog</name>
    <message>
        <source>Keyboard shortcuts</source>
        <translation>键盘快捷键</translation>
    </message>
    <message>
        <source>Move by one pixel</source>
        <translation>移动一个像素</translation>
    </message>
    <message>
        <source>Arrow keys</source>
        <translation>方向键</translation>
    </message>
    <message>
        <source>Move by eight pixels</source>
        <translation>移动八个像素</translation>
    </message>
    <message>
        <source>Shift + arrow keys</source>
        <translation>Shift + 方向键</translation>
    </message>
    <message>
        <source>Resize by one pixel</source>
        <translation>大小改变一个像素</translation>
    </message>
    <message>
        <source>Alt + arrow keys</source>
        <translation>Alt + 方向键</translation>
    </message>
    <message>
        <source>Select the next clock</source>
        <translation>选择下一个时钟</translation>
    </message>
    <message>
        <source>Tab</source>
        <translation>Tab</translation>
    </message>
    <message>
        <source>Select several clocks</source>
        <translation>选择多个时钟</translation>
    </message>
    <message>
        <source>Shift + click, or drag around them</source>
        <translation>Shift + 单击，或拖动框选</translation>
    </message>
    <message>
        <source>Drag without snapping</source>
        <translation>拖动时不吸附</translation>
    </message>
    <message>
        <source>Hold Alt</source>
        <translation>按住 Alt</translation>
    </message>
    <message>
        <source>Cancel a drag, clear the selection</source>
        <translation>取消拖动，不选任何时钟</translation>
    </message>
    <message>
        <source>Esc</source>
        <translation>Esc</translation>
    </message>
    <message>
        <source>Zoom at the pointer</source>
        <translation>在指针处缩放</translation>
    </message>
    <message>
        <source>Ctrl + wheel</source>
        <translation>Ctrl + 滚轮</translation>
    </message>
</context>
<context>
    <name>ClockStudio::MainWindow</name>
    <message>
        <source>Picture, plain pixels (*.png)</source>
        <translation>图片，普通像素 (*.png)</translation>
    </message>
    <message>
        <source>Picture, as LEDs (*.png)</source>
        <translation>图片，LED 效果 (*.png)</translation>
    </message>
    <message>
        <source>Picture of the wall</source>
        <translation>墙的图片</translation>
    </message>
    <message>
        <source>wall.png</source>
        <translation>wall.png</translation>
    </message>
    <message>
        <source>Approval sheet</source>
        <translation>审批单</translation>
    </message>
    <message>
        <source>wall.pdf</source>
        <translation>wall.pdf</translation>
    </message>
    <message>
        <source>PDF (*.pdf)</source>
        <translation>PDF (*.pdf)</translation>
    </message>
    <message>
        <source>Animated preview</source>
        <translation>动画预览</translation>
    </message>
    <message>
        <source>wall.gif</source>
        <translation>wall.gif</translation>
    </message>
    <message>
        <source>Animated picture (*.gif)</source>
        <translation>动画图片 (*.gif)</translation>
    </message>
    <message>
        <source>Making the preview…</source>
        <translation>正在生成预览…</translation>
    </message>
    <message>
        <source>The preview could not be made: %1</source>
        <translation>无法生成预览：%1</translation>
    </message>
    <message>
        <source>Saved %1</source>
        <translation>已保存 %1</translation>
    </message>
    <message>
        <source>Choose an empty folder, or one with an earlier export</source>
        <translation>空文件夹，或含有先前导出的文件夹</translation>
    </message>
    <message>
        <source>Generating the glyph files…</source>
        <translation>正在生成字形文件…</translation>
    </message>
    <message>
        <source>Exported to %1</source>
        <translation>已导出到 %1</translation>
    </message>
    <message>
        <source>Import SDK XML</source>
        <translation>导入 SDK XML</translation>
    </message>
    <message>
        <source>SDK XML (*.xml);;All files (*)</source>
        <translation>SDK XML (*.xml);;所有文件 (*)</translation>
    </message>
    <message>
        <source>Importing…</source>
        <translation>正在导入…</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>文件(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;New…</source>
        <translation>新建(&amp;N)…</translation>
    </message>
    <message>
        <source>&amp;Open…</source>
        <translation>打开(&amp;O)…</translation>
    </message>
    <message>
        <source>&amp;Import SDK XML…</source>
        <translation>导入 SDK XML(&amp;I)…</translation>
    </message>
    <message>
        <source>Open &amp;recent</source>
        <translation>最近的文件(&amp;R)</translation>
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
        <source>Ctrl+Shift+S</source>
        <translation>Ctrl+Shift+S</translation>
    </message>
    <message>
        <source>&amp;Picture of the wall…</source>
        <translation>墙的图片(&amp;P)…</translation>
    </message>
    <message>
        <source>Ctrl+Shift+P</source>
        <translation>Ctrl+Shift+P</translation>
    </message>
    <message>
        <source>Animated pre&amp;view…</source>
        <translation>动画预览(&amp;V)…</translation>
    </message>
    <message>
        <source>Approval s&amp;heet…</source>
        <translation>审批单(&amp;H)…</translation>
    </message>
    <message>
        <source>&amp;Export with glyph files…</source>
        <translation>连同字形文件导出(&amp;E)…</translation>
    </message>
    <message>
        <source>Ctrl+E</source>
        <translation>Ctrl+E</translation>
    </message>
    <message>
        <source>Sen&amp;d to a wall…</source>
        <translation>发送到墙(&amp;D)…</translation>
    </message>
    <message>
        <source>Ctrl+Return</source>
        <translation>Ctrl+Return</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>退出(&amp;Q)</translation>
    </message>
    <message>
        <source>Ctrl+Q</source>
        <translation>Ctrl+Q</translation>
    </message>
    <message>
        <source>None yet</source>
        <translation>暂无</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>编辑(&amp;E)</translation>
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
        <source>Cu&amp;t</source>
        <translation>剪切(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>复制(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>粘贴(&amp;P)</translation>
    </message>
    <message>
        <source>There is no clock on the clipboard</source>
        <translation>剪贴板上没有时钟</translation>
    </message>
    <message>
        <source>&amp;Duplicate</source>
        <translation>创建副本(&amp;D)</translation>
    </message>
    <message>
        <source>Ctrl+D</source>
        <translation>Ctrl+D</translation>
    </message>
    <message>
        <source>De&amp;lete</source>
        <translation>删除(&amp;L)</translation>
    </message>
    <message>
        <source>Select &amp;all clocks</source>
        <translation>选择所有时钟(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;Clock</source>
        <translation>时钟(&amp;C)</translation>
    </message>
    <message>
        <source>Bring to &amp;front</source>
        <translation>置于顶层(&amp;F)</translation>
    </message>
    <message>
        <source>Ctrl+]</source>
        <translation>Ctrl+]</translation>
    </message>
    <message>
        <source>Send to &amp;back</source>
        <translation>置于底层(&amp;B)</translation>
    </message>
    <message>
        <source>Ctrl+[</source>
        <translation>Ctrl+[</translation>
    </message>
    <message>
        <source>Align &amp;left</source>
        <translation>左对齐(&amp;L)</translation>
    </message>
    <message>
        <source>Ctrl+Shift+L</source>
        <translation>Ctrl+Shift+L</translation>
    </message>
    <message>
        <source>Align &amp;centre</source>
        <translation>水平居中(&amp;C)</translation>
    </message>
    <message>
        <source>Ctrl+Shift+C</source>
        <translation>Ctrl+Shift+C</translation>
    </message>
    <message>
        <source>Align &amp;right</source>
        <translation>右对齐(&amp;R)</translation>
    </message>
    <message>
        <source>Ctrl+Shift+R</source>
        <translation>Ctrl+Shift+R</translation>
    </message>
    <message>
        <source>Align &amp;top</source>
        <translation>顶部对齐(&amp;T)</translation>
    </message>
    <message>
        <source>Ctrl+Shift+T</source>
        <translation>Ctrl+Shift+T</translation>
    </message>
    <message>
        <source>Align &amp;middle</source>
        <translation>垂直居中(&amp;M)</translation>
    </message>
    <message>
        <source>Ctrl+Shift+M</source>
        <translation>Ctrl+Shift+M</translation>
    </message>
    <message>
        <source>Align b&amp;ottom</source>
        <translation>底部对齐(&amp;O)</translation>
    </message>
    <message>
        <source>Ctrl+Shift+B</source>
        <translation>Ctrl+Shift+B</translation>
    </message>
    <message>
        <source>Distribute &amp;horizontally</source>
        <translation>水平分布(&amp;A)</translation>
    </message>
    <message>
        <source>Ctrl+Shift+H</source>
        <translation>Ctrl+Shift+H</translation>
    </message>
    <message>
        <source>Distribute &amp;vertically</source>
        <translation>垂直分布(&amp;D)</translation>
    </message>
    <message>
        <source>Ctrl+Shift+V</source>
        <translation>Ctrl+Shift+V</translation>
    </message>
    <message>
        <source>Stack in a ro&amp;w</source>
        <translation>排成一行(&amp;W)</translation>
    </message>
    <message>
        <source>Ctrl+Shift+A</source>
        <translation>Ctrl+Shift+A</translation>
    </message>
    <message>
        <source>Stack in a col&amp;umn</source>
        <translation>排成一列(&amp;U)</translation>
    </message>
    <message>
        <source>Ctrl+Shift+D</source>
        <translation>Ctrl+Shift+D</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>视图(&amp;V)</translation>
    </message>
    <message>
        <source>Zoom &amp;in</source>
        <translation>放大(&amp;I)</translation>
    </message>
    <message>
        <source>Ctrl+=</source>
        <translation>Ctrl+=</translation>
    </message>
    <message>
        <source>Zoom &amp;out</source>
        <translation>缩小(&amp;O)</translation>
    </message>
    <message>
        <source>&amp;Fit to window</source>
        <translation>适合窗口(&amp;F)</translation>
    </message>
    <message>
        <source>Ctrl+0</source>
        <translation>Ctrl+0</translation>
    </message>
    <message>
        <source>Show as LE&amp;Ds</source>
        <translation>显示为 LED(&amp;D)</translation>
    </message>
    <message>
        <source>Ctrl+L</source>
        <translation>Ctrl+L</translation>
    </message>
    <message>
        <source>&amp;Panel grid</source>
        <translation>模组网格(&amp;P)</translation>
    </message>
    <message>
        <source>None</source>
        <translation>无</translation>
    </message>
    <message>
        <source>F4</source>
        <translation>F4</translation>
    </message>
    <message>
        <source>F8</source>
        <translation>F8</translation>
    </message>
    <message>
        <source>&amp;Language of the clocks</source>
        <translation>时钟的语言(&amp;L)</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>帮助(&amp;H)</translation>
    </message>
    <message>
        <source>&amp;Keyboard shortcuts</source>
        <translation>键盘快捷键(&amp;K)</translation>
    </message>
    <message>
        <source>F1</source>
        <translation>F1</translation>
    </message>
    <message>
        <source>&amp;About Clock Studio</source>
        <translation>关于时钟工作室(&amp;A)</translation>
    </message>
    <message>
        <source>Digital clock</source>
        <translation>数字时钟</translation>
    </message>
    <message>
        <source>D</source>
        <translation>D</translation>
    </message>
    <message>
        <source>Analog clock</source>
        <translation>指针时钟</translation>
    </message>
    <message>
        <source>A</source>
        <translation>A</translation>
    </message>
    <message>
        <source>Picture clock</source>
        <translation>图片时钟</translation>
    </message>
    <message>
        <source>P</source>
        <translation>P</translation>
    </message>
    <message>
        <source>Tools</source>
        <translation>工具</translation>
    </message>
    <message>
        <source>%1: drag a rectangle on the wall (%2)</source>
        <translation>%1：在墙上画出它的位置（%2）</translation>
    </message>
    <message>
        <source>About Clock Studio</source>
        <translation>关于时钟工作室</translation>
    </message>
    <message>
        <source>%1 was deleted from disk. Your work is still open here.</source>
        <translation>%1 已不在磁盘上。您的工作仍在这里。</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>保存</translation>
    </message>
    <message>
        <source>Dismiss</source>
        <translation>关闭</translation>
    </message>
    <message>
        <source>Properties</source>
        <translation>属性</translation>
    </message>
    <message>
        <source>Findings</source>
        <translation>检查结果</translation>
    </message>
    <message>
        <source>Source</source>
        <translation>源文本</translation>
    </message>
    <message>
        <source>Open a program</source>
        <translation>打开节目</translation>
    </message>
    <message>
        <source>Programs (%1);;All files (*)</source>
        <translation>节目 (%1);;所有文件 (*)</translation>
    </message>
    <message>
        <source>Saved</source>
        <translation>已保存</translation>
    </message>
    <message>
        <source>Save the program</source>
        <translation>保存节目</translation>
    </message>
    <message>
        <source>wall.xml</source>
        <translation>wall.xml</translation>
    </message>
    <message>
        <source>Programs (%1)</source>
        <translation>节目 (%1)</translation>
    </message>
    <message>
        <source>Unsaved work</source>
        <translation>未保存的工作</translation>
    </message>
    <message>
        <source>Save the changes to %1?</source>
        <translation>保存对 %1 的更改吗？</translation>
    </message>
    <message>
        <source>a new wall</source>
        <translation>新的墙</translation>
    </message>
    <message>
        <source>The studio closed unexpectedly. Unsaved changes to %1 can be recovered.</source>
        <translation>工作室意外退出。%1 的未保存工作已保留。</translation>
    </message>
    <message>
        <source>Recover</source>
        <translation>恢复</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>丢弃</translation>
    </message>
    <message>
        <source>%1 was changed by another program.</source>
        <translation>%1 已被其他程序更改。</translation>
    </message>
    <message>
        <source>Reload</source>
        <translation>重新载入</translation>
    </message>
    <message>
        <source>Keep mine</source>
        <translation>保留我的</translation>
    </message>
    <message>
        <source>Clock Studio</source>
        <translation>时钟工作室</translation>
    </message>
    <message>
        <source>%1[*] – Clock Studio</source>
        <translation>%1[*] – 时钟工作室</translation>
    </message>
    <message>
        <source>Go to line</source>
        <translation>显示该行</translation>
    </message>
    <message>
        <source>Findings (%1)</source>
        <translation>问题（%1）</translation>
    </message>
    <message>
        <source>&lt;h3&gt;Clock Studio %1&lt;/h3&gt;&lt;p&gt;An editor for walls of clocks. All clocks are drawn by the clock plugin itself.&lt;/p&gt;</source>
        <translation>&lt;h3&gt;时钟工作室 %1&lt;/h3&gt;&lt;p&gt;时钟墙的编辑器。所有时钟都由时钟插件自身绘制。&lt;/p&gt;</translation>
    </message>
    <message>
        <source>The picture could not be made.</source>
        <translation>无法生成图片。</translation>
    </message>
    <message>
        <source>The wall shows the last valid version.</source>
        <translation>墙上显示的是最后一个正确的版本。</translation>
    </message>
    <message>
        <source>Line %1: %2</source>
        <translation>第 %1 行：%2</translation>
    </message>
</context>
<context>
    <name>ClockStudio::NumberEditor</name>
    <message>
        <source> pt</source>
        <translation> 磅</translation>
    </message>
    <message>
        <source> px</source>
        <translation> 像素</translation>
    </message>
</context>
<context>
    <name>ClockStudio::Preview</name>
    <message>
        <source>ImageMagick is not installed (package imagemagick).</source>
        <translation>未安装 ImageMagick（软件包 imagemagick）。</translation>
    </message>
    <message>
        <source>The pictures of the preview could not be written.</source>
        <translation>无法写入预览图片。</translation>
    </message>
</context>
<context>
    <name>ClockStudio::ProgramFiles</name>
    <message>
        <source>Untitled</source>
        <translation>未命名</translation>
    </message>
    <message>
        <source>%1 is damaged or not a text file.</source>
        <translation>%1 已损坏或不是文本。</translation>
    </message>
    <message>
        <source>The text has a character that the file&apos;s encoding cannot represent.</source>
        <translation>文件的编码缺少此文本中的一个字符。</translation>
    </message>
</context>
<context>
    <name>ClockStudio::PropertyGroups</name>
    <message>
        <source>Time</source>
        <translation>时间</translation>
    </message>
    <message>
        <source>Format</source>
        <translation>格式</translation>
    </message>
    <message>
        <source>Hours</source>
        <translation>小时</translation>
    </message>
    <message>
        <source>Font</source>
        <translation>字体</translation>
    </message>
    <message>
        <source>Label</source>
        <translation>标签</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>文本</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>日期</translation>
    </message>
    <message>
        <source>Weekday</source>
        <translation>星期</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>语言</translation>
    </message>
    <message>
        <source>Lunar date</source>
        <translation>农历</translation>
    </message>
    <message>
        <source>Arrangement</source>
        <translation>排列</translation>
    </message>
    <message>
        <source>Layout</source>
        <translation>布局</translation>
    </message>
    <message>
        <source>Gap</source>
        <translation>间距</translation>
    </message>
    <message>
        <source>Hands</source>
        <translation>指针</translation>
    </message>
    <message>
        <source>Hour</source>
        <translation>时针</translation>
    </message>
    <message>
        <source>Minute</source>
        <translation>分针</translation>
    </message>
    <message>
        <source>Second</source>
        <translation>秒针</translation>
    </message>
    <message>
        <source>Dial</source>
        <translation>表盘</translation>
    </message>
    <message>
        <source>Minutes</source>
        <translation>分钟</translation>
    </message>
    <message>
        <source>Numerals</source>
        <translation>数字</translation>
    </message>
    <message>
        <source>AM and PM</source>
        <translation>上午下午</translation>
    </message>
    <message>
        <source>Pictures</source>
        <translation>图片</translation>
    </message>
    <message>
        <source>Style</source>
        <translation>样式</translation>
    </message>
</context>
<context>
    <name>ClockStudio::PropertyPanel</name>
    <message>
        <source>Digital</source>
        <translation>数字</translation>
    </message>
    <message>
        <source>Analog</source>
        <translation>指针</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>图片</translation>
    </message>
    <message>
        <source>Width in pixels</source>
        <translation>宽度（像素）</translation>
    </message>
    <message>
        <source>Height in pixels</source>
        <translation>高度（像素）</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>宽</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>高</translation>
    </message>
    <message>
        <source>Select a clock on the wall to change it, or add one with the buttons above the wall.</source>
        <translation>在墙上选择一个时钟进行更改，或用墙上方的按钮添加。</translation>
    </message>
    <message>
        <source>Position and size</source>
        <translation>位置和大小</translation>
    </message>
    <message>
        <source>Left edge in pixels</source>
        <translation>左边缘，像素</translation>
    </message>
    <message>
        <source>Top edge in pixels</source>
        <translation>上边缘，像素</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>位置</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>大小</translation>
    </message>
    <message>
        <source>Fit sizes to the area</source>
        <translation>使字号适合区域</translation>
    </message>
    <message>
        <source>Make the texts as large as the area allows on any day of the year</source>
        <translation>使文字在一年中任何一天都尽可能大</translation>
    </message>
    <message>
        <source>Reset to the default</source>
        <translation>恢复默认值</translation>
    </message>
    <message>
        <source>Wall</source>
        <translation>墙</translation>
    </message>
    <message>
        <source>Clock %1</source>
        <translation>时钟 %1</translation>
    </message>
    <message>
        <source>Kind of clock</source>
        <translation>时钟类型</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>重置</translation>
    </message>
    <message>
        <source>Fit sizes</source>
        <translation>适合大小</translation>
    </message>
    <message>
        <source>Size of the wall</source>
        <translation>墙的大小</translation>
    </message>
    <message>
        <source>Move and resize</source>
        <translation>移动和调整大小</translation>
    </message>
    <message numerus="yes">
        <source>%n clock(s)</source>
        <translation>
            <numerusform>%n 个时钟</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ClockStudio::SavedFile</name>
    <message>
        <source>%1 is not a regular file.</source>
        <translation>%1 不是普通文件。</translation>
    </message>
    <message>
        <source>%1 could not be saved: %2</source>
        <translation>无法保存 %1：%2</translation>
    </message>
</context>
<context>
    <name>ClockStudio::Section</name>
    <message>
        <source>Show</source>
        <translation>显示</translation>
    </message>
</context>
<context>
    <name>ClockStudio::SendDialog</name>
    <message>
        <source>Send to a wall</source>
        <translation>发送到墙</translation>
    </message>
    <message>
        <source>/srv/wall</source>
        <translation>/srv/wall</translation>
    </message>
    <message>
        <source>empty for ssh&apos;s default key</source>
        <translation>留空则使用 ssh 的默认密钥</translation>
    </message>
    <message>
        <source>Wall</source>
        <translation>墙</translation>
    </message>
    <message>
        <source>Host</source>
        <translation>主机</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>文件夹</translation>
    </message>
    <message>
        <source>Key file</source>
        <translation>密钥文件</translation>
    </message>
    <message>
        <source>Earlier releases</source>
        <translation>先前的版本</translation>
    </message>
    <message>
        <source>Play the selected release</source>
        <translation>重新播放所选版本</translation>
    </message>
    <message>
        <source>Send</source>
        <translation>发送</translation>
    </message>
    <message>
        <source>Cancelled. The wall is unchanged.</source>
        <translation>已取消。墙显示的内容不变。</translation>
    </message>
    <message>
        <source>Generating the glyph files…</source>
        <translation>正在生成字形文件…</translation>
    </message>
    <message>
        <source>Sending to %1…</source>
        <translation>正在发送到 %1…</translation>
    </message>
    <message>
        <source>Release %2 was sent to %1. The previous release is kept.</source>
        <translation>%1 现为版本 %2。先前的版本已保留。</translation>
    </message>
    <message>
        <source>There are no releases yet.</source>
        <translation>尚无版本。</translation>
    </message>
    <message>
        <source>Switching releases…</source>
        <translation>正在更换版本…</translation>
    </message>
    <message>
        <source>%1 now plays release %2.</source>
        <translation>%1 现为版本 %2。</translation>
    </message>
    <message>
        <source>empty for this computer, or operator@wall.example:22</source>
        <translation>本机留空，或 operator@wall.example:22</translation>
    </message>
    <message>
        <source>none, or /run/clock-player/status.json</source>
        <translation>无，或 /run/clock-player/status.json</translation>
    </message>
    <message>
        <source>The player&apos;s status file on the wall. It shows whether the wall is playing what was sent.</source>
        <translation>屏幕上播放器的状态文件，用于确认屏幕正在播放所发送的内容。</translation>
    </message>
    <message>
        <source>Status file</source>
        <translation>状态文件</translation>
    </message>
    <message>
        <source>Choose the key file</source>
        <translation>选择密钥文件</translation>
    </message>
    <message>
        <source>Removing the incomplete release…</source>
        <translation>正在删除已发送的内容…</translation>
    </message>
    <message>
        <source>Waiting for the wall to play the release…</source>
        <translation>正在等待屏幕播放…</translation>
    </message>
    <message>
        <source>Asking %1…</source>
        <translation>正在查询 %1…</translation>
    </message>
    <message>
        <source>%1 (playing)</source>
        <translation>%1（正在播放）</translation>
    </message>
</context>
<context>
    <name>ClockStudio::Sheet</name>
    <message>
        <source>yes</source>
        <translation>是</translation>
    </message>
    <message>
        <source>no</source>
        <translation>否</translation>
    </message>
    <message>
        <source>Findings</source>
        <translation>检查结果</translation>
    </message>
    <message>
        <source>None</source>
        <translation>无</translation>
    </message>
    <message>
        <source>Approved by ______________________   on ______________</source>
        <translation>批准人 ______________________   日期 ______________</translation>
    </message>
    <message>
        <source>Clock %1: %2</source>
        <translation>时钟 %1：%2</translation>
    </message>
</context>
<context>
    <name>ClockStudio::SourceView</name>
    <message>
        <source>Program text</source>
        <translation>节目文本</translation>
    </message>
    <message>
        <source>The XML of the program. Changes appear on the wall immediately.</source>
        <translation>节目的 XML。更改立即显示在墙上。</translation>
    </message>
    <message>
        <source>Typing</source>
        <translation>输入</translation>
    </message>
</context>
<context>
    <name>ClockStudio::Templates</name>
    <message>
        <source>Railway station</source>
        <translation>火车站</translation>
    </message>
    <message>
        <source>A station clock beside the time, the date and the platform</source>
        <translation>车站时钟，旁边是时间、日期和站台</translation>
    </message>
    <message>
        <source>Airport</source>
        <translation>机场</translation>
    </message>
    <message>
        <source>Local time and UTC above four cities</source>
        <translation>本地时间和 UTC，下面是四个城市</translation>
    </message>
    <message>
        <source>World offices</source>
        <translation>世界各地办事处</translation>
    </message>
    <message>
        <source>Five dials with their cities</source>
        <translation>五个表盘及其城市</translation>
    </message>
    <message>
        <source>Stock exchange</source>
        <translation>证券交易所</translation>
    </message>
    <message>
        <source>The time at four exchanges</source>
        <translation>四个交易所的时间</translation>
    </message>
    <message>
        <source>Bank</source>
        <translation>银行</translation>
    </message>
    <message>
        <source>A plain dial with the date</source>
        <translation>简洁的表盘和日期</translation>
    </message>
    <message>
        <source>School</source>
        <translation>学校</translation>
    </message>
    <message>
        <source>Time, weekday and date, readable from a distance</source>
        <translation>时间、星期和日期，远处可读</translation>
    </message>
    <message>
        <source>Factory shift</source>
        <translation>工厂班次</translation>
    </message>
    <message>
        <source>Large time with seconds, the shift and the date</source>
        <translation>大号秒数，以及班次和日期</translation>
    </message>
    <message>
        <source>Prayer hall</source>
        <translation>祈祷厅</translation>
    </message>
    <message>
        <source>A dial with the Persian date and weekday</source>
        <translation>表盘，配波斯日期和星期</translation>
    </message>
    <message>
        <source>Chinese date and lunar date</source>
        <translation>公历与农历</translation>
    </message>
    <message>
        <source>The time with the Chinese date, weekday and lunar date</source>
        <translation>时间，配中文日期、星期和农历</translation>
    </message>
    <message>
        <source>Hospital</source>
        <translation>医院</translation>
    </message>
    <message>
        <source>A clear dial with a second hand, and the weekday</source>
        <translation>清晰的表盘，带秒针，以及星期</translation>
    </message>
    <message>
        <source>Sports hall</source>
        <translation>体育馆</translation>
    </message>
    <message>
        <source>Only the time, with seconds</source>
        <translation>只有时间，带秒</translation>
    </message>
    <message>
        <source>Hotel lobby</source>
        <translation>酒店大堂</translation>
    </message>
    <message>
        <source>Three picture clocks with their cities</source>
        <translation>三个图片时钟及其城市</translation>
    </message>
    <message>
        <source>12-hour clock</source>
        <translation>十二小时制</translation>
    </message>
    <message>
        <source>The time with AM or PM</source>
        <translation>时间，带上午下午</translation>
    </message>
    <message>
        <source>One line</source>
        <translation>单行</translation>
    </message>
    <message>
        <source>Everything on one line, for long narrow walls</source>
        <translation>全部在一行，适合狭长的墙</translation>
    </message>
</context>
<context>
    <name>ClockStudio::TextEditor</name>
    <message>
        <source>mixed</source>
        <translation>多个文本</translation>
    </message>
</context>
<context>
    <name>ClockStudio::TextFault</name>
    <message>
        <source>A program must not have a document type declaration.</source>
        <translation>节目没有文档类型声明。</translation>
    </message>
    <message>
        <source>This is not a program.</source>
        <translation>这不是节目。</translation>
    </message>
    <message>
        <source>The text has a character that the file&apos;s encoding cannot represent.</source>
        <translation>文件的编码缺少此文本中的一个字符。</translation>
    </message>
    <message>
        <source>The text is too large for a program.</source>
        <translation>此文本对节目来说太长。</translation>
    </message>
</context>
<context>
    <name>ClockStudio::TimeBar</name>
    <message>
        <source>Daylight saving</source>
        <translation>夏令时</translation>
    </message>
    <message>
        <source>Midnight</source>
        <translation>午夜</translation>
    </message>
    <message>
        <source>New month</source>
        <translation>新的月份</translation>
    </message>
    <message>
        <source>New year</source>
        <translation>新年</translation>
    </message>
    <message>
        <source>New lunar month</source>
        <translation>新的农历月</translation>
    </message>
    <message>
        <source>Now</source>
        <translation>现在</translation>
    </message>
    <message>
        <source>Show the current time</source>
        <translation>显示当前时间</translation>
    </message>
    <message>
        <source>Next change</source>
        <translation>下一次变化</translation>
    </message>
    <message>
        <source>Jump to just before the next change</source>
        <translation>转到下一次变化前片刻</translation>
    </message>
    <message>
        <source>Date and time that the wall shows</source>
        <translation>墙显示的日期和时间</translation>
    </message>
    <message>
        <source>Time of day</source>
        <translation>一天中的时间</translation>
    </message>
    <message>
        <source>Drag through the hours of the day</source>
        <translation>拖动浏览一天的时间</translation>
    </message>
    <message>
        <source>Playback speed</source>
        <translation>播放速度</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>暂停</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>播放</translation>
    </message>
    <message>
        <source>Pause the time</source>
        <translation>停住时间</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>继续</translation>
    </message>
</context>
<context>
    <name>ClockStudio::ToolRun</name>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>%1 cannot be started. Is it installed?</source>
        <translation>无法启动 %1。是否已安装？</translation>
    </message>
    <message>
        <source>%1 exited with code %2.</source>
        <translation>%1 以代码 %2 结束。</translation>
    </message>
</context>
<context>
    <name>ClockStudio::WallEditor</name>
    <message>
        <source>Move</source>
        <translation>移动</translation>
    </message>
    <message>
        <source>Resize</source>
        <translation>改变大小</translation>
    </message>
    <message>
        <source>Align</source>
        <translation>对齐</translation>
    </message>
    <message>
        <source>Distribute</source>
        <translation>分布</translation>
    </message>
    <message>
        <source>Stack</source>
        <translation>排列</translation>
    </message>
    <message>
        <source>Bring to front</source>
        <translation>置于顶层</translation>
    </message>
    <message>
        <source>Send to back</source>
        <translation>置于底层</translation>
    </message>
    <message>
        <source>Add a clock</source>
        <translation>添加时钟</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>删除</translation>
    </message>
    <message>
        <source>Duplicate</source>
        <translation>创建副本</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>粘贴</translation>
    </message>
    <message>
        <source>Resize the wall</source>
        <translation>墙的大小</translation>
    </message>
</context>
<context>
    <name>ClockStudio::WallMouse</name>
    <message>
        <source>Move</source>
        <translation>移动</translation>
    </message>
    <message>
        <source>Resize</source>
        <translation>改变大小</translation>
    </message>
</context>
<context>
    <name>ClockStudio::WallStatus</name>
    <message>
        <source>The wall is playing this program.</source>
        <translation>屏幕正在播放此节目。</translation>
    </message>
    <message>
        <source>The wall is playing something else.</source>
        <translation>屏幕正在播放其他内容。</translation>
    </message>
    <message>
        <source>The wall shows the notice %1 instead of a program.</source>
        <translation>屏幕显示提示 %1，而不是节目。</translation>
    </message>
    <message>
        <source>The wall&apos;s player has not been heard from since %1.</source>
        <translation>自 %1 起没有屏幕播放器的消息。</translation>
    </message>
    <message>
        <source>The wall&apos;s status cannot be read.</source>
        <translation>无法读取屏幕的状态。</translation>
    </message>
</context>
<context>
    <name>ClockStudio::WallTarget</name>
    <message>
        <source>The wall needs a name.</source>
        <translation>墙需要一个名称。</translation>
    </message>
    <message>
        <source>Enter the host as operator@wall.example or operator@wall.example:22.</source>
        <translation>请将主机写作 operator@wall.example 或 operator@wall.example:22。</translation>
    </message>
    <message>
        <source>The folder must be an absolute path.</source>
        <translation>文件夹必须是绝对路径。</translation>
    </message>
    <message>
        <source>The status file must be an absolute path.</source>
        <translation>状态文件必须是绝对路径。</translation>
    </message>
</context>
<context>
    <name>ClockStudio::WallView</name>
    <message>
        <source>Wall</source>
        <translation>墙</translation>
    </message>
    <message>
        <source>The clocks of the program as shown on the wall. Tab selects the next one.</source>
        <translation>节目中的时钟，如墙上所示。Tab 选择下一个。</translation>
    </message>
    <message>
        <source>Choose a type of clock above, then drag a rectangle here</source>
        <translation>在上方选择时钟类型，然后在此画出位置</translation>
    </message>
    <message>
        <source>Clock %1 of %2</source>
        <translation>时钟 %1，共 %2 个</translation>
    </message>
    <message numerus="yes">
        <source>%n clock(s) selected</source>
        <translation>
            <numerusform>已选 %n 个时钟</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ClockStudio::ZoneDialog</name>
    <message>
        <source>Choose a city</source>
        <translation>选择城市</translation>
    </message>
    <message>
        <source>City, country or offset, such as Berlin or +05:30</source>
        <translation>城市、国家或偏移，例如 Berlin 或 +05:30</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>搜索</translation>
    </message>
    <message>
        <source>Cities</source>
        <translation>城市</translation>
    </message>
    <message>
        <source>Use this time zone</source>
        <translation>使用此时区</translation>
    </message>
</context>
<context>
    <name>ClockStudio::ZoneSection</name>
    <message>
        <source>Time zone</source>
        <translation>时区</translation>
    </message>
    <message>
        <source>City whose time is shown</source>
        <translation>显示其时间的城市</translation>
    </message>
    <message>
        <source>Choose the city whose time the clock shows</source>
        <translation>选择时钟显示哪个城市的时间</translation>
    </message>
    <message>
        <source>Adjustment</source>
        <translation>调整</translation>
    </message>
    <message>
        <source>ahead</source>
        <translation>提前</translation>
    </message>
    <message>
        <source>behind</source>
        <translation>滞后</translation>
    </message>
    <message>
        <source>Direction of the adjustment</source>
        <translation>调整的方向</translation>
    </message>
    <message>
        <source>City</source>
        <translation>城市</translation>
    </message>
    <message>
        <source>Adjust by</source>
        <translation>调整</translation>
    </message>
    <message>
        <source>Several zones</source>
        <translation>多个时区</translation>
    </message>
    <message>
        <source>No daylight saving.</source>
        <translation>没有夏令时。</translation>
    </message>
    <message>
        <source>Daylight saving is on, but its rules are invalid.</source>
        <translation>夏令时的规则不正确。</translation>
    </message>
    <message>
        <source>Daylight saving begins on %1.</source>
        <translation>夏令时于 %1 开始。</translation>
    </message>
    <message>
        <source>Daylight saving ends on %1.</source>
        <translation>夏令时于 %1 结束。</translation>
    </message>
    <message>
        <source>No known zone has these rules.</source>
        <translation>没有已知时区使用这些规则。</translation>
    </message>
    <message>
        <source>The rules hold for %1 until %2 at least.</source>
        <translation>这些规则对 %1 至少有效到 %2。</translation>
    </message>
    <message numerus="yes">
        <source>Daylight saving moves this zone&apos;s time by %n minute(s); a clock can only move by an hour.</source>
        <translation>
            <numerusform>此时区的夏令时调整 %n 分钟，而时钟只能调整一小时。</numerusform>
        </translation>
    </message>
    <message>
        <source>This zone&apos;s changes are not on the same weekday of a month every year, such as the last Sunday.</source>
        <translation>此时区的更改不是每年都在某月的同一个星期日序（如最后一个星期日）。</translation>
    </message>
    <message numerus="yes">
        <source>The clock will be wrong %n time(s) in the next ten years, first from %1 to %2.</source>
        <translation>
            <numerusform>未来十年内时钟将有 %n 次错误，首次从 %1 到 %2。</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ClockTool::FindingWords</name>
    <message>
        <source>left</source>
        <translation>左边</translation>
    </message>
    <message>
        <source>top</source>
        <translation>上边</translation>
    </message>
    <message>
        <source>right</source>
        <translation>右边</translation>
    </message>
    <message>
        <source>bottom</source>
        <translation>下边</translation>
    </message>
    <message>
        <source>1 pixel</source>
        <translation>1 像素</translation>
    </message>
    <message>
        <source>%1 pixels</source>
        <translation>%1 像素</translation>
    </message>
    <message>
        <source> as %1</source>
        <translation>（显示 %1 时）</translation>
    </message>
    <message>
        <source>and %1 more</source>
        <translation>另有 %1 个</translation>
    </message>
    <message>
        <source>the %1 are</source>
        <translation>%1</translation>
    </message>
    <message>
        <source>the %1 is</source>
        <translation>%1</translation>
    </message>
    <message>
        <source>; %1 points would fit</source>
        <translation>；%1 磅可完整显示</translation>
    </message>
    <message>
        <source>; no size of the %1 fits by itself</source>
        <translation>；只改%1的字号无法完整显示</translation>
    </message>
    <message>
        <source>; all sizes would fit if scaled by %1</source>
        <translation>；所有字号乘以 %1 可完整显示</translation>
    </message>
    <message>
        <source>%1 at the %2</source>
        <translation>%2 %1</translation>
    </message>
    <message>
        <source>%1 cut: %2%3; first at %4%5%6</source>
        <translation>%1被裁切：%2%3；首次在 %4%5%6</translation>
    </message>
    <message>
        <source>, completely hidden</source>
        <translation>，完全看不见</translation>
    </message>
    <message>
        <source>the images of the %1 are too small for the ink: %2 of %3 lost at the %4; first %5%6</source>
        <translation>%1的图像容不下笔画：%3 在%4缺少 %2；首次在 %5%6</translation>
    </message>
    <message>
        <source>; none at %1 points</source>
        <translation>；%1 磅时完整</translation>
    </message>
    <message>
        <source>the %1 overlap each other: %2</source>
        <translation>%1互相重叠：%2</translation>
    </message>
    <message>
        <source>%1 drawn over the %2: up to %3; first %4%5</source>
        <translation>%1画在%2上：最多 %3；首次在 %4%5</translation>
    </message>
    <message>
        <source>the colour of the %1 is the key colour %2, which the host makes transparent</source>
        <translation>%1的颜色是透明色 %2，因此看不见</translation>
    </message>
    <message>
        <source>the colour %1 of the %2 has a contrast of %3 against its background %4; 3 or more is easy to see</source>
        <translation>%2的颜色 %1 与背景 %4 的对比度为 %3；3 以上才容易看清</translation>
    </message>
    <message>
        <source>the %1 and the %2 are both %3: where they overlap they cannot be told apart</source>
        <translation>%1和%2都是 %3：重叠处无法区分</translation>
    </message>
    <message>
        <source>a dial with a radius of %1 pixels has no %2; they need at least %3</source>
        <translation>半径为 %1 像素的表盘没有%2；至少需要 %3</translation>
    </message>
    <message>
        <source>another family is used for them</source>
        <translation>改用其他字体显示</translation>
    </message>
    <message>
        <source>boxes appear for &quot;%1&quot;</source>
        <translation>“%1”显示为方框</translation>
    </message>
    <message>
        <source>no installed family has all of them</source>
        <translation>没有一种已安装的字体包含全部字符</translation>
    </message>
    <message>
        <source>families with all of them: %1</source>
        <translation>包含全部字符的字体：%1</translation>
    </message>
    <message>
        <source>the family &quot;%1&quot; of the %2 lacks &quot;%3&quot;: %4; %5</source>
        <translation>%2的字体“%1”缺少“%3”：%4；%5</translation>
    </message>
    <message>
        <source>%1 not drawn: at %2 points its image would be empty or too large</source>
        <translation>%1未显示：%2 磅时图像为空或过大</translation>
    </message>
    <message>
        <source>the area is off the screen</source>
        <translation>该区域在屏幕之外</translation>
    </message>
    <message>
        <source>the area extends beyond the screen: %1</source>
        <translation>该区域超出屏幕：%1</translation>
    </message>
    <message>
        <source>this clock is drawn over the clock in line %1</source>
        <translation>此时钟画在第 %1 行的时钟上</translation>
    </message>
    <message>
        <source>%1 drawn over the %2 of the clock in line %3</source>
        <translation>%1画在第 %3 行时钟的%2上</translation>
    </message>
    <message>
        <source>%1: %2; first on the day starting at %3</source>
        <translation>%1：%2；首次在始于 %3 的一天</translation>
    </message>
    <message>
        <source>the images of its texts have %1 megapixels, which a small device draws slowly; accepted: at most %2, with smaller font sizes or a shorter title</source>
        <translation>其文字图像有 %1 百万像素，小型设备绘制较慢；请缩小字号或缩短标签，使其不超过 %2</translation>
    </message>
    <message>
        <source>cannot read %1 in %2, so the clock is drawn without; the pictures come with the player</source>
        <translation>无法读取 %2 中的 %1，时钟将缺少这些图片；图片随播放器提供</translation>
    </message>
    <message>
        <source>; &quot;clock_tool zone --refresh&quot; updates them</source>
        <translation>；用“clock_tool zone --refresh”更新</translation>
    </message>
    <message>
        <source> from then on</source>
        <translation>（自该时起）</translation>
    </message>
    <message>
        <source>is not an installed font; &quot;%1&quot; is used instead%2</source>
        <translation>不是已安装的字体；将使用“%1”代替%2</translation>
    </message>
    <message>
        <source>; accepted: a family that &quot;fc-list : family&quot; lists</source>
        <translation>；可用“fc-list : family”列出的字体</translation>
    </message>
    <message>
        <source>the clock has no time zone and shows the player&apos;s, which is UTC; accepted: for example timezone=&quot;+01:00&quot;</source>
        <translation>时钟没有时区，将显示播放器的时区 (UTC)；请选择城市</translation>
    </message>
    <message>
        <source>the clock has rules for daylight saving that are not used: UseDaylightSavingTime is %1; accepted: 1, or no rules</source>
        <translation>时钟有夏令时规则但未使用：UseDaylightSavingTime 为 %1；应为 1，或不设规则</translation>
    </message>
    <message>
        <source>all rows of this clock are hidden; accepted: display=&quot;true&quot; for one of them</source>
        <translation>此时钟的所有行都被隐藏；请至少显示一行</translation>
    </message>
    <message>
        <source>the minus of date type 8 is missing from an exported program</source>
        <translation>导出的程序缺少日期格式 8 的减号</translation>
    </message>
    <message>
        <source>the digits of %1 are not legible at %2 points: %3%4</source>
        <translation>%1 的数字在 %2 磅时难以辨认：%3%4</translation>
    </message>
    <message>
        <source>the default font</source>
        <translation>默认字体</translation>
    </message>
    <message>
        <source>; accepted: %1</source>
        <translation>；可用 %1</translation>
    </message>
</context>
<context>
    <name>ClockTool::RuleNote</name>
    <message>
        <source>these rules give the time of %1 until %2</source>
        <translation>这些规则在 %2 年之前与 %1 的时间一致</translation>
    </message>
    <message>
        <source>no known zone uses these rules</source>
        <translation>没有已知时区使用这些规则</translation>
    </message>
    <message>
        <source>daylight saving ends an hour late for %2: the end is in standard time, an hour before the published one; accepted: %1</source>
        <translation>对 %2 而言夏令时晚一小时结束：结束时间按标准时间填写，比公布的早一小时；应为 %1</translation>
    </message>
</context>
<context>
    <name>ClockZones::Validity</name>
    <message>
        <source>the daylight-saving rules are those of %2 only until %1</source>
        <translation>夏令时规则只在 %1 之前符合 %2</translation>
    </message>
    <message>
        <source>the daylight-saving rules are those of %2 until %1, where the system&apos;s zone data end</source>
        <translation>夏令时规则在 %1 之前符合 %2，系统的时区数据到此为止</translation>
    </message>
    <message>
        <source>the lunar date is wrong from %1 on</source>
        <translation>农历从 %1 起有误</translation>
    </message>
    <message>
        <source>the lunar date is missing from %1 on</source>
        <translation>农历从 %1 起缺失</translation>
    </message>
    <message>
        <source>the Persian date is wrong from %1 on</source>
        <translation>波斯历日期从 %1 起有误</translation>
    </message>
</context>
<context>
    <name>QPlatformTheme</name>
    <message>
        <source>OK</source>
        <translation>确定</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>保存</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>丢弃</translation>
    </message>
</context>
</TS>
