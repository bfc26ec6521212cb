<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fa">
<context>
    <name>ClockFit::Parts</name>
    <message>
        <source>title</source>
        <translation>برچسب</translation>
    </message>
    <message>
        <source>date</source>
        <translation>تاریخ</translation>
    </message>
    <message>
        <source>weekday</source>
        <translation>روز هفته</translation>
    </message>
    <message>
        <source>time</source>
        <translation>زمان</translation>
    </message>
    <message>
        <source>lunar date</source>
        <translation>تاریخ قمری</translation>
    </message>
    <message>
        <source>AM/PM badge</source>
        <translation>نشان صبح/عصر</translation>
    </message>
    <message>
        <source>numerals</source>
        <translation>عددهای ساعت</translation>
    </message>
    <message>
        <source>hour marks</source>
        <translation>نشان‌های ساعت</translation>
    </message>
    <message>
        <source>minute marks</source>
        <translation>نشان‌های دقیقه</translation>
    </message>
    <message>
        <source>hour hand</source>
        <translation>ساعت‌شمار</translation>
    </message>
    <message>
        <source>minute hand</source>
        <translation>دقیقه‌شمار</translation>
    </message>
    <message>
        <source>second hand</source>
        <translation>ثانیه‌شمار</translation>
    </message>
</context>
<context>
    <name>ClockStudio::Attributes</name>
    <message>
        <source>Kind of clock</source>
        <translation>نوع ساعت</translation>
    </message>
    <message>
        <source>Style</source>
        <translation>سبک</translation>
    </message>
    <message>
        <source>Hour hand colour</source>
        <translation>رنگ ساعت‌شمار</translation>
    </message>
    <message>
        <source>Minute hand colour</source>
        <translation>رنگ دقیقه‌شمار</translation>
    </message>
    <message>
        <source>Second hand colour</source>
        <translation>رنگ ثانیه‌شمار</translation>
    </message>
    <message>
        <source>Hour mark colour</source>
        <translation>رنگ نشان ساعت</translation>
    </message>
    <message>
        <source>Minute mark colour</source>
        <translation>رنگ نشان دقیقه</translation>
    </message>
    <message>
        <source>Hour marks</source>
        <translation>نشان‌های ساعت</translation>
    </message>
    <message>
        <source>Minute marks</source>
        <translation>نشان‌های دقیقه</translation>
    </message>
    <message>
        <source>Second hand</source>
        <translation>ثانیه‌شمار</translation>
    </message>
    <message>
        <source>Minute hand</source>
        <translation>دقیقه‌شمار</translation>
    </message>
    <message>
        <source>Hour hand</source>
        <translation>ساعت‌شمار</translation>
    </message>
    <message>
        <source>Numeral font</source>
        <translation>قلم اعداد</translation>
    </message>
    <message>
        <source>Numeral size</source>
        <translation>اندازهٔ اعداد</translation>
    </message>
    <message>
        <source>Show the top text</source>
        <translation>نمایش برچسب</translation>
    </message>
    <message>
        <source>Show the date</source>
        <translation>نمایش تاریخ</translation>
    </message>
    <message>
        <source>Show the weekday</source>
        <translation>نمایش روز هفته</translation>
    </message>
    <message>
        <source>Show the time</source>
        <translation>نمایش زمان</translation>
    </message>
    <message>
        <source>Show the lunar date</source>
        <translation>نمایش تاریخ قمری</translation>
    </message>
    <message>
        <source>Show AM/PM</source>
        <translation>نمایش ق.ظ/ب.ظ</translation>
    </message>
    <message>
        <source>AM/PM font</source>
        <translation>قلم ق.ظ/ب.ظ</translation>
    </message>
    <message>
        <source>AM/PM size</source>
        <translation>اندازهٔ ق.ظ/ب.ظ</translation>
    </message>
    <message>
        <source>AM/PM colour</source>
        <translation>رنگ ق.ظ/ب.ظ</translation>
    </message>
    <message>
        <source>Top text</source>
        <translation>برچسب</translation>
    </message>
    <message>
        <source>Top text font</source>
        <translation>قلم برچسب</translation>
    </message>
    <message>
        <source>Top text size</source>
        <translation>اندازهٔ برچسب</translation>
    </message>
    <message>
        <source>Top text colour</source>
        <translation>رنگ برچسب</translation>
    </message>
    <message>
        <source>Date format</source>
        <translation>قالب تاریخ</translation>
    </message>
    <message>
        <source>Date font</source>
        <translation>قلم تاریخ</translation>
    </message>
    <message>
        <source>Date size</source>
        <translation>اندازهٔ تاریخ</translation>
    </message>
    <message>
        <source>Date colour</source>
        <translation>رنگ تاریخ</translation>
    </message>
    <message>
        <source>Weekday font</source>
        <translation>قلم روز هفته</translation>
    </message>
    <message>
        <source>Weekday size</source>
        <translation>اندازهٔ روز هفته</translation>
    </message>
    <message>
        <source>Weekday colour</source>
        <translation>رنگ روز هفته</translation>
    </message>
    <message>
        <source>Lunar date font</source>
        <translation>قلم تاریخ قمری</translation>
    </message>
    <message>
        <source>Lunar date size</source>
        <translation>اندازهٔ تاریخ قمری</translation>
    </message>
    <message>
        <source>Lunar date colour</source>
        <translation>رنگ تاریخ قمری</translation>
    </message>
    <message>
        <source>Time format</source>
        <translation>قالب زمان</translation>
    </message>
    <message>
        <source>Time font</source>
        <translation>قلم زمان</translation>
    </message>
    <message>
        <source>Time size</source>
        <translation>اندازهٔ زمان</translation>
    </message>
    <message>
        <source>Time colour</source>
        <translation>رنگ زمان</translation>
    </message>
    <message>
        <source>analog</source>
        <translation>عقربه‌ای</translation>
    </message>
    <message>
        <source>digital</source>
        <translation>رقمی</translation>
    </message>
    <message>
        <source>picture</source>
        <translation>تصویری</translation>
    </message>
    <message>
        <source>ahead</source>
        <translation>جلو</translation>
    </message>
    <message>
        <source>behind</source>
        <translation>عقب</translation>
    </message>
    <message>
        <source>lines</source>
        <translation>خط</translation>
    </message>
    <message>
        <source>dots</source>
        <translation>نقطه</translation>
    </message>
    <message>
        <source>squares</source>
        <translation>مربع</translation>
    </message>
    <message>
        <source>squares and twelve numerals</source>
        <translation>مربع و دوازده عدد</translation>
    </message>
    <message>
        <source>squares and four numerals</source>
        <translation>مربع و چهار عدد</translation>
    </message>
    <message>
        <source>bar</source>
        <translation>میله</translation>
    </message>
    <message>
        <source>arrow with a ring</source>
        <translation>پیکان با حلقه</translation>
    </message>
    <message>
        <source>year/month/day</source>
        <translation>سال/ماه/روز</translation>
    </message>
    <message>
        <source>month/day/year</source>
        <translation>ماه/روز/سال</translation>
    </message>
    <message>
        <source>day/month/year</source>
        <translation>روز/ماه/سال</translation>
    </message>
    <message>
        <source>month name, day, year</source>
        <translation>نام ماه، روز، سال</translation>
    </message>
    <message>
        <source>day, month name, year</source>
        <translation>روز، نام ماه، سال</translation>
    </message>
    <message>
        <source>year, month and day with labels</source>
        <translation>سال، ماه و روز با برچسب</translation>
    </message>
    <message>
        <source>month and day with labels</source>
        <translation>ماه و روز با برچسب</translation>
    </message>
    <message>
        <source>Persian year/month/day</source>
        <translation>سال/ماه/روز ایرانی</translation>
    </message>
    <message>
        <source>year-month-day</source>
        <translation>سال-ماه-روز</translation>
    </message>
    <message>
        <source>hours:minutes:seconds</source>
        <translation>ساعت:دقیقه:ثانیه</translation>
    </message>
    <message>
        <source>hours:minutes</source>
        <translation>ساعت:دقیقه</translation>
    </message>
    <message>
        <source>hours, minutes and seconds with labels</source>
        <translation>ساعت، دقیقه و ثانیه با برچسب</translation>
    </message>
    <message>
        <source>hours and minutes with labels</source>
        <translation>ساعت و دقیقه با برچسب</translation>
    </message>
    <message>
        <source>hours:minutes without a leading zero</source>
        <translation>ساعت:دقیقه بدون صفر آغازین</translation>
    </message>
    <message>
        <source>language of the clocks</source>
        <translation>زبان ساعت‌ها</translation>
    </message>
    <message>
        <source>English</source>
        <translation>انگلیسی</translation>
    </message>
    <message>
        <source>short English</source>
        <translation>انگلیسی کوتاه</translation>
    </message>
    <message>
        <source>Persian</source>
        <translation>فارسی</translation>
    </message>
    <message>
        <source>twenty-four hours</source>
        <translation>بیست‌وچهار</translation>
    </message>
    <message>
        <source>twelve hours</source>
        <translation>دوازده</translation>
    </message>
    <message>
        <source>Daylight saving</source>
        <translation>ساعت تابستانی</translation>
    </message>
    <message>
        <source>Direction of the adjustment</source>
        <translation>جهت تنظیم</translation>
    </message>
    <message>
        <source>Adjustment</source>
        <translation>تنظیم</translation>
    </message>
    <message>
        <source>Gap</source>
        <translation>فاصله</translation>
    </message>
    <message>
        <source>Row gap</source>
        <translation>فاصلهٔ ردیف‌ها</translation>
    </message>
    <message>
        <source>Hours</source>
        <translation>ساعت</translation>
    </message>
    <message>
        <source>Layout</source>
        <translation>آرایش</translation>
    </message>
    <message>
        <source>Swap date and weekday</source>
        <translation>جابه‌جایی تاریخ و روز</translation>
    </message>
    <message>
        <source>Weekday names</source>
        <translation>نام روزها</translation>
    </message>
    <message>
        <source>rows</source>
        <translation>ردیف‌ها</translation>
    </message>
    <message>
        <source>one line</source>
        <translation>یک سطر</translation>
    </message>
    <message>
        <source>Colour of the AM/PM badge.</source>
        <translation>رنگ نشان صبح/عصر.</translation>
    </message>
    <message>
        <source>Size of the AM/PM badge in points.</source>
        <translation>اندازه نشان صبح/عصر به پوینت.</translation>
    </message>
    <message>
        <source>Font family of the AM/PM badge; empty is the default font.</source>
        <translation>خانواده قلم نشان صبح/عصر؛ خالی یعنی قلم پیش‌فرض.</translation>
    </message>
    <message>
        <source>Whether the AM/PM badge is shown.</source>
        <translation>آیا نشان صبح/عصر نشان داده می‌شود.</translation>
    </message>
    <message>
        <source>Colour of the date.</source>
        <translation>رنگ تاریخ.</translation>
    </message>
    <message>
        <source>Size of the date in points.</source>
        <translation>اندازه تاریخ به پوینت.</translation>
    </message>
    <message>
        <source>Font family of the date; empty is the default font.</source>
        <translation>خانواده قلم تاریخ؛ خالی یعنی قلم پیش‌فرض.</translation>
    </message>
    <message>
        <source>Whether the date is shown.</source>
        <translation>آیا تاریخ نشان داده می‌شود.</translation>
    </message>
    <message>
        <source>Colour of the hour hand.</source>
        <translation>رنگ عقربه ساعت.</translation>
    </message>
    <message>
        <source>Shape of the hour hand.</source>
        <translation>شکل عقربه ساعت.</translation>
    </message>
    <message>
        <source>Colour of the minute hand.</source>
        <translation>رنگ عقربه دقیقه.</translation>
    </message>
    <message>
        <source>Shape of the minute hand.</source>
        <translation>شکل عقربه دقیقه.</translation>
    </message>
    <message>
        <source>Shape of the second hand.</source>
        <translation>شکل عقربه ثانیه.</translation>
    </message>
    <message>
        <source>Colour of the hour marks and numerals.</source>
        <translation>رنگ نشان‌ها و عددهای ساعت.</translation>
    </message>
    <message>
        <source>Colour of the lunar date.</source>
        <translation>رنگ تاریخ قمری.</translation>
    </message>
    <message>
        <source>Size of the lunar date in points.</source>
        <translation>اندازه تاریخ قمری به پوینت.</translation>
    </message>
    <message>
        <source>Font family of the lunar date; empty is the default font.</source>
        <translation>خانواده قلم تاریخ قمری؛ خالی یعنی قلم پیش‌فرض.</translation>
    </message>
    <message>
        <source>Colour of the minute marks.</source>
        <translation>رنگ نشان‌های دقیقه.</translation>
    </message>
    <message>
        <source>Shape of the minute marks.</source>
        <translation>شکل نشان‌های دقیقه.</translation>
    </message>
    <message>
        <source>Colour of the second hand and of the cap in the centre.</source>
        <translation>رنگ عقربه ثانیه و درپوش میانی.</translation>
    </message>
    <message>
        <source>Colour of the time.</source>
        <translation>رنگ زمان.</translation>
    </message>
    <message>
        <source>Size of the time in points.</source>
        <translation>اندازه زمان به پوینت.</translation>
    </message>
    <message>
        <source>Font family of the time; empty is the default font.</source>
        <translation>خانواده قلم زمان؛ خالی یعنی قلم پیش‌فرض.</translation>
    </message>
    <message>
        <source>Whether the time is shown.</source>
        <translation>آیا زمان نشان داده می‌شود.</translation>
    </message>
    <message>
        <source>Colour of the top text.</source>
        <translation>رنگ متن بالا.</translation>
    </message>
    <message>
        <source>Size of the top text in points.</source>
        <translation>اندازه متن بالا به پوینت.</translation>
    </message>
    <message>
        <source>Font family of the top text; empty is the default font.</source>
        <translation>خانواده قلم متن بالا؛ خالی یعنی قلم پیش‌فرض.</translation>
    </message>
    <message>
        <source>Whether the top text is shown.</source>
        <translation>آیا متن بالا نشان داده می‌شود.</translation>
    </message>
    <message>
        <source>Colour of the weekday.</source>
        <translation>رنگ روز هفته.</translation>
    </message>
    <message>
        <source>Size of the weekday in points.</source>
        <translation>اندازه روز هفته به پوینت.</translation>
    </message>
    <message>
        <source>Font family of the weekday; empty is the default font.</source>
        <translation>خانواده قلم روز هفته؛ خالی یعنی قلم پیش‌فرض.</translation>
    </message>
    <message>
        <source>Whether the weekday is shown.</source>
        <translation>آیا روز هفته نشان داده می‌شود.</translation>
    </message>
    <message>
        <source>Size of the hour numerals in points.</source>
        <translation>اندازه عددهای ساعت به پوینت.</translation>
    </message>
    <message>
        <source>Font family of the hour numerals; empty is the default font.</source>
        <translation>خانواده قلم عددهای ساعت؛ خالی یعنی قلم پیش‌فرض.</translation>
    </message>
    <message>
        <source>Whether the Chinese lunar date is shown.</source>
        <translation>آیا تاریخ قمری چینی نشان داده می‌شود.</translation>
    </message>
    <message>
        <source>Gap between the rows, or between the texts on one line, in pixels; may be negative.</source>
        <translation>فاصله سطرها، یا متن‌های یک سطر، به پیکسل؛ می‌تواند منفی باشد.</translation>
    </message>
    <message>
        <source>Gap between the text rows in pixels; may be negative.</source>
        <translation>فاصله سطرهای متن به پیکسل؛ می‌تواند منفی باشد.</translation>
    </message>
    <message>
        <source>Language and length of the weekday names.</source>
        <translation>زبان و کوتاهی نام روزهای هفته.</translation>
    </message>
    <message>
        <source>Order and form of the parts of the date.</source>
        <translation>ترتیب و شکل بخش‌های تاریخ.</translation>
    </message>
    <message>
        <source>Picture style of the clock.</source>
        <translation>سبک تصویرهای ساعت.</translation>
    </message>
    <message>
        <source>Shape of the hour marks, and which numerals are shown.</source>
        <translation>شکل نشان‌های ساعت، و اینکه کدام عددها نشان داده شوند.</translation>
    </message>
    <message>
        <source>The fixed text in the first position.</source>
        <translation>متن ثابت در جای نخست.</translation>
    </message>
    <message>
        <source>The fixed text in the upper half of the dial.</source>
        <translation>متن ثابت در نیمه بالای صفحه.</translation>
    </message>
    <message>
        <source>Whether each text has a row of its own or all are on one line.</source>
        <translation>آیا هر متن سطری جدا دارد یا همه در یک سطرند.</translation>
    </message>
    <message>
        <source>Whether hours are shown in 24-hour or 12-hour form with an AM/PM mark.</source>
        <translation>ساعت‌ها ۲۴ساعته نشان داده شوند یا ۱۲ساعته با نشان صبح/عصر.</translation>
    </message>
    <message>
        <source>Whether the AM/PM mark of the 12-hour form is shown; shown if the key is absent.</source>
        <translation>آیا نشان صبح/عصر در شکل ۱۲ساعته نشان داده شود؛ بدون این کلید نشان داده می‌شود.</translation>
    </message>
    <message>
        <source>Whether the clock is analog, digital or made of pictures.</source>
        <translation>آیا ساعت عقربه‌ای، دیجیتال یا تصویری است.</translation>
    </message>
    <message>
        <source>Whether the date and the weekday swap places.</source>
        <translation>آیا تاریخ و روز هفته جابه‌جا می‌شوند.</translation>
    </message>
    <message>
        <source>Which parts of the time are shown, and in which form.</source>
        <translation>کدام بخش‌های زمان و به چه شکل نشان داده شوند.</translation>
    </message>
    <message>
        <source>railway</source>
        <translation>راه‌آهن</translation>
    </message>
    <message>
        <source>roman</source>
        <translation>رومی</translation>
    </message>
    <message>
        <source>minimal</source>
        <translation>ساده</translation>
    </message>
    <message>
        <source>Arabic-Indic</source>
        <translation>عددهای عربی</translation>
    </message>
    <message>
        <source>classic</source>
        <translation>کلاسیک</translation>
    </message>
    <message>
        <source>night</source>
        <translation>شب</translation>
    </message>
    <message>
        <source>ornament</source>
        <translation>آراسته</translation>
    </message>
    <message>
        <source>factory</source>
        <translation>کارخانه</translation>
    </message>
    <message>
        <source>balloons</source>
        <translation>بادکنک</translation>
    </message>
    <message>
        <source>diner</source>
        <translation>رستوران</translation>
    </message>
    <message>
        <source>Identity</source>
        <translation>شناسه</translation>
    </message>
    <message>
        <source>Number of the clock in the names of its glyph files; a new clock gets a random one from 1000 to 1999.</source>
        <translation>شمارهٔ ساعت در نام پرونده‌های نویسه‌اش؛ ساعت نو شماره‌ای تصادفی از ۱۰۰۰ تا ۱۹۹۹ می‌گیرد.</translation>
    </message>
    <message>
        <source>Whether the clock runs ahead of or behind its zone by the adjustment.</source>
        <translation>ساعت به اندازهٔ تنظیم از منطقهٔ خود جلوتر است یا عقب‌تر.</translation>
    </message>
    <message>
        <source>How far the clock differs from its zone&apos;s time: hours, &quot;A&quot;, minutes, &quot;B&quot;, seconds, two digits each.</source>
        <translation>اختلاف ساعت با منطقهٔ خود: ساعت، «A»، دقیقه، «B»، ثانیه، هر یک دو رقم.</translation>
    </message>
    <message>
        <source>Time zone</source>
        <translation>منطقهٔ زمانی</translation>
    </message>
    <message>
        <source>Offset from UTC: a sign, then &quot;hh:mm&quot; or &quot;h:mm&quot;. The first character always counts as the sign.</source>
        <translation>اختلاف با UTC: یک علامت و سپس «hh:mm» یا «h:mm». نویسهٔ نخست همیشه علامت شمرده می‌شود.</translation>
    </message>
    <message>
        <source>Whether the clock is one hour ahead between the start and the end of daylight saving.</source>
        <translation>آیا ساعت از آغاز تا پایان ساعت تابستانی یک ساعت جلوتر است.</translation>
    </message>
    <message>
        <source>Start of daylight saving</source>
        <translation>آغاز ساعت تابستانی</translation>
    </message>
    <message>
        <source>When daylight saving starts, in standard time: month.occurrence.weekday.hh:mm:ss.</source>
        <translation>زمان آغاز ساعت تابستانی، به وقت استاندارد: ماه.چندمین.روز هفته.hh:mm:ss.</translation>
    </message>
    <message>
        <source>End of daylight saving</source>
        <translation>پایان ساعت تابستانی</translation>
    </message>
    <message>
        <source>When daylight saving ends, in standard time: month.occurrence.weekday.hh:mm:ss.</source>
        <translation>زمان پایان ساعت تابستانی، به وقت استاندارد: ماه.چندمین.روز هفته.hh:mm:ss.</translation>
    </message>
    <message>
        <source>Daylight-saving choice</source>
        <translation>گزینهٔ ساعت تابستانی</translation>
    </message>
    <message>
        <source>The rule chosen in the editor&apos;s list; stored only.</source>
        <translation>قاعده‌ای که در فهرست ویرایشگر برگزیده شده؛ تنها ذخیره می‌شود.</translation>
    </message>
    <message>
        <source>Zone choice</source>
        <translation>گزینهٔ منطقه</translation>
    </message>
    <message>
        <source>The zone chosen in the editor&apos;s list; stored only.</source>
        <translation>منطقه‌ای که در فهرست ویرایشگر برگزیده شده؛ تنها ذخیره می‌شود.</translation>
    </message>
    <message>
        <source>If present, the SDK export writes the node&apos;s GUID.</source>
        <translation>اگر باشد، خروجی SDK شناسهٔ GUID گره را می‌نویسد.</translation>
    </message>
</context>
<context>
    <name>ClockStudio::ColourButton</name>
    <message>
        <source>Other colour…</source>
        <translation>رنگ دیگر…</translation>
    </message>
    <message>
        <source>Colour</source>
        <translation>رنگ</translation>
    </message>
</context>
<context>
    <name>ClockStudio::FamilyBox</name>
    <message>
        <source>Default font</source>
        <translation>قلم پیش‌فرض</translation>
    </message>
    <message>
        <source>%1 (not installed)</source>
        <translation>%1 (نصب نیست)</translation>
    </message>
    <message>
        <source>%1 (missing %2)</source>
        <translation>%1 (بدون %2)</translation>
    </message>
</context>
<context>
    <name>ClockStudio::FindingsPanel</name>
    <message>
        <source>Fix</source>
        <translation>اصلاح</translation>
    </message>
    <message>
        <source>No findings.</source>
        <translation>چیزی پیدا نشد.</translation>
    </message>
    <message>
        <source>Findings</source>
        <translation>یافته‌ها</translation>
    </message>
    <message>
        <source>Apply the suggested fix</source>
        <translation>پیشنهاد یافته را بنویس</translation>
    </message>
    <message>
        <source>Clock %1: </source>
        <translation>ساعت %L1: </translation>
    </message>
    <message>
        <source>Line %1</source>
        <translation>سطر %L1</translation>
    </message>
    <message>
        <source>The text is not a valid program.</source>
        <translation>متن یک برنامهٔ معتبر نیست.</translation>
    </message>
    <message>
        <source>The days of a year are not checked: %1</source>
        <translation>روزهای یک سال بررسی نشده‌اند: %1</translation>
    </message>
</context>
<context>
    <name>ClockStudio::FitCheck</name>
    <message>
        <source>%1 is missing or cannot be started.</source>
        <translation>%1 موجود نیست یا اجرا نمی‌شود.</translation>
    </message>
    <message>
        <source>%1 ended with code %2.</source>
        <translation>%1 با کد %2 پایان یافت.</translation>
    </message>
    <message>
        <source>it takes longer than two minutes.</source>
        <translation>بیش از دو دقیقه طول می‌کشد.</translation>
    </message>
</context>
<context>
    <name>ClockStudio::Gallery</name>
    <message>
        <source>Back to the wall</source>
        <translation>بازگشت به دیوار</translation>
    </message>
    <message>
        <source>Empty wall</source>
        <translation>دیوار خالی</translation>
    </message>
    <message>
        <source>Open a file…</source>
        <translation>باز کردن پرونده…</translation>
    </message>
    <message>
        <source>Recent</source>
        <translation>اخیر</translation>
    </message>
    <message>
        <source>Recent files</source>
        <translation>پرونده‌های اخیر</translation>
    </message>
    <message>
        <source>Templates</source>
        <translation>الگوها</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>آغاز</translation>
    </message>
</context>
<context>
    <name>ClockStudio::KeysDialog</name>
    <message>
        <source>Keyboard shortcuts</source>
        <translation>میان‌برهای صفحه‌کلید</translation>
    </message>
    <message>
        <source>Move by one pixel</source>
        <translation>جابه‌جایی یک پیکسل</translation>
    </message>
    <message>
        <source>Arrow keys</source>
        <translation>کلیدهای جهت</translation>
    </message>
    <message>
        <source>Move by eight pixels</source>
        <translation>جابه‌جایی هشت پیکسل</translation>
    </message>
    <message>
        <source>Shift + arrow keys</source>
        <translation>Shift + کلیدهای جهت</translation>
    </message>
    <message>
        <source>Resize by one pixel</source>
        <translation>تغییر اندازه یک پیکسل</translation>
    </message>
    <message>
        <source>Alt + arrow keys</source>
        <translation>Alt + کلیدهای جهت</translation>
    </message>
    <message>
        <source>Select the next clock</source>
        <translation>انتخاب ساعت بعدی</translation>
    </message>
    <message>
        <source>Tab</source>
        <translation>Tab</translation>
    </message>
    <message>
        <source>Select several clocks</source>
        <translation>انتخاب چند ساعت</translation>
    </message>
    <message>
        <source>Shift + click, or drag around them</source>
        <translation>Shift + کلیک، یا کشیدن دور آن‌ها</translation>
    </message>
    <message>
        <source>Drag without snapping</source>
        <translation>کشیدن بدون چسبیدن</translation>
    </message>
    <message>
        <source>Hold Alt</source>
        <translation>نگه داشتن Alt</translation>
    </message>
    <message>
        <source>Cancel a drag, clear the selection</source>
        <translation>لغو کشیدن، بدون انتخاب</translation>
    </message>
    <message>
        <source>Esc</source>
        <translation>Esc</translation>
    </message>
    <message>
        <source>Zoom at the pointer</source>
        <translation>بزرگ‌نمایی در محل نشانگر</translation>
    </message>
    <message>
        <source>Ctrl + wheel</source>
        <translation>Ctrl + چرخ</translation>
    </message>
</context>
<context>
    <name>ClockStudio::MainWindow</name>
    <message>
        <source>Picture, plain pixels (*.png)</source>
        <translation>تصویر، پیکسل ساده (*.png)</translation>
    </message>
    <message>
        <source>Picture, as LEDs (*.png)</source>
        <translation>تصویر، به شکل LED (*.png)</translation>
    </message>
    <message>
        <source>Picture of the wall</source>
        <translation>تصویر دیوار</translation>
    </message>
    <message>
        <source>wall.png</source>
        <translation>wall.png</translation>
    </message>
    <message>
        <source>Approval sheet</source>
        <translation>برگهٔ تأیید</translation>
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
        <translation>پیش‌نمایش متحرک</translation>
    </message>
    <message>
        <source>wall.gif</source>
        <translation>wall.gif</translation>
    </message>
    <message>
        <source>Animated picture (*.gif)</source>
        <translation>تصویر متحرک (*.gif)</translation>
    </message>
    <message>
        <source>Making the preview…</source>
        <translation>در حال ساخت پیش‌نمایش…</translation>
    </message>
    <message>
        <source>The preview could not be made: %1</source>
        <translation>پیش‌نمایش ساخته نشد: %1</translation>
    </message>
    <message>
        <source>Saved %1</source>
        <translation>%1 ذخیره شد</translation>
    </message>
    <message>
        <source>Choose an empty folder, or one with an earlier export</source>
        <translation>پوشهٔ خالی، یا پوشهٔ خروجی پیشین</translation>
    </message>
    <message>
        <source>Generating the glyph files…</source>
        <translation>در حال ساخت پرونده‌های نویسه…</translation>
    </message>
    <message>
        <source>Exported to %1</source>
        <translation>خروجی در %1</translation>
    </message>
    <message>
        <source>Import SDK XML</source>
        <translation>ورود SDK XML</translation>
    </message>
    <message>
        <source>SDK XML (*.xml);;All files (*)</source>
        <translation>SDK XML (*.xml);;همهٔ پرونده‌ها (*)</translation>
    </message>
    <message>
        <source>Importing…</source>
        <translation>در حال ورود…</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;پرونده</translation>
    </message>
    <message>
        <source>&amp;New…</source>
        <translation>&amp;نو…</translation>
    </message>
    <message>
        <source>&amp;Open…</source>
        <translation>&amp;باز کردن…</translation>
    </message>
    <message>
        <source>&amp;Import SDK XML…</source>
        <translation>&amp;ورود SDK XML…</translation>
    </message>
    <message>
        <source>Open &amp;recent</source>
        <translation>باز کردن &amp;اخیر</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;ذخیره</translation>
    </message>
    <message>
        <source>Save &amp;as…</source>
        <translation>ذخیره با نا&amp;م…</translation>
    </message>
    <message>
        <source>Ctrl+Shift+S</source>
        <translation>Ctrl+Shift+S</translation>
    </message>
    <message>
        <source>&amp;Picture of the wall…</source>
        <translation>&amp;تصویر دیوار…</translation>
    </message>
    <message>
        <source>Ctrl+Shift+P</source>
        <translation>Ctrl+Shift+P</translation>
    </message>
    <message>
        <source>Animated pre&amp;view…</source>
        <translation>&amp;پیش‌نمایش متحرک…</translation>
    </message>
    <message>
        <source>Approval s&amp;heet…</source>
        <translation>ب&amp;رگهٔ تأیید…</translation>
    </message>
    <message>
        <source>&amp;Export with glyph files…</source>
        <translation>&amp;خروجی با پرونده‌های نویسه…</translation>
    </message>
    <message>
        <source>Ctrl+E</source>
        <translation>Ctrl+E</translation>
    </message>
    <message>
        <source>Sen&amp;d to a wall…</source>
        <translation>ف&amp;رستادن به دیوار…</translation>
    </message>
    <message>
        <source>Ctrl+Return</source>
        <translation>Ctrl+Return</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;خروج</translation>
    </message>
    <message>
        <source>Ctrl+Q</source>
        <translation>Ctrl+Q</translation>
    </message>
    <message>
        <source>None yet</source>
        <translation>هنوز هیچ</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;ویرایش</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;واگرد</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;ازنو</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>&amp;برش</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;رونوشت</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>&amp;چسباندن</translation>
    </message>
    <message>
        <source>There is no clock on the clipboard</source>
        <translation>در بریده‌دان ساعتی نیست</translation>
    </message>
    <message>
        <source>&amp;Duplicate</source>
        <translation>&amp;تکثیر</translation>
    </message>
    <message>
        <source>Ctrl+D</source>
        <translation>Ctrl+D</translation>
    </message>
    <message>
        <source>De&amp;lete</source>
        <translation>&amp;حذف</translation>
    </message>
    <message>
        <source>Select &amp;all clocks</source>
        <translation>انتخاب &amp;همهٔ ساعت‌ها</translation>
    </message>
    <message>
        <source>&amp;Clock</source>
        <translation>&amp;ساعت</translation>
    </message>
    <message>
        <source>Bring to &amp;front</source>
        <translation>آوردن به &amp;جلو</translation>
    </message>
    <message>
        <source>Ctrl+]</source>
        <translation>Ctrl+]</translation>
    </message>
    <message>
        <source>Send to &amp;back</source>
        <translation>بردن به &amp;پشت</translation>
    </message>
    <message>
        <source>Ctrl+[</source>
        <translation>Ctrl+[</translation>
    </message>
    <message>
        <source>Align &amp;left</source>
        <translation>تراز &amp;چپ</translation>
    </message>
    <message>
        <source>Ctrl+Shift+L</source>
        <translation>Ctrl+Shift+L</translation>
    </message>
    <message>
        <source>Align &amp;centre</source>
        <translation>تراز &amp;میانهٔ افقی</translation>
    </message>
    <message>
        <source>Ctrl+Shift+C</source>
        <translation>Ctrl+Shift+C</translation>
    </message>
    <message>
        <source>Align &amp;right</source>
        <translation>تراز &amp;راست</translation>
    </message>
    <message>
        <source>Ctrl+Shift+R</source>
        <translation>Ctrl+Shift+R</translation>
    </message>
    <message>
        <source>Align &amp;top</source>
        <translation>تراز &amp;بالا</translation>
    </message>
    <message>
        <source>Ctrl+Shift+T</source>
        <translation>Ctrl+Shift+T</translation>
    </message>
    <message>
        <source>Align &amp;middle</source>
        <translation>تراز میانهٔ &amp;عمودی</translation>
    </message>
    <message>
        <source>Ctrl+Shift+M</source>
        <translation>Ctrl+Shift+M</translation>
    </message>
    <message>
        <source>Align b&amp;ottom</source>
        <translation>تراز &amp;پایین</translation>
    </message>
    <message>
        <source>Ctrl+Shift+B</source>
        <translation>Ctrl+Shift+B</translation>
    </message>
    <message>
        <source>Distribute &amp;horizontally</source>
        <translation>پخش &amp;افقی</translation>
    </message>
    <message>
        <source>Ctrl+Shift+H</source>
        <translation>Ctrl+Shift+H</translation>
    </message>
    <message>
        <source>Distribute &amp;vertically</source>
        <translation>پخش ع&amp;مودی</translation>
    </message>
    <message>
        <source>Ctrl+Shift+V</source>
        <translation>Ctrl+Shift+V</translation>
    </message>
    <message>
        <source>Stack in a ro&amp;w</source>
        <translation>چیدن در ر&amp;دیف</translation>
    </message>
    <message>
        <source>Ctrl+Shift+A</source>
        <translation>Ctrl+Shift+A</translation>
    </message>
    <message>
        <source>Stack in a col&amp;umn</source>
        <translation>چیدن در س&amp;تون</translation>
    </message>
    <message>
        <source>Ctrl+Shift+D</source>
        <translation>Ctrl+Shift+D</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;نما</translation>
    </message>
    <message>
        <source>Zoom &amp;in</source>
        <translation>&amp;بزرگ‌نمایی</translation>
    </message>
    <message>
        <source>Ctrl+=</source>
        <translation>Ctrl+=</translation>
    </message>
    <message>
        <source>Zoom &amp;out</source>
        <translation>&amp;کوچک‌نمایی</translation>
    </message>
    <message>
        <source>&amp;Fit to window</source>
        <translation>ا&amp;ندازهٔ پنجره</translation>
    </message>
    <message>
        <source>Ctrl+0</source>
        <translation>Ctrl+0</translation>
    </message>
    <message>
        <source>Show as LE&amp;Ds</source>
        <translation>نمایش به شکل LE&amp;D</translation>
    </message>
    <message>
        <source>Ctrl+L</source>
        <translation>Ctrl+L</translation>
    </message>
    <message>
        <source>&amp;Panel grid</source>
        <translation>شبکهٔ &amp;پنل‌ها</translation>
    </message>
    <message>
        <source>None</source>
        <translation>هیچ</translation>
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
        <translation>&amp;زبان ساعت‌ها</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;راهنما</translation>
    </message>
    <message>
        <source>&amp;Keyboard shortcuts</source>
        <translation>میان‌برهای &amp;صفحه‌کلید</translation>
    </message>
    <message>
        <source>F1</source>
        <translation>F1</translation>
    </message>
    <message>
        <source>&amp;About Clock Studio</source>
        <translation>&amp;دربارهٔ استودیوی ساعت</translation>
    </message>
    <message>
        <source>Digital clock</source>
        <translation>ساعت رقمی</translation>
    </message>
    <message>
        <source>D</source>
        <translation>D</translation>
    </message>
    <message>
        <source>Analog clock</source>
        <translation>ساعت عقربه‌ای</translation>
    </message>
    <message>
        <source>A</source>
        <translation>A</translation>
    </message>
    <message>
        <source>Picture clock</source>
        <translation>ساعت تصویری</translation>
    </message>
    <message>
        <source>P</source>
        <translation>P</translation>
    </message>
    <message>
        <source>Tools</source>
        <translation>ابزارها</translation>
    </message>
    <message>
        <source>%1: drag a rectangle on the wall (%2)</source>
        <translation>%1: جایش را روی دیوار بکشید (%2)</translation>
    </message>
    <message>
        <source>About Clock Studio</source>
        <translation>دربارهٔ استودیوی ساعت</translation>
    </message>
    <message>
        <source>%1 was deleted from disk. Your work is still open here.</source>
        <translation>%1 دیگر روی دیسک نیست. کار شما هنوز اینجاست.</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>ذخیره</translation>
    </message>
    <message>
        <source>Dismiss</source>
        <translation>بستن</translation>
    </message>
    <message>
        <source>Properties</source>
        <translation>ویژگی‌ها</translation>
    </message>
    <message>
        <source>Findings</source>
        <translation>یافته‌ها</translation>
    </message>
    <message>
        <source>Source</source>
        <translation>متن برنامه</translation>
    </message>
    <message>
        <source>Open a program</source>
        <translation>باز کردن برنامه</translation>
    </message>
    <message>
        <source>Programs (%1);;All files (*)</source>
        <translation>برنامه‌ها (%1);;همهٔ پرونده‌ها (*)</translation>
    </message>
    <message>
        <source>Saved</source>
        <translation>ذخیره شد</translation>
    </message>
    <message>
        <source>Save the program</source>
        <translation>ذخیرهٔ برنامه</translation>
    </message>
    <message>
        <source>wall.xml</source>
        <translation>wall.xml</translation>
    </message>
    <message>
        <source>Programs (%1)</source>
        <translation>برنامه‌ها (%1)</translation>
    </message>
    <message>
        <source>Unsaved work</source>
        <translation>کار ذخیره‌نشده</translation>
    </message>
    <message>
        <source>Save the changes to %1?</source>
        <translation>تغییرات %1 ذخیره شود؟</translation>
    </message>
    <message>
        <source>a new wall</source>
        <translation>دیوار تازه</translation>
    </message>
    <message>
        <source>The studio closed unexpectedly. Unsaved changes to %1 can be recovered.</source>
        <translation>استودیو ناگهان بسته شد. کار ذخیره‌نشدهٔ %1 نگه داشته شد.</translation>
    </message>
    <message>
        <source>Recover</source>
        <translation>بازیابی</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>دور انداختن</translation>
    </message>
    <message>
        <source>%1 was changed by another program.</source>
        <translation>%1 را برنامهٔ دیگری تغییر داد.</translation>
    </message>
    <message>
        <source>Reload</source>
        <translation>بار کردن دوباره</translation>
    </message>
    <message>
        <source>Keep mine</source>
        <translation>نگه داشتن کار من</translation>
    </message>
    <message>
        <source>Clock Studio</source>
        <translation>استودیوی ساعت</translation>
    </message>
    <message>
        <source>%1[*] – Clock Studio</source>
        <translation>%1[*] – استودیوی ساعت</translation>
    </message>
    <message>
        <source>Go to line</source>
        <translation>نمایش سطر</translation>
    </message>
    <message>
        <source>Findings (%1)</source>
        <translation>یافته‌ها (%L1)</translation>
    </message>
    <message>
        <source>&lt;h3&gt;Clock Studio %1&lt;/h3&gt;&lt;p&gt;An editor for walls of clocks. All clocks are drawn by the clock plugin itself.&lt;/p&gt;</source>
        <translation>&lt;h3&gt;استودیوی ساعت %1&lt;/h3&gt;&lt;p&gt;ویرایشگری برای دیوارهای ساعت. همهٔ ساعت‌ها را خود افزونهٔ ساعت می‌کشد.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>The picture could not be made.</source>
        <translation>تصویر ساخته نشد.</translation>
    </message>
    <message>
        <source>The wall shows the last valid version.</source>
        <translation>دیوار آخرین نسخهٔ درست را نشان می‌دهد.</translation>
    </message>
    <message>
        <source>Line %1: %2</source>
        <translation>سطر %1: %2</translation>
    </message>
</context>
<context>
    <name>ClockStudio::NumberEditor</name>
    <message>
        <source> pt</source>
        <translation> pt</translation>
    </message>
    <message>
        <source> px</source>
        <translation> px</translation>
    </message>
</context>
<context>
    <name>ClockStudio::Preview</name>
    <message>
        <source>ImageMagick is not installed (package imagemagick).</source>
        <translation>ImageMagick نصب نیست (بستهٔ imagemagick).</translation>
    </message>
    <message>
        <source>The pictures of the preview could not be written.</source>
        <translation>تصویرهای پیش‌نمایش نوشته نشدند.</translation>
    </message>
</context>
<context>
    <name>ClockStudio::ProgramFiles</name>
    <message>
        <source>Untitled</source>
        <translation>بی‌نام</translation>
    </message>
    <message>
        <source>%1 is damaged or not a text file.</source>
        <translation>%1 خراب است یا متن نیست.</translation>
    </message>
    <message>
        <source>The text has a character that the file&apos;s encoding cannot represent.</source>
        <translation>کدگذاری پرونده یکی از نویسه‌های این متن را ندارد.</translation>
    </message>
</context>
<context>
    <name>ClockStudio::PropertyGroups</name>
    <message>
        <source>Time</source>
        <translation>زمان</translation>
    </message>
    <message>
        <source>Format</source>
        <translation>قالب</translation>
    </message>
    <message>
        <source>Hours</source>
        <translation>ساعت</translation>
    </message>
    <message>
        <source>Font</source>
        <translation>قلم</translation>
    </message>
    <message>
        <source>Label</source>
        <translation>برچسب</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>متن</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>تاریخ</translation>
    </message>
    <message>
        <source>Weekday</source>
        <translation>روز هفته</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>زبان</translation>
    </message>
    <message>
        <source>Lunar date</source>
        <translation>تاریخ قمری</translation>
    </message>
    <message>
        <source>Arrangement</source>
        <translation>چیدمان</translation>
    </message>
    <message>
        <source>Layout</source>
        <translation>آرایش</translation>
    </message>
    <message>
        <source>Gap</source>
        <translation>فاصله</translation>
    </message>
    <message>
        <source>Hands</source>
        <translation>عقربه‌ها</translation>
    </message>
    <message>
        <source>Hour</source>
        <translation>ساعت</translation>
    </message>
    <message>
        <source>Minute</source>
        <translation>دقیقه</translation>
    </message>
    <message>
        <source>Second</source>
        <translation>ثانیه</translation>
    </message>
    <message>
        <source>Dial</source>
        <translation>صفحه</translation>
    </message>
    <message>
        <source>Minutes</source>
        <translation>دقیقه</translation>
    </message>
    <message>
        <source>Numerals</source>
        <translation>اعداد</translation>
    </message>
    <message>
        <source>AM and PM</source>
        <translation>ق.ظ و ب.ظ</translation>
    </message>
    <message>
        <source>Pictures</source>
        <translation>تصویرها</translation>
    </message>
    <message>
        <source>Style</source>
        <translation>سبک</translation>
    </message>
</context>
<context>
    <name>ClockStudio::PropertyPanel</name>
    <message>
        <source>Digital</source>
        <translation>رقمی</translation>
    </message>
    <message>
        <source>Analog</source>
        <translation>عقربه‌ای</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>تصویری</translation>
    </message>
    <message>
        <source>Width in pixels</source>
        <translation>پهنا به پیکسل</translation>
    </message>
    <message>
        <source>Height in pixels</source>
        <translation>بلندی به پیکسل</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>پهنا</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>بلندی</translation>
    </message>
    <message>
        <source>Select a clock on the wall to change it, or add one with the buttons above the wall.</source>
        <translation>برای تغییر، ساعتی را روی دیوار برگزینید، یا با دکمه‌های بالا یکی بیفزایید.</translation>
    </message>
    <message>
        <source>Position and size</source>
        <translation>جا و اندازه</translation>
    </message>
    <message>
        <source>Left edge in pixels</source>
        <translation>لبهٔ چپ، پیکسل</translation>
    </message>
    <message>
        <source>Top edge in pixels</source>
        <translation>لبهٔ بالا، پیکسل</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>موقعیت</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>اندازه</translation>
    </message>
    <message>
        <source>Fit sizes to the area</source>
        <translation>جور کردن اندازه‌ها با ناحیه</translation>
    </message>
    <message>
        <source>Make the texts as large as the area allows on any day of the year</source>
        <translation>متن‌ها تا جایی که ناحیه در همهٔ روزهای سال اجازه دهد بزرگ شوند</translation>
    </message>
    <message>
        <source>Reset to the default</source>
        <translation>بازگشت به پیش‌فرض</translation>
    </message>
    <message>
        <source>Wall</source>
        <translation>دیوار</translation>
    </message>
    <message>
        <source>Clock %1</source>
        <translation>ساعت %L1</translation>
    </message>
    <message>
        <source>Kind of clock</source>
        <translation>نوع ساعت</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>بازنشانی</translation>
    </message>
    <message>
        <source>Fit sizes</source>
        <translation>جور کردن اندازه‌ها</translation>
    </message>
    <message>
        <source>Size of the wall</source>
        <translation>اندازهٔ دیوار</translation>
    </message>
    <message>
        <source>Move and resize</source>
        <translation>جابه‌جایی و تغییر اندازه</translation>
    </message>
    <message numerus="yes">
        <source>%n clock(s)</source>
        <translation>
            <numerusform>%Ln ساعت</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ClockStudio::SavedFile</name>
    <message>
        <source>%1 is not a regular file.</source>
        <translation>%1 پرونده‌ای معمولی نیست.</translation>
    </message>
    <message>
        <source>%1 could not be saved: %2</source>
        <translation>%1 ذخیره نشد: %2</translation>
    </message>
</context>
<context>
    <name>ClockStudio::Section</name>
    <message>
        <source>Show</source>
        <translation>نمایش</translation>
    </message>
</context>
<context>
    <name>ClockStudio::SendDialog</name>
    <message>
        <source>Send to a wall</source>
        <translation>فرستادن به دیوار</translation>
    </message>
    <message>
        <source>/srv/wall</source>
        <translation>/srv/wall</translation>
    </message>
    <message>
        <source>empty for ssh&apos;s default key</source>
        <translation>خالی برای کلید پیش‌فرض ssh</translation>
    </message>
    <message>
        <source>Wall</source>
        <translation>دیوار</translation>
    </message>
    <message>
        <source>Host</source>
        <translation>میزبان</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>پوشه</translation>
    </message>
    <message>
        <source>Key file</source>
        <translation>پروندهٔ کلید</translation>
    </message>
    <message>
        <source>Earlier releases</source>
        <translation>نسخه‌های پیشین</translation>
    </message>
    <message>
        <source>Play the selected release</source>
        <translation>پخش دوبارهٔ نسخهٔ برگزیده</translation>
    </message>
    <message>
        <source>Send</source>
        <translation>فرستادن</translation>
    </message>
    <message>
        <source>Cancelled. The wall is unchanged.</source>
        <translation>لغو شد. دیوار همان را نشان می‌دهد که بود.</translation>
    </message>
    <message>
        <source>Generating the glyph files…</source>
        <translation>در حال ساخت پرونده‌های نویسه…</translation>
    </message>
    <message>
        <source>Sending to %1…</source>
        <translation>در حال فرستادن به %1…</translation>
    </message>
    <message>
        <source>Release %2 was sent to %1. The previous release is kept.</source>
        <translation>%1 نسخهٔ %2 را دارد. نسخهٔ پیشین نگه داشته شد.</translation>
    </message>
    <message>
        <source>There are no releases yet.</source>
        <translation>هنوز نسخه‌ای نیست.</translation>
    </message>
    <message>
        <source>Switching releases…</source>
        <translation>در حال تعویض نسخه…</translation>
    </message>
    <message>
        <source>%1 now plays release %2.</source>
        <translation>%1 نسخهٔ %2 را دارد.</translation>
    </message>
    <message>
        <source>empty for this computer, or operator@wall.example:22</source>
        <translation>برای این رایانه خالی، یا operator@wall.example:22</translation>
    </message>
    <message>
        <source>none, or /run/clock-player/status.json</source>
        <translation>هیچ، یا /run/clock-player/status.json</translation>
    </message>
    <message>
        <source>The player&apos;s status file on the wall. It shows whether the wall is playing what was sent.</source>
        <translation>پرونده وضعیت پخش‌کننده روی دیوار. نشان می‌دهد دیوار آنچه را فرستاده شده پخش می‌کند یا نه.</translation>
    </message>
    <message>
        <source>Status file</source>
        <translation>پرونده وضعیت</translation>
    </message>
    <message>
        <source>Choose the key file</source>
        <translation>گزینش پرونده کلید</translation>
    </message>
    <message>
        <source>Removing the incomplete release…</source>
        <translation>برداشتن آنچه فرستاده شد…</translation>
    </message>
    <message>
        <source>Waiting for the wall to play the release…</source>
        <translation>در انتظار پخش روی دیوار…</translation>
    </message>
    <message>
        <source>Asking %1…</source>
        <translation>پرسش از %1…</translation>
    </message>
    <message>
        <source>%1 (playing)</source>
        <translation>%1 (در حال پخش)</translation>
    </message>
</context>
<context>
    <name>ClockStudio::Sheet</name>
    <message>
        <source>yes</source>
        <translation>بله</translation>
    </message>
    <message>
        <source>no</source>
        <translation>خیر</translation>
    </message>
    <message>
        <source>Findings</source>
        <translation>یافته‌ها</translation>
    </message>
    <message>
        <source>None</source>
        <translation>هیچ</translation>
    </message>
    <message>
        <source>Approved by ______________________   on ______________</source>
        <translation>تأیید ______________________   تاریخ ______________</translation>
    </message>
    <message>
        <source>Clock %1: %2</source>
        <translation>ساعت %1: %2</translation>
    </message>
</context>
<context>
    <name>ClockStudio::SourceView</name>
    <message>
        <source>Program text</source>
        <translation>متن برنامه</translation>
    </message>
    <message>
        <source>The XML of the program. Changes appear on the wall immediately.</source>
        <translation>XML برنامه. تغییرات بی‌درنگ روی دیوار دیده می‌شوند.</translation>
    </message>
    <message>
        <source>Typing</source>
        <translation>تایپ</translation>
    </message>
</context>
<context>
    <name>ClockStudio::Templates</name>
    <message>
        <source>Railway station</source>
        <translation>ایستگاه راه‌آهن</translation>
    </message>
    <message>
        <source>A station clock beside the time, the date and the platform</source>
        <translation>ساعت ایستگاه کنار زمان، تاریخ و سکو</translation>
    </message>
    <message>
        <source>Airport</source>
        <translation>فرودگاه</translation>
    </message>
    <message>
        <source>Local time and UTC above four cities</source>
        <translation>زمان محلی و UTC بالای چهار شهر</translation>
    </message>
    <message>
        <source>World offices</source>
        <translation>دفترهای جهان</translation>
    </message>
    <message>
        <source>Five dials with their cities</source>
        <translation>پنج صفحه با شهرهایشان</translation>
    </message>
    <message>
        <source>Stock exchange</source>
        <translation>بورس</translation>
    </message>
    <message>
        <source>The time at four exchanges</source>
        <translation>زمان چهار بورس</translation>
    </message>
    <message>
        <source>Bank</source>
        <translation>بانک</translation>
    </message>
    <message>
        <source>A plain dial with the date</source>
        <translation>صفحه‌ای آرام با تاریخ</translation>
    </message>
    <message>
        <source>School</source>
        <translation>مدرسه</translation>
    </message>
    <message>
        <source>Time, weekday and date, readable from a distance</source>
        <translation>زمان، روز و تاریخ، خوانا از دور</translation>
    </message>
    <message>
        <source>Factory shift</source>
        <translation>نوبت کارخانه</translation>
    </message>
    <message>
        <source>Large time with seconds, the shift and the date</source>
        <translation>ثانیه‌های بزرگ، با نوبت و تاریخ</translation>
    </message>
    <message>
        <source>Prayer hall</source>
        <translation>نمازخانه</translation>
    </message>
    <message>
        <source>A dial with the Persian date and weekday</source>
        <translation>صفحه با تاریخ و روز ایرانی</translation>
    </message>
    <message>
        <source>Chinese date and lunar date</source>
        <translation>تاریخ چینی و قمری</translation>
    </message>
    <message>
        <source>The time with the Chinese date, weekday and lunar date</source>
        <translation>زمان با تاریخ، روز و تاریخ قمری چینی</translation>
    </message>
    <message>
        <source>Hospital</source>
        <translation>بیمارستان</translation>
    </message>
    <message>
        <source>A clear dial with a second hand, and the weekday</source>
        <translation>صفحهٔ روشن با ثانیه‌شمار و روز هفته</translation>
    </message>
    <message>
        <source>Sports hall</source>
        <translation>سالن ورزش</translation>
    </message>
    <message>
        <source>Only the time, with seconds</source>
        <translation>تنها زمان، با ثانیه</translation>
    </message>
    <message>
        <source>Hotel lobby</source>
        <translation>سرسرای هتل</translation>
    </message>
    <message>
        <source>Three picture clocks with their cities</source>
        <translation>سه ساعت تصویری با شهرهایشان</translation>
    </message>
    <message>
        <source>12-hour clock</source>
        <translation>دوازده‌ساعته</translation>
    </message>
    <message>
        <source>The time with AM or PM</source>
        <translation>زمان با ق.ظ و ب.ظ</translation>
    </message>
    <message>
        <source>One line</source>
        <translation>یک سطر</translation>
    </message>
    <message>
        <source>Everything on one line, for long narrow walls</source>
        <translation>همه در یک سطر، برای دیوارهای باریک</translation>
    </message>
</context>
<context>
    <name>ClockStudio::TextEditor</name>
    <message>
        <source>mixed</source>
        <translation>چند متن</translation>
    </message>
</context>
<context>
    <name>ClockStudio::TextFault</name>
    <message>
        <source>A program must not have a document type declaration.</source>
        <translation>برنامه اعلان نوع سند ندارد.</translation>
    </message>
    <message>
        <source>This is not a program.</source>
        <translation>این برنامه نیست.</translation>
    </message>
    <message>
        <source>The text has a character that the file&apos;s encoding cannot represent.</source>
        <translation>کدگذاری پرونده یکی از نویسه‌های این متن را ندارد.</translation>
    </message>
    <message>
        <source>The text is too large for a program.</source>
        <translation>این متن برای برنامه بلند است.</translation>
    </message>
</context>
<context>
    <name>ClockStudio::TimeBar</name>
    <message>
        <source>Daylight saving</source>
        <translation>ساعت تابستانی</translation>
    </message>
    <message>
        <source>Midnight</source>
        <translation>نیمه‌شب</translation>
    </message>
    <message>
        <source>New month</source>
        <translation>ماه نو</translation>
    </message>
    <message>
        <source>New year</source>
        <translation>سال نو</translation>
    </message>
    <message>
        <source>New lunar month</source>
        <translation>ماه قمری نو</translation>
    </message>
    <message>
        <source>Now</source>
        <translation>اکنون</translation>
    </message>
    <message>
        <source>Show the current time</source>
        <translation>نمایش زمان اکنون</translation>
    </message>
    <message>
        <source>Next change</source>
        <translation>تغییر بعدی</translation>
    </message>
    <message>
        <source>Jump to just before the next change</source>
        <translation>رفتن به کمی پیش از تغییر بعدی</translation>
    </message>
    <message>
        <source>Date and time that the wall shows</source>
        <translation>تاریخ و زمانی که دیوار نشان می‌دهد</translation>
    </message>
    <message>
        <source>Time of day</source>
        <translation>زمان روز</translation>
    </message>
    <message>
        <source>Drag through the hours of the day</source>
        <translation>در ساعت‌های روز بکشید</translation>
    </message>
    <message>
        <source>Playback speed</source>
        <translation>سرعت پخش</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>مکث</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>پخش</translation>
    </message>
    <message>
        <source>Pause the time</source>
        <translation>نگه داشتن زمان</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>ادامه</translation>
    </message>
</context>
<context>
    <name>ClockStudio::ToolRun</name>
    <message>
        <source>Cancel</source>
        <translation>لغو</translation>
    </message>
    <message>
        <source>%1 cannot be started. Is it installed?</source>
        <translation>%1 اجرا نشد. آیا نصب شده است؟</translation>
    </message>
    <message>
        <source>%1 exited with code %2.</source>
        <translation>%1 با کد %2 پایان یافت.</translation>
    </message>
</context>
<context>
    <name>ClockStudio::WallEditor</name>
    <message>
        <source>Move</source>
        <translation>جابه‌جایی</translation>
    </message>
    <message>
        <source>Resize</source>
        <translation>تغییر اندازه</translation>
    </message>
    <message>
        <source>Align</source>
        <translation>تراز</translation>
    </message>
    <message>
        <source>Distribute</source>
        <translation>پخش</translation>
    </message>
    <message>
        <source>Stack</source>
        <translation>چیدن</translation>
    </message>
    <message>
        <source>Bring to front</source>
        <translation>آوردن به جلو</translation>
    </message>
    <message>
        <source>Send to back</source>
        <translation>بردن به پشت</translation>
    </message>
    <message>
        <source>Add a clock</source>
        <translation>افزودن ساعت</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>حذف</translation>
    </message>
    <message>
        <source>Duplicate</source>
        <translation>تکثیر</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>چسباندن</translation>
    </message>
    <message>
        <source>Resize the wall</source>
        <translation>اندازهٔ دیوار</translation>
    </message>
</context>
<context>
    <name>ClockStudio::WallMouse</name>
    <message>
        <source>Move</source>
        <translation>جابه‌جایی</translation>
    </message>
    <message>
        <source>Resize</source>
        <translation>تغییر اندازه</translation>
    </message>
</context>
<context>
    <name>ClockStudio::WallStatus</name>
    <message>
        <source>The wall is playing this program.</source>
        <translation>دیوار این برنامه را پخش می‌کند.</translation>
    </message>
    <message>
        <source>The wall is playing something else.</source>
        <translation>دیوار چیز دیگری پخش می‌کند.</translation>
    </message>
    <message>
        <source>The wall shows the notice %1 instead of a program.</source>
        <translation>دیوار به جای برنامه پیام %1 را نشان می‌دهد.</translation>
    </message>
    <message>
        <source>The wall&apos;s player has not been heard from since %1.</source>
        <translation>از %1 خبری از پخش‌کننده دیوار نیست.</translation>
    </message>
    <message>
        <source>The wall&apos;s status cannot be read.</source>
        <translation>وضعیت دیوار خوانده نمی‌شود.</translation>
    </message>
</context>
<context>
    <name>ClockStudio::WallTarget</name>
    <message>
        <source>The wall needs a name.</source>
        <translation>دیوار نام می‌خواهد.</translation>
    </message>
    <message>
        <source>Enter the host as operator@wall.example or operator@wall.example:22.</source>
        <translation>میزبان را به شکل operator@wall.example یا operator@wall.example:22 بنویسید.</translation>
    </message>
    <message>
        <source>The folder must be an absolute path.</source>
        <translation>پوشه باید مسیری مطلق باشد.</translation>
    </message>
    <message>
        <source>The status file must be an absolute path.</source>
        <translation>پروندهٔ وضعیت باید مسیری مطلق باشد.</translation>
    </message>
</context>
<context>
    <name>ClockStudio::WallView</name>
    <message>
        <source>Wall</source>
        <translation>دیوار</translation>
    </message>
    <message>
        <source>The clocks of the program as shown on the wall. Tab selects the next one.</source>
        <translation>ساعت‌های برنامه چنان که دیوار نشان می‌دهد. Tab بعدی را برمی‌گزیند.</translation>
    </message>
    <message>
        <source>Choose a type of clock above, then drag a rectangle here</source>
        <translation>نوع ساعت را در بالا برگزینید و جایش را اینجا بکشید</translation>
    </message>
    <message>
        <source>Clock %1 of %2</source>
        <translation>ساعت %L1 از %L2</translation>
    </message>
    <message numerus="yes">
        <source>%n clock(s) selected</source>
        <translation>
            <numerusform>%Ln ساعت برگزیده</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ClockStudio::ZoneDialog</name>
    <message>
        <source>Choose a city</source>
        <translation>انتخاب شهر</translation>
    </message>
    <message>
        <source>City, country or offset, such as Berlin or +05:30</source>
        <translation>شهر، کشور یا اختلاف، مانند Berlin یا +05:30</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>جست‌وجو</translation>
    </message>
    <message>
        <source>Cities</source>
        <translation>شهرها</translation>
    </message>
    <message>
        <source>Use this time zone</source>
        <translation>کاربرد این منطقهٔ زمانی</translation>
    </message>
</context>
<context>
    <name>ClockStudio::ZoneSection</name>
    <message>
        <source>Time zone</source>
        <translation>منطقهٔ زمانی</translation>
    </message>
    <message>
        <source>City whose time is shown</source>
        <translation>شهری که زمانش نشان داده می‌شود</translation>
    </message>
    <message>
        <source>Choose the city whose time the clock shows</source>
        <translation>شهری را برگزینید که ساعت زمانش را نشان دهد</translation>
    </message>
    <message>
        <source>Adjustment</source>
        <translation>تنظیم</translation>
    </message>
    <message>
        <source>ahead</source>
        <translation>جلو</translation>
    </message>
    <message>
        <source>behind</source>
        <translation>عقب</translation>
    </message>
    <message>
        <source>Direction of the adjustment</source>
        <translation>جهت تنظیم</translation>
    </message>
    <message>
        <source>City</source>
        <translation>شهر</translation>
    </message>
    <message>
        <source>Adjust by</source>
        <translation>تنظیم</translation>
    </message>
    <message>
        <source>Several zones</source>
        <translation>چند منطقه</translation>
    </message>
    <message>
        <source>No daylight saving.</source>
        <translation>بدون ساعت تابستانی.</translation>
    </message>
    <message>
        <source>Daylight saving is on, but its rules are invalid.</source>
        <translation>ساعت تابستانی بدون قاعدهٔ درست.</translation>
    </message>
    <message>
        <source>Daylight saving begins on %1.</source>
        <translation>ساعت تابستانی از %1 آغاز می‌شود.</translation>
    </message>
    <message>
        <source>Daylight saving ends on %1.</source>
        <translation>ساعت تابستانی در %1 پایان می‌یابد.</translation>
    </message>
    <message>
        <source>No known zone has these rules.</source>
        <translation>هیچ منطقه شناخته‌شده‌ای این قاعده‌ها را ندارد.</translation>
    </message>
    <message>
        <source>The rules hold for %1 until %2 at least.</source>
        <translation>این قاعده‌ها برای %1 دست‌کم تا %2 درست‌اند.</translation>
    </message>
    <message numerus="yes">
        <source>Daylight saving moves this zone&apos;s time by %n minute(s); a clock can only move by an hour.</source>
        <translation>
            <numerusform>ساعت تابستانی این منطقه زمان را %Ln دقیقه جابه‌جا می‌کند؛ ساعت تنها می‌تواند یک ساعت جابه‌جا شود.</numerusform>
        </translation>
    </message>
    <message>
        <source>This zone&apos;s changes are not on the same weekday of a month every year, such as the last Sunday.</source>
        <translation>تغییرهای این منطقه هر سال در یک روز هفتهٔ ثابت از ماه (مانند آخرین یکشنبه) نیست.</translation>
    </message>
    <message numerus="yes">
        <source>The clock will be wrong %n time(s) in the next ten years, first from %1 to %2.</source>
        <translation>
            <numerusform>در ده سال آینده ساعت %Ln بار نادرست خواهد بود، نخست از %1 تا %2.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ClockTool::FindingWords</name>
    <message>
        <source>left</source>
        <translation>چپ</translation>
    </message>
    <message>
        <source>top</source>
        <translation>بالا</translation>
    </message>
    <message>
        <source>right</source>
        <translation>راست</translation>
    </message>
    <message>
        <source>bottom</source>
        <translation>پایین</translation>
    </message>
    <message>
        <source>1 pixel</source>
        <translation>1 پیکسل</translation>
    </message>
    <message>
        <source>%1 pixels</source>
        <translation>%1 پیکسل</translation>
    </message>
    <message>
        <source> as %1</source>
        <translation> با نوشتهٔ %1</translation>
    </message>
    <message>
        <source>and %1 more</source>
        <translation>و %1 مورد دیگر</translation>
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
        <translation>؛ با %1 پوینت جا می‌شود</translation>
    </message>
    <message>
        <source>; no size of the %1 fits by itself</source>
        <translation>؛ تنها با تغییر اندازهٔ %1 جا نمی‌شود</translation>
    </message>
    <message>
        <source>; all sizes would fit if scaled by %1</source>
        <translation>؛ اگر همهٔ اندازه‌ها در %1 ضرب شوند جا می‌شود</translation>
    </message>
    <message>
        <source>%1 at the %2</source>
        <translation>%1 از %2</translation>
    </message>
    <message>
        <source>%1 cut: %2%3; first at %4%5%6</source>
        <translation>%1 بریده می‌شود: %2%3؛ نخست در %4%5%6</translation>
    </message>
    <message>
        <source>, completely hidden</source>
        <translation>، کاملاً ناپیدا</translation>
    </message>
    <message>
        <source>the images of the %1 are too small for the ink: %2 of %3 lost at the %4; first %5%6</source>
        <translation>تصویرهای %1 برای نوشته کوچک‌اند: %2 از %3 در %4 گم می‌شود؛ نخست در %5%6</translation>
    </message>
    <message>
        <source>; none at %1 points</source>
        <translation>؛ با %1 پوینت هیچ</translation>
    </message>
    <message>
        <source>the %1 overlap each other: %2</source>
        <translation>%1 روی هم می‌افتند: %2</translation>
    </message>
    <message>
        <source>%1 drawn over the %2: up to %3; first %4%5</source>
        <translation>%1 روی %2 کشیده می‌شود: تا %3؛ نخست در %4%5</translation>
    </message>
    <message>
        <source>the colour of the %1 is the key colour %2, which the host makes transparent</source>
        <translation>رنگ %1 رنگ شفاف %2 است و دیده نمی‌شود</translation>
    </message>
    <message>
        <source>the colour %1 of the %2 has a contrast of %3 against its background %4; 3 or more is easy to see</source>
        <translation>رنگ %1 برای %2 با زمینهٔ %4 تضاد %3 دارد؛ 3 یا بیشتر خوب دیده می‌شود</translation>
    </message>
    <message>
        <source>the %1 and the %2 are both %3: where they overlap they cannot be told apart</source>
        <translation>%1 و %2 هر دو %3 هستند: جایی که روی هم می‌افتند از هم شناخته نمی‌شوند</translation>
    </message>
    <message>
        <source>a dial with a radius of %1 pixels has no %2; they need at least %3</source>
        <translation>صفحه‌ای با شعاع %1 پیکسل %2 ندارد؛ دست‌کم %3 لازم است</translation>
    </message>
    <message>
        <source>another family is used for them</source>
        <translation>با قلم دیگری نوشته می‌شوند</translation>
    </message>
    <message>
        <source>boxes appear for &quot;%1&quot;</source>
        <translation>به جای «%1» مربع دیده می‌شود</translation>
    </message>
    <message>
        <source>no installed family has all of them</source>
        <translation>هیچ قلم نصب‌شده‌ای همه را ندارد</translation>
    </message>
    <message>
        <source>families with all of them: %1</source>
        <translation>قلم‌هایی که همه را دارند: %1</translation>
    </message>
    <message>
        <source>the family &quot;%1&quot; of the %2 lacks &quot;%3&quot;: %4; %5</source>
        <translation>قلم «%1» برای %2 نویسه‌های «%3» را ندارد: %4؛ %5</translation>
    </message>
    <message>
        <source>%1 not drawn: at %2 points its image would be empty or too large</source>
        <translation>%1 کشیده نمی‌شود: تصویر آن با %2 پوینت خالی یا بیش از حد بزرگ است</translation>
    </message>
    <message>
        <source>the area is off the screen</source>
        <translation>ناحیه بیرون از صفحه است</translation>
    </message>
    <message>
        <source>the area extends beyond the screen: %1</source>
        <translation>ناحیه از صفحه بیرون می‌زند: %1</translation>
    </message>
    <message>
        <source>this clock is drawn over the clock in line %1</source>
        <translation>این ساعت روی ساعت سطر %1 کشیده می‌شود</translation>
    </message>
    <message>
        <source>%1 drawn over the %2 of the clock in line %3</source>
        <translation>%1 روی %2 ساعت سطر %3 کشیده می‌شود</translation>
    </message>
    <message>
        <source>%1: %2; first on the day starting at %3</source>
        <translation>%1: %2؛ نخست در روزی که از %3 آغاز می‌شود</translation>
    </message>
    <message>
        <source>the images of its texts have %1 megapixels, which a small device draws slowly; accepted: at most %2, with smaller font sizes or a shorter title</source>
        <translation>تصویر نوشته‌ها %1 مگاپیکسل است و دستگاه کوچک آن را کند می‌کشد؛ با اندازهٔ کوچک‌تر یا برچسب کوتاه‌تر حداکثر %2</translation>
    </message>
    <message>
        <source>cannot read %1 in %2, so the clock is drawn without; the pictures come with the player</source>
        <translation>%1 در %2 خوانده نمی‌شود و ساعت بدون آن کشیده می‌شود؛ تصویرها همراه پخش‌کننده‌اند</translation>
    </message>
    <message>
        <source>; &quot;clock_tool zone --refresh&quot; updates them</source>
        <translation>؛ با «clock_tool zone --refresh» به‌روز می‌شوند</translation>
    </message>
    <message>
        <source> from then on</source>
        <translation> از آن پس</translation>
    </message>
    <message>
        <source>is not an installed font; &quot;%1&quot; is used instead%2</source>
        <translation>قلم نصب‌شده‌ای نیست؛ به جای آن «%1» به کار می‌رود%2</translation>
    </message>
    <message>
        <source>; accepted: a family that &quot;fc-list : family&quot; lists</source>
        <translation>؛ قلم‌های پذیرفته را «fc-list : family» فهرست می‌کند</translation>
    </message>
    <message>
        <source>the clock has no time zone and shows the player&apos;s, which is UTC; accepted: for example timezone=&quot;+01:00&quot;</source>
        <translation>ساعت منطقهٔ زمانی ندارد و منطقهٔ پخش‌کننده (UTC) را نشان می‌دهد؛ شهری را برگزینید</translation>
    </message>
    <message>
        <source>the clock has rules for daylight saving that are not used: UseDaylightSavingTime is %1; accepted: 1, or no rules</source>
        <translation>قاعده‌های ساعت تابستانی به کار نمی‌روند: UseDaylightSavingTime برابر %1 است؛ باید 1 باشد یا قاعده‌ای نباشد</translation>
    </message>
    <message>
        <source>all rows of this clock are hidden; accepted: display=&quot;true&quot; for one of them</source>
        <translation>همهٔ سطرهای این ساعت پنهان‌اند؛ دست‌کم یکی را نمایش دهید</translation>
    </message>
    <message>
        <source>the minus of date type 8 is missing from an exported program</source>
        <translation>خط تیرهٔ قالب تاریخ 8 در برنامهٔ صادرشده نیست</translation>
    </message>
    <message>
        <source>the digits of %1 are not legible at %2 points: %3%4</source>
        <translation>رقم‌های %1 با %2 پوینت خوانا نیستند: %3%4</translation>
    </message>
    <message>
        <source>the default font</source>
        <translation>قلم پیش‌فرض</translation>
    </message>
    <message>
        <source>; accepted: %1</source>
        <translation>؛ پذیرفته: %1</translation>
    </message>
</context>
<context>
    <name>ClockTool::RuleNote</name>
    <message>
        <source>these rules give the time of %1 until %2</source>
        <translation>این قاعده‌ها تا %2 ساعت %1 را می‌دهند</translation>
    </message>
    <message>
        <source>no known zone uses these rules</source>
        <translation>هیچ منطقهٔ شناخته‌شده‌ای این قاعده‌ها را ندارد</translation>
    </message>
    <message>
        <source>daylight saving ends an hour late for %2: the end is in standard time, an hour before the published one; accepted: %1</source>
        <translation>ساعت تابستانی برای %2 یک ساعت دیر پایان می‌یابد: پایان به وقت استاندارد است، یک ساعت پیش از زمان اعلام‌شده؛ پذیرفته: %1</translation>
    </message>
</context>
<context>
    <name>ClockZones::Validity</name>
    <message>
        <source>the daylight-saving rules are those of %2 only until %1</source>
        <translation>قاعده‌های ساعت تابستانی تنها تا %1 با %2 یکی است</translation>
    </message>
    <message>
        <source>the daylight-saving rules are those of %2 until %1, where the system&apos;s zone data end</source>
        <translation>قاعده‌های ساعت تابستانی تا %1 با %2 یکی است؛ داده‌های منطقه در سامانه همان‌جا پایان می‌یابد</translation>
    </message>
    <message>
        <source>the lunar date is wrong from %1 on</source>
        <translation>تاریخ قمری از %1 نادرست است</translation>
    </message>
    <message>
        <source>the lunar date is missing from %1 on</source>
        <translation>تاریخ قمری از %1 نمایش داده نمی‌شود</translation>
    </message>
    <message>
        <source>the Persian date is wrong from %1 on</source>
        <translation>تاریخ خورشیدی از %1 نادرست است</translation>
    </message>
</context>
<context>
    <name>QPlatformTheme</name>
    <message>
        <source>OK</source>
        <translation>تأیید</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>ذخیره</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>لغو</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>بستن</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>دور انداختن</translation>
    </message>
</context>
</TS>
