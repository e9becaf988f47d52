<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name>QCommandLineParser</name>
    <message>
        <source>Usage: %1</source>
        <translation>用法：%1</translation>
    </message>
    <message>
        <source>[options]</source>
        <translation>[选项]</translation>
    </message>
    <message>
        <source>Options:</source>
        <translation>选项：</translation>
    </message>
    <message>
        <source>Arguments:</source>
        <translation>参数：</translation>
    </message>
</context>
<context>
    <name>lessonconv</name>
    <message>
        <source>A worker process can&apos;t be started: %1</source>
        <translation>无法启动工作进程：%1</translation>
    </message>
    <message>
        <source>Check that there is enough memory, or give fewer --jobs</source>
        <translation>请检查内存是否足够，或减小 --jobs</translation>
    </message>
    <message>
        <source>%1 is there already, and is kept</source>
        <translation>%1 已经存在，予以保留</translation>
    </message>
    <message>
        <source>The other lessons are not concerned. Give this one more time with --lesson-timeout, or try it without</source>
        <translation>其他课件不受影响。请用 --lesson-timeout 给这个课件更多时间，或不加该选项再试</translation>
    </message>
    <message>
        <source>The converter broke down over this lesson</source>
        <translation>转换器在处理这个课件时崩溃</translation>
    </message>
    <message>
        <source>The other lessons are not concerned. Please send this one to the makers</source>
        <translation>其他课件不受影响。请把这个课件发给开发者</translation>
    </message>
    <message>
        <source>This is no file that lessonconv has made</source>
        <translation>这不是 lessonconv 生成的文件</translation>
    </message>
    <message>
        <source>Remove it</source>
        <translation>请删除它</translation>
    </message>
    <message>
        <source>Nothing can be written in this folder: %1</source>
        <translation>无法写入此文件夹：%1</translation>
    </message>
    <message>
        <source>Check that you may write there and that there is room</source>
        <translation>请检查是否有写入权限以及是否有足够空间</translation>
    </message>
    <message>
        <source>What is done can&apos;t be noted for --resume: %1</source>
        <translation>无法为 --resume 记录已完成的内容：%1</translation>
    </message>
    <message>
        <source>Check that there is room</source>
        <translation>请检查是否有足够空间</translation>
    </message>
    <message>
        <source>The results would lie among the lessons</source>
        <translation>结果会混在课件之中</translation>
    </message>
    <message>
        <source>Give another folder with --out-dir</source>
        <translation>请用 --out-dir 指定另一个文件夹</translation>
    </message>
    <message>
        <source>The folder can&apos;t be searched: %1</source>
        <translation>无法搜索此文件夹：%1</translation>
    </message>
    <message>
        <source>Check that you may read it</source>
        <translation>请检查是否有读取权限</translation>
    </message>
    <message>
        <source>This name is no UTF-8, so that it can&apos;t be looked into</source>
        <translation>此名称不是 UTF-8，因此无法查看</translation>
    </message>
    <message>
        <source>Give it another name</source>
        <translation>请换一个名称</translation>
    </message>
    <message>
        <source>This is a link to nothing</source>
        <translation>此链接指向的内容不存在</translation>
    </message>
    <message>
        <source>Remove it, or put the lesson in its place</source>
        <translation>请删除它，或把课件放到它的位置</translation>
    </message>
    <message>
        <source>This lesson and %1 would both be written as %2</source>
        <translation>此课件和 %1 都会写成 %2</translation>
    </message>
    <message>
        <source>Rename one of them, or convert them into different folders</source>
        <translation>请给其中一个改名，或转换到不同的文件夹</translation>
    </message>
    <message>
        <source>The result would take the place of the lesson itself</source>
        <translation>结果会取代课件本身</translation>
    </message>
    <message>
        <source>There are no lessons in it</source>
        <translation>其中没有课件</translation>
    </message>
    <message>
        <source>See lessonconv formats for the names that lessons have</source>
        <translation>课件的命名方式见 lessonconv formats</translation>
    </message>
    <message>
        <source>the report</source>
        <translation>报告</translation>
    </message>
    <message>
        <source>--report FILE</source>
        <translation>--report 文件</translation>
    </message>
    <message numerus="yes">
        <source>%n converted</source>
        <translation>
            <numerusform>已转换 %n 个</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n not converted</source>
        <translation>
            <numerusform>未转换 %n 个</numerusform>
        </translation>
    </message>
    <message>
        <source>The conversion took longer than %1 s</source>
        <translation>转换耗时超过 %1 秒</translation>
    </message>
    <message numerus="yes">
        <source>%n drawn</source>
        <translation>
            <numerusform>已绘制 %n 个</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n not drawn</source>
        <translation>
            <numerusform>未绘制 %n 个</numerusform>
        </translation>
    </message>
    <message>
        <source>The drawing took longer than %1 s</source>
        <translation>绘制耗时超过 %1 秒</translation>
    </message>
    <message numerus="yes">
        <source>%n done before</source>
        <translation>
            <numerusform>之前已完成 %n 个</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n not begun</source>
        <translation>
            <numerusform>未开始 %n 个</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n lessons: %1.</source>
        <translation>
            <numerusform>%n 个课件：%1。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n lessons lost something, %1 in all; %2 names each.</source>
        <translation>
            <numerusform>%n 个课件有所丢失，共 %1；详情见%2。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n values, items or files</source>
        <translation>
            <numerusform>%n 个值、对象或文件</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n items are shown by name; %1 names each.</source>
        <translation>
            <numerusform>%n 个对象仅以名称显示；详情见%1。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n notes on fonts that aren&apos;t here, such as: %1.</source>
        <translation>
            <numerusform>%n 条关于缺少字体的说明，例如：%1。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n files are called like lessons and are none, such as %1.</source>
        <translation>
            <numerusform>%n 个文件的名称像课件但不是课件，例如 %1。</numerusform>
        </translation>
    </message>
    <message>
        <source>Interrupted. The same command with --resume does the rest.</source>
        <translation>已中断。用同样的命令加 --resume 可完成其余部分。</translation>
    </message>
    <message>
        <source>There can&apos;t be a folder for pages here: %1</source>
        <translation>无法在此建立页面文件夹：%1</translation>
    </message>
    <message>
        <source>what is there isn&apos;t yours alone</source>
        <translation>那里的内容不只属于您一人</translation>
    </message>
    <message>
        <source>Draw the lesson with lessonconv render LESSON PAGE.html and open the page</source>
        <translation>请用 lessonconv render 课件 页面.html 绘制课件并打开页面</translation>
    </message>
    <message>
        <source>The page is drawn, but no browser could be opened</source>
        <translation>页面已绘制，但无法打开浏览器</translation>
    </message>
    <message>
        <source>Open the page yourself</source>
        <translation>请自行打开该页面</translation>
    </message>
    <message>
        <source>Converts lessons of interactive whiteboards and tells what is in them.</source>
        <translation>转换交互式白板课件，并显示其中的内容。</translation>
    </message>
    <message>
        <source>The lesson that is read is never changed. What the other format can&apos;t hold is
named, by slide and item. Exit code: 0 done, 1 done with losses and --strict,
or something is wrong that check looks for, 2 not done.</source>
        <translation>读取的课件绝不会被修改。另一种格式无法容纳的内容会按幻灯片和对象
逐一列出。退出码：0 完成，1 使用 --strict 且有丢失，或 check 发现问题，2 未完成。</translation>
    </message>
    <message>
        <source>Examples:</source>
        <translation>示例：</translation>
    </message>
    <message>
        <source>The report would stand where %1 does</source>
        <translation>报告会占用 %1 的位置</translation>
    </message>
    <message>
        <source>converts a lesson; the names say the formats</source>
        <translation>转换一个课件；格式由文件名决定</translation>
    </message>
    <message>
        <source>converts many lessons, or all in a folder</source>
        <translation>转换多个课件，或文件夹中的所有课件</translation>
    </message>
    <message>
        <source>draws the slides as .html, .pdf, .svg, .png, .jpg or .webp</source>
        <translation>将幻灯片绘制为 .html、.pdf、.svg、.png、.jpg 或 .webp</translation>
    </message>
    <message>
        <source>draws many lessons, or all in a folder</source>
        <translation>绘制多个课件，或文件夹中的所有课件</translation>
    </message>
    <message>
        <source>two lessons side by side, and what B lacks</source>
        <translation>并排显示两个课件，并列出 B 缺少的内容</translation>
    </message>
    <message>
        <source>opens a lesson in the browser</source>
        <translation>在浏览器中打开课件</translation>
    </message>
    <message>
        <source>page size, slides, items, missing files</source>
        <translation>页面大小、幻灯片、对象、缺失的文件</translation>
    </message>
    <message>
        <source>the formats and their file names</source>
        <translation>各种格式及其文件名</translation>
    </message>
    <message>
        <source>See lessonconv --help</source>
        <translation>参见 lessonconv --help</translation>
    </message>
    <message>
        <source>plug-in %1, %2</source>
        <translation>插件 %1，%2</translation>
    </message>
    <message>
        <source>There is no command &quot;%1&quot;</source>
        <translation>没有命令“%1”</translation>
    </message>
    <message>
        <source>Say %1; lessonconv --help tells more</source>
        <translation>请使用 %1；详见 lessonconv --help</translation>
    </message>
    <message>
        <source>%1 takes no more files than %2</source>
        <translation>%1 最多接受 %2 个文件</translation>
    </message>
    <message>
        <source>%1 needs a lesson</source>
        <translation>%1 需要一个课件</translation>
    </message>
    <message>
        <source>%1 needs a name for the result as well</source>
        <translation>%1 还需要结果的名称</translation>
    </message>
    <message>
        <source>The call is: %1</source>
        <translation>正确用法：%1</translation>
    </message>
    <message>
        <source>This call of %1 makes no use of --%2</source>
        <translation>%1 的这种用法不使用 --%2</translation>
    </message>
    <message>
        <source>Leave it out; it is for %1</source>
        <translation>请去掉它；它用于 %1</translation>
    </message>
    <message>
        <source>This is the name of a picture or a page, which convert doesn&apos;t make</source>
        <translation>这是图片或页面的名称，convert 不生成这类文件</translation>
    </message>
    <message>
        <source>Say lessonconv render instead of lessonconv convert</source>
        <translation>请用 lessonconv render 代替 lessonconv convert</translation>
    </message>
    <message>
        <source>It isn&apos;t said what is to come out</source>
        <translation>没有说明要输出什么</translation>
    </message>
    <message>
        <source>Say the format, such as --to %1</source>
        <translation>请指定格式，例如 --to %1</translation>
    </message>
    <message>
        <source>Standard output can&apos;t take the result and what --json tells of it</source>
        <translation>标准输出不能同时容纳结果和 --json 的内容</translation>
    </message>
    <message>
        <source>Leave out --json, or give the result a name</source>
        <translation>请去掉 --json，或给结果指定名称</translation>
    </message>
    <message>
        <source>read, written</source>
        <translation>可读、可写</translation>
    </message>
    <message>
        <source>read</source>
        <translation>可读</translation>
    </message>
    <message>
        <source>written</source>
        <translation>可写</translation>
    </message>
    <message>
        <source>It isn&apos;t said where the result goes</source>
        <translation>没有说明结果写到哪里</translation>
    </message>
    <message>
        <source>Give a lesson and the name of the result, or many lessons with --to FORMAT --out-dir FOLDER</source>
        <translation>请给出课件和结果的名称，或给出多个课件并加 --to 格式 --out-dir 文件夹</translation>
    </message>
    <message>
        <source>It isn&apos;t said what the lessons are to become</source>
        <translation>没有说明课件要转换成什么</translation>
    </message>
    <message>
        <source>Say the format, such as --to iwb</source>
        <translation>请指定格式，例如 --to iwb</translation>
    </message>
    <message>
        <source>It isn&apos;t said what the lessons are to be drawn as</source>
        <translation>没有说明课件要绘制成什么</translation>
    </message>
    <message>
        <source>Say it, such as --to pdf</source>
        <translation>请加以指定，例如 --to pdf</translation>
    </message>
    <message>
        <source>The folder for the results can&apos;t be made: %1</source>
        <translation>无法建立存放结果的文件夹：%1</translation>
    </message>
    <message>
        <source>Check the path and that you may write there</source>
        <translation>请检查路径以及是否有写入权限</translation>
    </message>
    <message>
        <source>%1 of %2 lessons</source>
        <translation>第 %1 个课件，共 %2 个</translation>
    </message>
    <message>
        <source>Note: %1</source>
        <translation>说明：%1</translation>
    </message>
    <message>
        <source>Slides drawn: %1.</source>
        <translation>已绘制幻灯片：%1。</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <translation>%1 %2</translation>
    </message>
    <message>
        <source>The format of the input, where its name doesn&apos;t tell.</source>
        <translation>输入的格式，用于文件名无法说明的情况。</translation>
    </message>
    <message>
        <source>Many: the folder for the results.</source>
        <translation>多个课件：存放结果的文件夹。</translation>
    </message>
    <message>
        <source>Many: this many at the same time; otherwise one for each core that may be used.</source>
        <translation>多个课件：同时处理的数量；默认每个可用的处理器核心一个。</translation>
    </message>
    <message>
        <source>Many: give up a lesson that takes longer.</source>
        <translation>多个课件：放弃耗时更长的课件。</translation>
    </message>
    <message>
        <source>Many: leave out what is done and unchanged.</source>
        <translation>多个课件：跳过已完成且未更改的课件。</translation>
    </message>
    <message>
        <source>Write everything that was lost or kept aside, what is wrong, or how it was drawn, into this file, as JSON.</source>
        <translation>将所有丢失或另存的内容、发现的问题或绘制情况，以 JSON 写入此文件。</translation>
    </message>
    <message>
        <source>Treat losses as a failure: exit code 1.</source>
        <translation>将丢失视为失败：退出码 1。</translation>
    </message>
    <message>
        <source>Don&apos;t read back what was written, nor try formats. Faster, but losses stay unnoticed.</source>
        <translation>不回读写出的内容，也不尝试各种格式。速度更快，但不会发现丢失。</translation>
    </message>
    <message>
        <source>Replace nothing: what is there already makes the run fail, and of many those lessons.</source>
        <translation>不替换任何内容：已存在时运行失败，处理多个课件时仅这些课件失败。</translation>
    </message>
    <message>
        <source>What becomes of handwriting in IWB: polyline (the default) or drop.</source>
        <translation>手写笔迹在 IWB 中的处理方式：polyline（默认）或 drop。</translation>
    </message>
    <message>
        <source>Leave out of IWB what other boards pass over: the lesson itself, from which all of it comes back.</source>
        <translation>IWB 中不包含其他白板会忽略的内容：课件本身，据此可完全还原。</translation>
    </message>
    <message>
        <source>What becomes of items that IWB has no form for: picture (the default) or drop.</source>
        <translation>IWB 中没有对应形式的对象的处理方式：picture（默认）或 drop。</translation>
    </message>
    <message>
        <source>With render: only these slides, such as 2-5 or 1,4.</source>
        <translation>用于 render：仅这些幻灯片，例如 2-5 或 1,4。</translation>
    </message>
    <message>
        <source>With render: how wide pictures and pages are; their height follows.</source>
        <translation>用于 render：图片和页面的宽度；高度随之而定。</translation>
    </message>
    <message>
        <source>With render: how high pictures and pages are; their width follows.</source>
        <translation>用于 render：图片和页面的高度；宽度随之而定。</translation>
    </message>
    <message>
        <source>With render: as large as fits into so many pixels.</source>
        <translation>用于 render：在这么多像素之内尽可能大。</translation>
    </message>
    <message>
        <source>With --size: just this size, with borders where a slide is narrower or lower.</source>
        <translation>用于 --size：正好这个大小，幻灯片较窄或较矮处留边。</translation>
    </message>
    <message>
        <source>With render: so many times the size of the slide.</source>
        <translation>用于 render：幻灯片大小的倍数。</translation>
    </message>
    <message>
        <source>With render: dots per inch of pictures; 96 is the size of the slide.</source>
        <translation>用于 render：图片每英寸的点数；96 为幻灯片原大小。</translation>
    </message>
    <message>
        <source>With render: this colour in place of the slides&apos; own, such as &quot;#ffffe0&quot;, or transparent.</source>
        <translation>用于 render：用此颜色代替幻灯片自身的颜色，例如 &quot;#ffffe0&quot; 或 transparent。</translation>
    </message>
    <message>
        <source>With render: sounds, films and other files go into the page, not into a folder beside it.</source>
        <translation>用于 render：声音、影片和其他文件放入页面，而不放在旁边的文件夹中。</translation>
    </message>
    <message>
        <source>With render: two lessons side by side, with the values that the second lacks.</source>
        <translation>用于 render：并排显示两个课件，并列出第二个缺少的值。</translation>
    </message>
    <message>
        <source>Print JSON, also for a failure.</source>
        <translation>输出 JSON，失败时也是如此。</translation>
    </message>
    <message>
        <source>No progress bar, no list of losses, no summary.</source>
        <translation>不显示进度条、丢失列表和摘要。</translation>
    </message>
    <message>
        <source>Print what the libraries log.</source>
        <translation>输出各程序库的日志。</translation>
    </message>
    <message>
        <source>The plug-in&apos;s file, where it is in an unusual place.</source>
        <translation>插件文件，用于插件不在通常位置的情况。</translation>
    </message>
    <message>
        <source>the lessons</source>
        <translation>课件</translation>
    </message>
    <message>
        <source>Print this text.</source>
        <translation>显示此说明。</translation>
    </message>
    <message>
        <source>Unknown option &apos;%1&apos;.</source>
        <translation>未知选项“%1”。</translation>
    </message>
    <message>
        <source>Unknown options: %1.</source>
        <translation>未知选项：%1。</translation>
    </message>
    <message>
        <source>Missing value after &apos;%1&apos;.</source>
        <translation>“%1”之后缺少值。</translation>
    </message>
    <message>
        <source>Unexpected value after &apos;%1&apos;.</source>
        <translation>“%1”之后有多余的值。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no number of jobs</source>
        <translation>“%1”不是进程数</translation>
    </message>
    <message>
        <source>Give a number from 1 to %1, such as --jobs 4</source>
        <translation>请给出 1 到 %1 之间的数，例如 --jobs 4</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no number of seconds</source>
        <translation>“%1”不是秒数</translation>
    </message>
    <message>
        <source>Give a number from 1 to %1, such as --lesson-timeout 600</source>
        <translation>请给出 1 到 %1 之间的数，例如 --lesson-timeout 600</translation>
    </message>
    <message>
        <source>--%1 knows no &quot;%2&quot;</source>
        <translation>--%1 不接受“%2”</translation>
    </message>
    <message>
        <source>Say --%1 %2</source>
        <translation>请使用 --%1 %2</translation>
    </message>
    <message>
        <source>There is no completion for &quot;%1&quot;</source>
        <translation>没有用于“%1”的补全脚本</translation>
    </message>
    <message>
        <source>Say bash, zsh or fish</source>
        <translation>请使用 bash、zsh 或 fish</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>标题</translation>
    </message>
    <message>
        <source>Page size</source>
        <translation>页面大小</translation>
    </message>
    <message>
        <source>not given</source>
        <translation>未给出</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>版本</translation>
    </message>
    <message>
        <source>Slides</source>
        <translation>幻灯片</translation>
    </message>
    <message>
        <source>Mind map nodes</source>
        <translation>思维导图节点</translation>
    </message>
    <message>
        <source>Cards</source>
        <translation>卡片</translation>
    </message>
    <message>
        <source>Questions</source>
        <translation>题目</translation>
    </message>
    <message>
        <source>Triggers</source>
        <translation>触发器</translation>
    </message>
    <message>
        <source>Animated items</source>
        <translation>动画对象</translation>
    </message>
    <message>
        <source>Activities</source>
        <translation>活动</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>文件</translation>
    </message>
    <message>
        <source>Missing files</source>
        <translation>缺失的文件</translation>
    </message>
    <message>
        <source>Items</source>
        <translation>对象</translation>
    </message>
    <message>
        <source>Unknown items</source>
        <translation>未知对象</translation>
    </message>
    <message>
        <source>The plug-in %1 was not found</source>
        <translation>找不到插件 %1</translation>
    </message>
    <message>
        <source>Build the project, or say where the plug-in is with --plugin</source>
        <translation>请构建项目，或用 --plugin 指定插件位置</translation>
    </message>
    <message>
        <source>There is no such plug-in</source>
        <translation>没有这个插件</translation>
    </message>
    <message>
        <source>Check the path given to --plugin</source>
        <translation>请检查 --plugin 给出的路径</translation>
    </message>
    <message>
        <source>This plug-in converts no lessons</source>
        <translation>此插件不能转换课件</translation>
    </message>
    <message>
        <source>The plug-in can&apos;t be loaded: %1</source>
        <translation>无法加载插件：%1</translation>
    </message>
    <message>
        <source>Build the plug-in again with the same Qt as the command</source>
        <translation>请用与命令相同的 Qt 重新构建插件</translation>
    </message>
    <message>
        <source>%1 of %2 slides</source>
        <translation>第 %1 张幻灯片，共 %2 张</translation>
    </message>
    <message>
        <source>It can&apos;t be read: %1</source>
        <translation>无法读取：%1</translation>
    </message>
    <message>
        <source>Check what is sent there</source>
        <translation>请检查传入的内容</translation>
    </message>
    <message>
        <source>More than 2 GiB came, which no lesson has</source>
        <translation>传入的内容超过 2 GiB，课件没有这么大</translation>
    </message>
    <message>
        <source>Nothing came</source>
        <translation>没有传入任何内容</translation>
    </message>
    <message>
        <source>This is no drawing in svg</source>
        <translation>这不是 svg 图形</translation>
    </message>
    <message>
        <source>Check the file</source>
        <translation>请检查该文件</translation>
    </message>
    <message>
        <source>The file can&apos;t be read: %1</source>
        <translation>无法读取文件：%1</translation>
    </message>
    <message>
        <source>Check that it exists and that you may read it</source>
        <translation>请检查文件是否存在以及是否有读取权限</translation>
    </message>
    <message>
        <source>This is a folder, not a file</source>
        <translation>这是文件夹，不是文件</translation>
    </message>
    <message>
        <source>This is a pipe, not a file</source>
        <translation>这是管道，不是文件</translation>
    </message>
    <message>
        <source>This is a device, not a file</source>
        <translation>这是设备，不是文件</translation>
    </message>
    <message>
        <source>Give a file on a disk</source>
        <translation>请给出磁盘上的文件</translation>
    </message>
    <message>
        <source>The file is too large</source>
        <translation>文件过大</translation>
    </message>
    <message>
        <source>The file was cut short while it was read</source>
        <translation>文件在读取过程中被截短</translation>
    </message>
    <message>
        <source>Convert it again when no other program writes to it</source>
        <translation>请在没有其他程序写入时重新转换</translation>
    </message>
    <message>
        <source>Give another name, outside of what is read</source>
        <translation>请换一个不在读取内容之中的名称</translation>
    </message>
    <message>
        <source>It would take the place of %1, which is read</source>
        <translation>它会取代正在读取的 %1</translation>
    </message>
    <message>
        <source>%1, which is read, lies in it</source>
        <translation>正在读取的 %1 位于其中</translation>
    </message>
    <message>
        <source>It lies in %1, which is read</source>
        <translation>它位于正在读取的 %1 之中</translation>
    </message>
    <message>
        <source>Operation not permitted</source>
        <translation>不允许的操作</translation>
    </message>
    <message>
        <source>No such file or directory</source>
        <translation>没有该文件或文件夹</translation>
    </message>
    <message>
        <source>Input/output error</source>
        <translation>输入/输出错误</translation>
    </message>
    <message>
        <source>Bad file descriptor</source>
        <translation>无效的文件描述符</translation>
    </message>
    <message>
        <source>Cannot allocate memory</source>
        <translation>内存不足</translation>
    </message>
    <message>
        <source>Permission denied</source>
        <translation>权限不够</translation>
    </message>
    <message>
        <source>Device or resource busy</source>
        <translation>设备或资源忙</translation>
    </message>
    <message>
        <source>File exists</source>
        <translation>文件已存在</translation>
    </message>
    <message>
        <source>Invalid cross-device link</source>
        <translation>跨设备的无效链接</translation>
    </message>
    <message>
        <source>Not a directory</source>
        <translation>不是文件夹</translation>
    </message>
    <message>
        <source>Is a directory</source>
        <translation>是一个文件夹</translation>
    </message>
    <message>
        <source>Invalid argument</source>
        <translation>无效的参数</translation>
    </message>
    <message>
        <source>Too many open files in system</source>
        <translation>系统中打开的文件过多</translation>
    </message>
    <message>
        <source>Too many open files</source>
        <translation>打开的文件过多</translation>
    </message>
    <message>
        <source>Text file busy</source>
        <translation>程序文件正在使用</translation>
    </message>
    <message>
        <source>File too large</source>
        <translation>文件过大</translation>
    </message>
    <message>
        <source>No space left on device</source>
        <translation>设备上没有空间</translation>
    </message>
    <message>
        <source>Read-only file system</source>
        <translation>文件系统只读</translation>
    </message>
    <message>
        <source>Too many links</source>
        <translation>链接过多</translation>
    </message>
    <message>
        <source>Broken pipe</source>
        <translation>管道已断开</translation>
    </message>
    <message>
        <source>File name too long</source>
        <translation>文件名过长</translation>
    </message>
    <message>
        <source>Directory not empty</source>
        <translation>文件夹非空</translation>
    </message>
    <message>
        <source>Too many levels of symbolic links</source>
        <translation>符号链接层数过多</translation>
    </message>
    <message>
        <source>Disk quota exceeded</source>
        <translation>超出磁盘配额</translation>
    </message>
    <message>
        <source>Stale file handle</source>
        <translation>文件句柄已失效</translation>
    </message>
    <message>
        <source>Standard output</source>
        <translation>标准输出</translation>
    </message>
    <message>
        <source>standard input</source>
        <translation>标准输入</translation>
    </message>
    <message>
        <source>%1.</source>
        <translation>%1。</translation>
    </message>
    <message>
        <source>%1, line %2</source>
        <translation>%1，第 %2 行</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1：%2</translation>
    </message>
    <message>
        <source>Something unexpected happened: %1</source>
        <translation>发生意外：%1</translation>
    </message>
    <message>
        <source>Its files can&apos;t be unpacked: %1</source>
        <translation>无法解压其中的文件：%1</translation>
    </message>
    <message>
        <source>It can&apos;t be written: %1</source>
        <translation>无法写入：%1</translation>
    </message>
    <message>
        <source>Make room in the folder for temporary files</source>
        <translation>请在临时文件夹中腾出空间</translation>
    </message>
    <message>
        <source>Check that there is room and that you may write there</source>
        <translation>请检查是否有足够空间以及是否有写入权限</translation>
    </message>
    <message>
        <source>There is a file or folder of this name already</source>
        <translation>已有同名的文件或文件夹</translation>
    </message>
    <message>
        <source>Give another name, or leave out --no-clobber</source>
        <translation>请换一个名称，或去掉 --no-clobber</translation>
    </message>
    <message>
        <source>it is empty</source>
        <translation>为空</translation>
    </message>
    <message>
        <source>it leads out of the package</source>
        <translation>指向包外</translation>
    </message>
    <message>
        <source>it contains a separator of folders</source>
        <translation>含有文件夹分隔符</translation>
    </message>
    <message>
        <source>it contains a colon</source>
        <translation>含有冒号</translation>
    </message>
    <message>
        <source>it contains control characters</source>
        <translation>含有控制字符</translation>
    </message>
    <message>
        <source>it is the name of a device</source>
        <translation>是设备的名称</translation>
    </message>
    <message>
        <source>it is too long</source>
        <translation>过长</translation>
    </message>
    <message>
        <source>it is an absolute path</source>
        <translation>是绝对路径</translation>
    </message>
    <message>
        <source>it has an empty part</source>
        <translation>有一部分为空</translation>
    </message>
    <message>
        <source>This is a link, which a package must not hold</source>
        <translation>这是链接，包中不能有链接</translation>
    </message>
    <message>
        <source>Put the file itself in its place</source>
        <translation>请把文件本身放到它的位置</translation>
    </message>
    <message>
        <source>The name of this file is no UTF-8, so that no lesson can call it</source>
        <translation>此文件的名称不是 UTF-8，课件无法引用它</translation>
    </message>
    <message>
        <source>This is a pipe or a device, which a package must not hold</source>
        <translation>这是管道或设备，包中不能有这类内容</translation>
    </message>
    <message>
        <source>Remove it from the folder</source>
        <translation>请把它从文件夹中移走</translation>
    </message>
    <message>
        <source>There is no such file or folder</source>
        <translation>没有该文件或文件夹</translation>
    </message>
    <message>
        <source>Check the path</source>
        <translation>请检查路径</translation>
    </message>
    <message>
        <source>It can&apos;t be read</source>
        <translation>无法读取</translation>
    </message>
    <message>
        <source>The path &quot;%1&quot; can&apos;t be used: %2</source>
        <translation>路径“%1”不能使用：%2</translation>
    </message>
    <message>
        <source>Name a file inside the package</source>
        <translation>请指定包内的文件</translation>
    </message>
    <message>
        <source>The package has no such file</source>
        <translation>包中没有该文件</translation>
    </message>
    <message>
        <source>Check that it is complete</source>
        <translation>请检查它是否完整</translation>
    </message>
    <message>
        <source>The folder can&apos;t be read: %1</source>
        <translation>无法读取文件夹：%1</translation>
    </message>
    <message>
        <source>The folder to write into doesn&apos;t exist</source>
        <translation>要写入的文件夹不存在</translation>
    </message>
    <message>
        <source>Make the folder first, or check the path</source>
        <translation>请先建立文件夹，或检查路径</translation>
    </message>
    <message>
        <source>The lesson has more than the %1 files that an archive can hold</source>
        <translation>课件的文件数超过压缩包所能容纳的 %1 个</translation>
    </message>
    <message>
        <source>Write it as a folder, or divide it</source>
        <translation>请写成文件夹，或将课件拆分</translation>
    </message>
    <message>
        <source>The lesson has more than the 2 GiB that are read from an archive</source>
        <translation>课件超过可从压缩包读取的 2 GiB</translation>
    </message>
    <message>
        <source>The package can&apos;t hold a file &quot;%1&quot;: %2</source>
        <translation>包中不能有文件“%1”：%2</translation>
    </message>
    <message>
        <source>The lesson has two files &quot;%1&quot;</source>
        <translation>课件中有两个文件“%1”</translation>
    </message>
    <message>
        <source>Give one of them another name</source>
        <translation>请给其中一个换一个名称</translation>
    </message>
    <message>
        <source>There is a folder of this name already</source>
        <translation>已有同名的文件夹</translation>
    </message>
    <message>
        <source>There is a device or a pipe of this name</source>
        <translation>已有同名的设备或管道</translation>
    </message>
    <message>
        <source>Give another name, or remove it</source>
        <translation>请换一个名称，或将其移走</translation>
    </message>
    <message>
        <source>There is a file of this name already</source>
        <translation>已有同名的文件</translation>
    </message>
    <message>
        <source>Give another name, or remove the file</source>
        <translation>请换一个名称，或删除该文件</translation>
    </message>
    <message>
        <source>There is a folder of this name already, and it is no lesson</source>
        <translation>已有同名的文件夹，而且不是课件</translation>
    </message>
    <message>
        <source>Give another name, or remove the folder</source>
        <translation>请换一个名称，或删除该文件夹</translation>
    </message>
    <message>
        <source>The lesson&apos;s files pack so tightly that nobody would take it for a lesson</source>
        <translation>课件文件的压缩率过高，不会被当作课件</translation>
    </message>
    <message>
        <source>Write it as a folder</source>
        <translation>请写成文件夹</translation>
    </message>
    <message>
        <source>it can&apos;t be read</source>
        <translation>无法读取</translation>
    </message>
    <message>
        <source>it is no picture that can be read</source>
        <translation>不是可读取的图片</translation>
    </message>
    <message>
        <source>it is a damaged picture</source>
        <translation>是损坏的图片</translation>
    </message>
    <message>
        <source>it has more pixels than any screen</source>
        <translation>像素多于任何屏幕</translation>
    </message>
    <message>
        <source>This is no drawing in svg of at most %1 MiB</source>
        <translation>这不是不超过 %1 MiB 的 svg 图形</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1、%2</translation>
    </message>
    <message>
        <source>%1 and %2</source>
        <translation>%1和%2</translation>
    </message>
    <message>
        <source>%1 or %2</source>
        <translation>%1或%2</translation>
    </message>
    <message>
        <source>No temporary folder can be made: %1</source>
        <translation>无法建立临时文件夹：%1</translation>
    </message>
    <message>
        <source>This is not well-formed XML: %1 (column %2)</source>
        <translation>这不是格式正确的 XML：%1（第 %2 列）</translation>
    </message>
    <message>
        <source>Check that the file is complete</source>
        <translation>请检查文件是否完整</translation>
    </message>
    <message>
        <source>Check that this is a lesson</source>
        <translation>请检查这是否为课件</translation>
    </message>
    <message>
        <source>The file is larger than %1 MiB</source>
        <translation>文件大于 %1 MiB</translation>
    </message>
    <message>
        <source>An element has more than %1 attributes</source>
        <translation>有元素的属性超过 %1 个</translation>
    </message>
    <message>
        <source>The document has a document type declaration, which lessons don&apos;t use</source>
        <translation>文档含有文档类型声明，课件不使用这种声明</translation>
    </message>
    <message>
        <source>Remove the &lt;!DOCTYPE ...&gt; part</source>
        <translation>请删除 &lt;!DOCTYPE ...&gt; 部分</translation>
    </message>
    <message>
        <source>This is not well-formed XML: it isn&apos;t in the encoding that it says it is in</source>
        <translation>这不是格式正确的 XML：实际编码与声明的不同</translation>
    </message>
    <message>
        <source>Save it in UTF-8</source>
        <translation>请保存为 UTF-8</translation>
    </message>
    <message>
        <source>The file can&apos;t be read to its end</source>
        <translation>无法读到文件末尾</translation>
    </message>
    <message>
        <source>Check the disk that it is on</source>
        <translation>请检查它所在的磁盘</translation>
    </message>
    <message>
        <source>The document is too large: what is in it would take more than %1 MiB of memory</source>
        <translation>文档过大：其内容需要的内存超过 %1 MiB</translation>
    </message>
    <message>
        <source>Divide it into smaller ones, or check that this is a lesson</source>
        <translation>请拆分成较小的文档，或检查这是否为课件</translation>
    </message>
    <message>
        <source>Elements are nested deeper than %1 levels</source>
        <translation>元素嵌套超过 %1 层</translation>
    </message>
    <message>
        <source>Take some groups apart, or check that this is a lesson</source>
        <translation>请取消一些组合，或检查这是否为课件</translation>
    </message>
    <message>
        <source>It would be larger than the %1 MiB that are read from one file of XML</source>
        <translation>它会超过可从一个 XML 文件读取的 %1 MiB</translation>
    </message>
    <message>
        <source>Divide the slide or the lesson</source>
        <translation>请拆分幻灯片或课件</translation>
    </message>
    <message>
        <source>Nothing was unpacked. Ask for a package from a source you trust</source>
        <translation>没有解压任何内容。请向可信的来源索取课件包</translation>
    </message>
    <message>
        <source>This is no zip archive, or a part of it is missing</source>
        <translation>这不是 zip 压缩包，或缺少一部分</translation>
    </message>
    <message>
        <source>Copy or download the file again</source>
        <translation>请重新复制或下载文件</translation>
    </message>
    <message>
        <source>This is one of several parts of an archive</source>
        <translation>这是分卷压缩包中的一卷</translation>
    </message>
    <message>
        <source>Put the parts together, or unpack them and give the folder</source>
        <translation>请将各卷合并，或解压后给出文件夹</translation>
    </message>
    <message>
        <source>The archive has more than %1 entries</source>
        <translation>压缩包的条目超过 %1 个</translation>
    </message>
    <message>
        <source>The entry &quot;%1&quot; can&apos;t be unpacked: %2</source>
        <translation>无法解压条目“%1”：%2</translation>
    </message>
    <message>
        <source>The name of the entry &quot;%1&quot; is no UTF-8</source>
        <translation>条目“%1”的名称不是 UTF-8</translation>
    </message>
    <message>
        <source>The entry &quot;%1&quot; is a link or a device</source>
        <translation>条目“%1”是链接或设备</translation>
    </message>
    <message>
        <source>The archive is protected by a password</source>
        <translation>压缩包有密码保护</translation>
    </message>
    <message>
        <source>Unpack it first and give the folder</source>
        <translation>请先解压，再给出文件夹</translation>
    </message>
    <message>
        <source>The entry &quot;%1&quot; is packed in a way that lessons aren&apos;t</source>
        <translation>条目“%1”的压缩方式不用于课件</translation>
    </message>
    <message>
        <source>The entry &quot;%1&quot; is packed more tightly than can be</source>
        <translation>条目“%1”的压缩率高得不可能</translation>
    </message>
    <message>
        <source>The archive names &quot;%1&quot; twice</source>
        <translation>压缩包中“%1”出现两次</translation>
    </message>
    <message>
        <source>The archive unpacks to more than 2 GiB</source>
        <translation>压缩包解压后超过 2 GiB</translation>
    </message>
    <message>
        <source>The archive is packed more tightly than any lesson</source>
        <translation>压缩包的压缩率高于任何课件</translation>
    </message>
    <message>
        <source>The entry &quot;%1&quot; can&apos;t be unpacked</source>
        <translation>无法解压条目“%1”</translation>
    </message>
    <message>
        <source>The entry &quot;%1&quot; is damaged</source>
        <translation>条目“%1”已损坏</translation>
    </message>
    <message>
        <source>the backslashes in the archive&apos;s names were taken for slashes</source>
        <translation>压缩包名称中的反斜杠已按斜杠处理</translation>
    </message>
    <message>
        <source>The format &quot;%1&quot; can&apos;t be written</source>
        <translation>无法写入格式“%1”</translation>
    </message>
    <message>
        <source>See lessonconv formats</source>
        <translation>参见 lessonconv formats</translation>
    </message>
    <message>
        <source>The format &quot;%1&quot; can&apos;t be read</source>
        <translation>无法读取格式“%1”</translation>
    </message>
    <message>
        <source>interactive whiteboard package: a folder with content.xml, or the same zipped as .iwb</source>
        <translation>交互式白板包：含 content.xml 的文件夹，或其压缩成的 .iwb</translation>
    </message>
    <message>
        <source>The resource &quot;%1&quot; can&apos;t be used: %2</source>
        <translation>资源“%1”不能使用：%2</translation>
    </message>
    <message>
        <source>The resource &quot;%1&quot; is there twice</source>
        <translation>资源“%1”出现两次</translation>
    </message>
    <message>
        <source>Slide %1 is no object with a list of items</source>
        <translation>幻灯片 %1 不是带有对象列表的结构</translation>
    </message>
    <message>
        <source>An item of slide %1 is no object</source>
        <translation>幻灯片 %1 中有一项不是对象</translation>
    </message>
    <message>
        <source>The lesson has no file &quot;%1&quot;</source>
        <translation>课件中没有文件“%1”</translation>
    </message>
    <message>
        <source>The resource &quot;%1&quot; is no base64 text</source>
        <translation>资源“%1”不是 base64 文本</translation>
    </message>
    <message>
        <source>The lesson has more than the %1 slides or files that are read from JSON</source>
        <translation>课件的幻灯片或文件超过可从 JSON 读取的 %1 个</translation>
    </message>
    <message>
        <source>The lesson can&apos;t hold a file &quot;%1&quot;: %2</source>
        <translation>课件中不能有文件“%1”：%2</translation>
    </message>
    <message>
        <source>The lesson has more than the 1 GiB that is read from one file of JSON</source>
        <translation>课件超过可从一个 JSON 文件读取的 1 GiB</translation>
    </message>
    <message>
        <source>Write it as zqtx, or divide it</source>
        <translation>请写成 zqtx，或将课件拆分</translation>
    </message>
    <message>
        <source>the lesson model in one file, with the files that belong to it inside</source>
        <translation>单个文件中的课件模型，包含所属文件</translation>
    </message>
    <message>
        <source>The file is larger than 1 GiB</source>
        <translation>文件大于 1 GiB</translation>
    </message>
    <message>
        <source>Check that the file is complete and is a lesson in JSON</source>
        <translation>请检查文件是否完整以及是否为 JSON 课件</translation>
    </message>
    <message>
        <source>This is not JSON: %1</source>
        <translation>这不是 JSON：%1</translation>
    </message>
    <message>
        <source>A file of the lesson is no base64 text</source>
        <translation>课件中有文件不是 base64 文本</translation>
    </message>
    <message>
        <source>The lesson has &quot;%1&quot; twice</source>
        <translation>课件中“%1”出现两次</translation>
    </message>
    <message>
        <source>The lesson has more than %1 slides</source>
        <translation>课件的幻灯片超过 %1 张</translation>
    </message>
    <message>
        <source>This is not JSON: there is something behind the end of the lesson</source>
        <translation>这不是 JSON：课件结尾之后还有内容</translation>
    </message>
    <message>
        <source>This is no lesson: it has no &quot;Slides&quot;</source>
        <translation>这不是课件：没有“Slides”</translation>
    </message>
    <message>
        <source>This is not JSON: the file ends too early</source>
        <translation>这不是 JSON：文件过早结束</translation>
    </message>
    <message>
        <source>This is not JSON: &quot;%1&quot; was expected here</source>
        <translation>这不是 JSON：此处应为“%1”</translation>
    </message>
    <message>
        <source>This is not JSON: a text has no end</source>
        <translation>这不是 JSON：有文本没有结尾</translation>
    </message>
    <message>
        <source>Values are nested deeper than %1 levels</source>
        <translation>值的嵌套超过 %1 层</translation>
    </message>
    <message>
        <source>This is not JSON: a value was expected here</source>
        <translation>这不是 JSON：此处应有一个值</translation>
    </message>
    <message>
        <source>The format can&apos;t be told from the name</source>
        <translation>无法从名称判断格式</translation>
    </message>
    <message>
        <source>Say which it is with %1 (one of %2)</source>
        <translation>请用 %1 说明（可选 %2）</translation>
    </message>
    <message>
        <source>There is no format &quot;%1&quot;</source>
        <translation>没有格式“%1”</translation>
    </message>
    <message>
        <source>Use one of %1</source>
        <translation>请使用其中之一：%1</translation>
    </message>
    <message>
        <source>This folder is no lesson: it has neither index.xml nor content.xml</source>
        <translation>此文件夹不是课件：既没有 index.xml 也没有 content.xml</translation>
    </message>
    <message>
        <source>To convert all lessons in a folder, say --to FORMAT --out-dir FOLDER</source>
        <translation>要转换文件夹中的所有课件，请使用 --to 格式 --out-dir 文件夹</translation>
    </message>
    <message>
        <source>%1 is called like a lesson in the format %2 and is one in %3</source>
        <translation>%1 的名称是 %2 格式课件的名称，内容却是 %3</translation>
    </message>
    <message>
        <source>The document begins with &lt;%1&gt; where a raw lesson has &lt;%2&gt;</source>
        <translation>文档以 &lt;%1&gt; 开头，而原始课件应为 &lt;%2&gt;</translation>
    </message>
    <message>
        <source>Check that this is a lesson in raw XML</source>
        <translation>请检查这是否为原始 XML 课件</translation>
    </message>
    <message>
        <source>flat XML in one file, files in the folder &quot;resources&quot; beside it; only read</source>
        <translation>单个文件的平面 XML，文件放在旁边的“resources”文件夹中；仅可读</translation>
    </message>
    <message>
        <source>The document begins with &lt;%1&gt; where a lesson has &lt;%2&gt;</source>
        <translation>文档以 &lt;%1&gt; 开头，而课件应为 &lt;%2&gt;</translation>
    </message>
    <message>
        <source>Check that this is a ZQTX lesson</source>
        <translation>请检查这是否为 ZQTX 课件</translation>
    </message>
    <message>
        <source>The items of slide %1 are nested deeper than %2 levels of XML</source>
        <translation>幻灯片 %1 的对象嵌套超过 %2 层 XML</translation>
    </message>
    <message>
        <source>Take some groups or branches apart</source>
        <translation>请取消一些组合或分支</translation>
    </message>
    <message>
        <source>The slide &quot;%1&quot; can&apos;t be opened: %2</source>
        <translation>无法打开幻灯片“%1”：%2</translation>
    </message>
    <message>
        <source>Name a file of the package, such as slides/1.xml</source>
        <translation>请指定包中的文件，例如 slides/1.xml</translation>
    </message>
    <message>
        <source>The slide &quot;%1&quot; is named twice</source>
        <translation>幻灯片“%1”被列出两次</translation>
    </message>
    <message>
        <source>Remove one of the two lines</source>
        <translation>请删除两行中的一行</translation>
    </message>
    <message>
        <source>The slide &quot;%1&quot; is missing from the package</source>
        <translation>包中缺少幻灯片“%1”</translation>
    </message>
    <message>
        <source>Put the file back, or remove its line</source>
        <translation>请放回该文件，或删除它所在的行</translation>
    </message>
    <message>
        <source>the file %1 is called %2 when it is written again</source>
        <translation>文件 %1 再次写出时名为 %2</translation>
    </message>
    <message numerus="yes">
        <source>%n had a matrix, which is worked into where they stand</source>
        <translation>
            <numerusform>%n 个对象带有矩阵，已计入其位置</numerusform>
        </translation>
    </message>
    <message>
        <source>The identifier &quot;%1&quot; of slide %2 can&apos;t name a file: %3</source>
        <translation>幻灯片 %2 的标识“%1”不能用作文件名：%3</translation>
    </message>
    <message>
        <source>Give the slide another ID</source>
        <translation>请给该幻灯片另一个 ID</translation>
    </message>
    <message>
        <source>Slide %1 has the identifier &quot;%2&quot; of a slide before it</source>
        <translation>幻灯片 %1 的标识“%2”与之前的幻灯片相同</translation>
    </message>
    <message>
        <source>lesson package: a folder with index.xml and slides/, or the same zipped as .zqtx</source>
        <translation>课件包：含 index.xml 和 slides/ 的文件夹，或其压缩成的 .zqtx</translation>
    </message>
    <message>
        <source>it has no points</source>
        <translation>没有点</translation>
    </message>
    <message>
        <source>the lesson has no such file</source>
        <translation>课件中没有该文件</translation>
    </message>
    <message>
        <source>it has too few points to be drawn</source>
        <translation>点太少，无法绘制</translation>
    </message>
    <message>
        <source>The document begins with &lt;%1&gt; where an IWB file has &lt;iwb&gt;</source>
        <translation>文档以 &lt;%1&gt; 开头，而 IWB 文件应为 &lt;iwb&gt;</translation>
    </message>
    <message>
        <source>Check that this is an IWB lesson</source>
        <translation>请检查这是否为 IWB 课件</translation>
    </message>
    <message>
        <source>it names no file</source>
        <translation>没有指定文件</translation>
    </message>
    <message>
        <source>it lies outside of the package and isn&apos;t fetched</source>
        <translation>位于包外，不会获取</translation>
    </message>
    <message>
        <source>it is a folder</source>
        <translation>是文件夹</translation>
    </message>
    <message>
        <source>the package has no such file</source>
        <translation>包中没有该文件</translation>
    </message>
    <message>
        <source>it is a paper of the editor, not a file of the lesson</source>
        <translation>是编辑器的纸张，不是课件的文件</translation>
    </message>
    <message>
        <source>a page has one background picture</source>
        <translation>一页只有一张背景图片</translation>
    </message>
    <message>
        <source>it can&apos;t be made a PNG picture</source>
        <translation>无法转换成 PNG 图片</translation>
    </message>
    <message>
        <source>it shows &quot;%1&quot;, which isn&apos;t beside it in the lesson</source>
        <translation>显示“%1”，而课件中没有该文件与之并列</translation>
    </message>
    <message>
        <source>taken apart, its items stand on the page by themselves</source>
        <translation>已拆开，其中的对象各自位于页面上</translation>
    </message>
    <message>
        <source>the lesson has no such file to open</source>
        <translation>课件中没有可打开的该文件</translation>
    </message>
    <message>
        <source>The document has no svg element with pages</source>
        <translation>文档中没有包含页面的 svg 元素</translation>
    </message>
    <message>
        <source>other items stand between those of the group, which fell apart</source>
        <translation>组合的对象之间有其他对象，组合已拆散</translation>
    </message>
    <message>
        <source>nothing is made of it</source>
        <translation>没有由它生成任何内容</translation>
    </message>
    <message>
        <source>link to &quot;%1&quot;: %2</source>
        <translation>指向“%1”的链接：%2</translation>
    </message>
    <message>
        <source>it is too deep to travel along, so that what other boards don&apos;t show is lost</source>
        <translation>嵌套过深，无法随附，因此其他白板不显示的内容会丢失</translation>
    </message>
    <message>
        <source>The plug-in writes no IWB pages</source>
        <translation>插件不能写 IWB 页面</translation>
    </message>
    <message>
        <source>Use the plug-in that belongs to this command</source>
        <translation>请使用属于此命令的插件</translation>
    </message>
    <message numerus="yes">
        <source>%n strokes became polylines</source>
        <translation>
            <numerusform>%n 个笔画变成折线</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n strokes left out</source>
        <translation>
            <numerusform>舍弃了 %n 个笔画</numerusform>
        </translation>
    </message>
    <message>
        <source>no page shows them, so they stay behind: %1</source>
        <translation>没有页面显示它们，因此不随附：%1</translation>
    </message>
    <message numerus="yes">
        <source>%n items are as they were</source>
        <translation>
            <numerusform>%n 个对象保持原样</numerusform>
        </translation>
    </message>
    <message>
        <source>Chinese characters</source>
        <translation>中文字符</translation>
    </message>
    <message>
        <source>Japanese letters</source>
        <translation>日文字符</translation>
    </message>
    <message>
        <source>Korean letters</source>
        <translation>韩文字母</translation>
    </message>
    <message>
        <source>Latin letters</source>
        <translation>拉丁字母</translation>
    </message>
    <message>
        <source>Greek letters</source>
        <translation>希腊字母</translation>
    </message>
    <message>
        <source>Cyrillic letters</source>
        <translation>西里尔字母</translation>
    </message>
    <message>
        <source>Armenian letters</source>
        <translation>亚美尼亚字母</translation>
    </message>
    <message>
        <source>Georgian letters</source>
        <translation>格鲁吉亚字母</translation>
    </message>
    <message>
        <source>Arabic letters</source>
        <translation>阿拉伯字母</translation>
    </message>
    <message>
        <source>Hebrew letters</source>
        <translation>希伯来字母</translation>
    </message>
    <message>
        <source>Thai letters</source>
        <translation>泰文字母</translation>
    </message>
    <message>
        <source>Lao letters</source>
        <translation>老挝文字母</translation>
    </message>
    <message>
        <source>Khmer letters</source>
        <translation>高棉文字母</translation>
    </message>
    <message>
        <source>Burmese letters</source>
        <translation>缅甸文字母</translation>
    </message>
    <message>
        <source>Tibetan letters</source>
        <translation>藏文字母</translation>
    </message>
    <message>
        <source>Mongolian letters</source>
        <translation>蒙古文字母</translation>
    </message>
    <message>
        <source>Ethiopic letters</source>
        <translation>埃塞俄比亚字母</translation>
    </message>
    <message>
        <source>Devanagari letters</source>
        <translation>天城文字母</translation>
    </message>
    <message>
        <source>Bengali letters</source>
        <translation>孟加拉文字母</translation>
    </message>
    <message>
        <source>Gurmukhi letters</source>
        <translation>古木基文字母</translation>
    </message>
    <message>
        <source>Gujarati letters</source>
        <translation>古吉拉特文字母</translation>
    </message>
    <message>
        <source>Tamil letters</source>
        <translation>泰米尔文字母</translation>
    </message>
    <message>
        <source>Telugu letters</source>
        <translation>泰卢固文字母</translation>
    </message>
    <message>
        <source>Kannada letters</source>
        <translation>卡纳达文字母</translation>
    </message>
    <message>
        <source>Malayalam letters</source>
        <translation>马拉雅拉姆文字母</translation>
    </message>
    <message>
        <source>Sinhala letters</source>
        <translation>僧伽罗文字母</translation>
    </message>
    <message>
        <source>Yi letters</source>
        <translation>彝文字符</translation>
    </message>
    <message>
        <source>Chinese signs</source>
        <translation>中文符号</translation>
    </message>
    <message>
        <source>emoji</source>
        <translation>表情符号</translation>
    </message>
    <message>
        <source>signs</source>
        <translation>符号</translation>
    </message>
    <message numerus="yes">
        <source>%1 and %n more</source>
        <translation>
            <numerusform>%1，另有 %n 个</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n slides have %1 and no font here has them: install %2</source>
        <translation>
            <numerusform>%n 张幻灯片有%1，而这里没有相应字体：请安装 %2</numerusform>
        </translation>
    </message>
    <message>
        <source>the font %1, which isn&apos;t here</source>
        <translation>这里没有的字体 %1</translation>
    </message>
    <message>
        <source>the fonts %1, which aren&apos;t here</source>
        <translation>这里没有的字体 %1</translation>
    </message>
    <message>
        <source>letters look otherwise</source>
        <translation>字母外观会不同</translation>
    </message>
    <message>
        <source>install %1</source>
        <translation>请安装 %1</translation>
    </message>
    <message numerus="yes">
        <source>%n slides have %1: %2</source>
        <translation>
            <numerusform>%n 张幻灯片使用%1：%2</numerusform>
        </translation>
    </message>
    <message>
        <source>Spread its items over several slides</source>
        <translation>请将对象分到多张幻灯片</translation>
    </message>
    <message>
        <source>Slide %1 takes %2 MiB, and no slide may take more than %3</source>
        <translation>幻灯片 %1 占 %2 MiB，而每张幻灯片不得超过 %3</translation>
    </message>
    <message>
        <source>Slide %1 has %2 items, and no slide may have more than %3</source>
        <translation>幻灯片 %1 有 %2 个对象，而每张幻灯片不得超过 %3 个</translation>
    </message>
    <message numerus="yes">
        <source>%n indented paragraphs</source>
        <translation>
            <numerusform>%n 个缩进段落</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n paragraphs with a line height of their own</source>
        <translation>
            <numerusform>%n 个自定行高的段落</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n backgrounds of paragraphs</source>
        <translation>
            <numerusform>%n 个段落背景</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n rules</source>
        <translation>
            <numerusform>%n 条分隔线</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n cells of tables</source>
        <translation>
            <numerusform>%n 个表格单元格</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n texts with a line above</source>
        <translation>
            <numerusform>%n 段带上划线的文本</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n texts in another case or spacing</source>
        <translation>
            <numerusform>%n 段改变大小写或字距的文本</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n links within the text</source>
        <translation>
            <numerusform>%n 个文本内链接</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n control characters</source>
        <translation>
            <numerusform>%n 个控制字符</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n pictures within the text</source>
        <translation>
            <numerusform>%n 张文本内图片</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n tags, which are too many or nested too deep</source>
        <translation>
            <numerusform>%n 个标签，过多或嵌套过深</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 became %2</source>
        <translation>%1 变成 %2</translation>
    </message>
    <message>
        <source>%1 on slide %2</source>
        <translation>幻灯片 %2 的 %1</translation>
    </message>
    <message>
        <source>%1 on slides %2 to %3</source>
        <translation>幻灯片 %2 到 %3 的 %1</translation>
    </message>
    <message numerus="yes">
        <source>%1 on %n slides from %2 to %3</source>
        <translation>
            <numerusform>幻灯片 %2 到 %3 中 %n 张的 %1</numerusform>
        </translation>
    </message>
    <message>
        <source>of items %1</source>
        <translation>对象的 %1</translation>
    </message>
    <message numerus="yes">
        <source>%1 (%n times)</source>
        <translation>
            <numerusform>%1（%n 次）</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n values lost: %1</source>
        <translation>
            <numerusform>丢失 %n 个值：%1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n items have no form here: %1</source>
        <translation>
            <numerusform>%n 个对象在此没有对应形式：%1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n items have no %1 form: %2</source>
        <translation>
            <numerusform>%n 个对象在 %1 中没有对应形式：%2</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n items kept as they came: %1</source>
        <translation>
            <numerusform>%n 个对象按原样保留：%1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n files missing or of no use: %1</source>
        <translation>
            <numerusform>%n 个文件缺失或无法使用：%1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n items are pictures on other boards: %1</source>
        <translation>
            <numerusform>%n 个对象在其他白板上是图片：%1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n items aren&apos;t shown by other boards: %1</source>
        <translation>
            <numerusform>%n 个对象在其他白板上不显示：%1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n values are otherwise on other boards: %1</source>
        <translation>
            <numerusform>%n 个值在其他白板上不同：%1</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 (items shown by their name: %2)</source>
        <translation>%1（仅以名称显示的对象：%2）</translation>
    </message>
    <message>
        <source>The part of lessonconv that writes PDF, %1, was not found</source>
        <translation>找不到 lessonconv 中写 PDF 的部分 %1</translation>
    </message>
    <message>
        <source>Build or install the project again, or write .html</source>
        <translation>请重新构建或安装项目，或写成 .html</translation>
    </message>
    <message>
        <source>The part of lessonconv that writes PDF can&apos;t be loaded: %1</source>
        <translation>无法加载 lessonconv 中写 PDF 的部分：%1</translation>
    </message>
    <message>
        <source>The pages can&apos;t be drawn: %1</source>
        <translation>无法绘制页面：%1</translation>
    </message>
    <message>
        <source>The pictures of a lesson are written into one folder</source>
        <translation>一个课件的图片写入同一个文件夹</translation>
    </message>
    <message>
        <source>Put %d behind the last / in the name</source>
        <translation>请在名称中最后一个 / 之后放 %d</translation>
    </message>
    <message>
        <source>%1 slides don&apos;t go into one picture</source>
        <translation>%1 张幻灯片放不进一张图片</translation>
    </message>
    <message>
        <source>Put %d in the name for the number of the slide, or choose one with --slides</source>
        <translation>请在名称中放 %d 表示幻灯片编号，或用 --slides 选一张</translation>
    </message>
    <message>
        <source>Pictures in %1 can&apos;t be written on this machine</source>
        <translation>此计算机不能写 %1 图片</translation>
    </message>
    <message>
        <source>Install qt5-image-formats-plugins, or write png</source>
        <translation>请安装 qt5-image-formats-plugins，或写成 png</translation>
    </message>
    <message>
        <source>There is no slide %1: the lesson has %2</source>
        <translation>没有幻灯片 %1：课件共有 %2 张</translation>
    </message>
    <message>
        <source>Name other slides with --slides</source>
        <translation>请用 --slides 指定其他幻灯片</translation>
    </message>
    <message>
        <source>The lesson has no slides to draw</source>
        <translation>课件没有可绘制的幻灯片</translation>
    </message>
    <message>
        <source>Two lessons side by side are written as one page</source>
        <translation>并排的两个课件写成一个页面</translation>
    </message>
    <message>
        <source>Give the output a name in .html</source>
        <translation>请给输出一个以 .html 结尾的名称</translation>
    </message>
    <message>
        <source>Slide %1</source>
        <translation>幻灯片 %1</translation>
    </message>
    <message>
        <source>This lesson has no such slide.</source>
        <translation>此课件没有这张幻灯片。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no number of pixels</source>
        <translation>“%1”不是像素数</translation>
    </message>
    <message>
        <source>Write a number from 1 to %1, such as --%2 640</source>
        <translation>请写 1 到 %1 之间的数，例如 --%2 640</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no such number</source>
        <translation>“%1”不是这样的数</translation>
    </message>
    <message>
        <source>Give --%1 a number from %2 to %3</source>
        <translation>请给 --%1 一个 %2 到 %3 之间的数</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no size</source>
        <translation>“%1”不是大小</translation>
    </message>
    <message>
        <source>Write width and height in pixels, such as --size 1280x720, up to %1 each</source>
        <translation>请以像素写出宽和高，例如 --size 1280x720，各不超过 %1</translation>
    </message>
    <message>
        <source>%1 changes nothing about %2</source>
        <translation>%1 对 %2 不起作用</translation>
    </message>
    <message>
        <source>%1 and %2 both say how large pictures are</source>
        <translation>%1 和 %2 都指定图片大小</translation>
    </message>
    <message>
        <source>Give one of them; --size 1280x720 sets bounds for both sides</source>
        <translation>请只给其中一个；--size 1280x720 可同时限制两边</translation>
    </message>
    <message>
        <source>--pad changes nothing without --size</source>
        <translation>没有 --size 时 --pad 不起作用</translation>
    </message>
    <message>
        <source>Leave it out, or say the whole size, such as --size 1280x720</source>
        <translation>请去掉它，或给出完整的大小，例如 --size 1280x720</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no colour</source>
        <translation>“%1”不是颜色</translation>
    </message>
    <message>
        <source>Write a name or red, green and blue, such as --background &quot;#ffffe0&quot;, or transparent</source>
        <translation>请写颜色名称或红绿蓝，例如 --background &quot;#ffffe0&quot;，或写 transparent</translation>
    </message>
    <message>
        <source>In %1 nothing shows through</source>
        <translation>%1 中不能透明</translation>
    </message>
    <message>
        <source>Take a colour for --background, or write %1</source>
        <translation>请给 --background 一种颜色，或写成 %1</translation>
    </message>
    <message>
        <source>&quot;%1&quot; names no slides</source>
        <translation>“%1”没有指定幻灯片</translation>
    </message>
    <message>
        <source>Count from 1, such as --slides 2-5 or --slides 1,4</source>
        <translation>请从 1 数起，例如 --slides 2-5 或 --slides 1,4</translation>
    </message>
    <message>
        <source>Pictures can&apos;t be written as &quot;%1&quot;</source>
        <translation>图片不能写成“%1”</translation>
    </message>
    <message>
        <source>Say %1</source>
        <translation>请使用 %1</translation>
    </message>
    <message>
        <source>Pictures can&apos;t be written in this form</source>
        <translation>图片不能写成这种形式</translation>
    </message>
    <message>
        <source>Give the output a name in %1, or say the form with --to</source>
        <translation>请给输出一个以 %1 结尾的名称，或用 --to 指定形式</translation>
    </message>
    <message>
        <source>--embed changes nothing about %1</source>
        <translation>--embed 对 %1 不起作用</translation>
    </message>
    <message>
        <source>Leave it out; it is for html</source>
        <translation>请去掉它；它用于 html</translation>
    </message>
    <message>
        <source>Slide</source>
        <translation>幻灯片</translation>
    </message>
    <message>
        <source>Nothing is lost.</source>
        <translation>没有丢失任何内容。</translation>
    </message>
    <message>
        <source>A picture of slide %1 would have %2 x %3 pixels, which are more than %4 million</source>
        <translation>幻灯片 %1 的图片将有 %2 x %3 像素，超过 %4 百万</translation>
    </message>
    <message>
        <source>Ask for a smaller one, such as --width 4000, or write .pdf or .svg</source>
        <translation>请使用较小的，例如 --width 4000，或写成 .pdf 或 .svg</translation>
    </message>
    <message>
        <source>The picture of slide %1 can&apos;t be drawn</source>
        <translation>无法绘制幻灯片 %1 的图片</translation>
    </message>
    <message>
        <source>Ask for a smaller one, such as --width 1000</source>
        <translation>请使用较小的，例如 --width 1000</translation>
    </message>
    <message>
        <source>the file tells no page size; 1440 x 1080 was taken</source>
        <translation>文件没有给出页面大小；取 1440 x 1080</translation>
    </message>
    <message>
        <source>it stands on no page and is left out</source>
        <translation>不在任何页面上，已舍弃</translation>
    </message>
    <message>
        <source>lessons have no such record</source>
        <translation>课件没有这种记录</translation>
    </message>
    <message>
        <source>lessons have nothing like it</source>
        <translation>课件中没有类似内容</translation>
    </message>
    <message>
        <source>the script of %1 is left out</source>
        <translation>%1 的脚本已舍弃</translation>
    </message>
    <message>
        <source>&lt;%1&gt; within it is left out</source>
        <translation>其中的 &lt;%1&gt; 已舍弃</translation>
    </message>
    <message>
        <source>%1 can&apos;t be shown here, and what stands for it is taken</source>
        <translation>%1 无法在此显示，改用其替代内容</translation>
    </message>
    <message>
        <source>%1 can&apos;t be shown here, and nothing stands for it</source>
        <translation>%1 无法在此显示，且没有替代内容</translation>
    </message>
    <message>
        <source>it links a text that stands in no text element</source>
        <translation>链接了不在文本元素中的文本</translation>
    </message>
    <message>
        <source>it has no size</source>
        <translation>没有大小</translation>
    </message>
    <message>
        <source>its corners are no longer round</source>
        <translation>圆角不再是圆的</translation>
    </message>
    <message>
        <source>its last point has no y and is left out</source>
        <translation>最后一个点没有 y，已舍弃</translation>
    </message>
    <message>
        <source>its data can&apos;t be read</source>
        <translation>数据无法读取</translation>
    </message>
    <message>
        <source>its curves became fine lines</source>
        <translation>曲线变成了细小的线段</translation>
    </message>
    <message numerus="yes">
        <source>%n outlines became an item each</source>
        <translation>
            <numerusform>%n 条轮廓各成为一个对象</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 is left out</source>
        <translation>%1 已舍弃</translation>
    </message>
    <message>
        <source>it is drawn slanted no longer</source>
        <translation>不再倾斜绘制</translation>
    </message>
    <message>
        <source>it is no longer translucent</source>
        <translation>不再半透明</translation>
    </message>
    <message>
        <source>its size is a guess, as no font here has its %1: install %2</source>
        <translation>大小是估计的，因为这里没有%1的字体：请安装 %2</translation>
    </message>
    <message>
        <source>it doesn&apos;t fill the page, so it became a picture that can&apos;t be moved</source>
        <translation>没有填满页面，因此变成不能移动的图片</translation>
    </message>
    <message>
        <source>%1 &quot;%2&quot; (a gradient or pattern) is left out</source>
        <translation>%1“%2”（渐变或图案）已舍弃</translation>
    </message>
    <message>
        <source>%1 &quot;%2&quot; isn&apos;t a colour</source>
        <translation>%1“%2”不是颜色</translation>
    </message>
    <message>
        <source>transform &quot;%1&quot; can&apos;t be read</source>
        <translation>transform“%1”无法读取</translation>
    </message>
    <message>
        <source>stroke-dasharray &quot;%1&quot; became dash dot dot</source>
        <translation>stroke-dasharray“%1”变成双点划线</translation>
    </message>
    <message>
        <source>&lt;%1&gt; within text is left out</source>
        <translation>文本中的 &lt;%1&gt; 已舍弃</translation>
    </message>
    <message>
        <source>the drawing isn&apos;t understood</source>
        <translation>无法理解该图形</translation>
    </message>
    <message>
        <source>the document can&apos;t be written</source>
        <translation>无法写入文档</translation>
    </message>
    <message>
        <source>the pages can&apos;t be read</source>
        <translation>无法读取页面</translation>
    </message>
    <message>
        <source>Unknown error</source>
        <translation>未知错误</translation>
    </message>
    <message>
        <source>Another run is at work on shard %1 of %2</source>
        <translation>另一个运行正在处理第 %1 部分，共 %2 部分</translation>
    </message>
    <message>
        <source>Wait for its end, or end it</source>
        <translation>请等待它结束，或将其终止</translation>
    </message>
    <message>
        <source>The result would take the place of a lesson, %1</source>
        <translation>结果会取代课件 %1</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation>%1 到 %2</translation>
    </message>
    <message>
        <source>Not converted:</source>
        <translation>未转换：</translation>
    </message>
    <message numerus="yes">
        <source>Not converted, of %n lessons the first %1:</source>
        <translation>
            <numerusform>有 %n 个课件未转换，前 %1 个：</numerusform>
        </translation>
    </message>
    <message>
        <source>Not drawn:</source>
        <translation>未绘制：</translation>
    </message>
    <message numerus="yes">
        <source>Not drawn, of %n lessons the first %1:</source>
        <translation>
            <numerusform>有 %n 个课件未绘制，前 %1 个：</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n lessons came while the shards were at work, and no shard took what came: with --resume, they do.</source>
        <translation>
            <numerusform>处理各部分期间新增了 %n 个课件，没有任何部分处理它们：使用 --resume 即可处理。</numerusform>
        </translation>
    </message>
    <message>
        <source>There is no report of shard %1 of %2, to which %3 fell.</source>
        <translation>缺少第 %1 部分（共 %2 部分）的报告，其中包括 %3。</translation>
    </message>
    <message>
        <source>There is no report of shards %1 of %2, to which %3 fell.</source>
        <translation>缺少第 %1 部分（共 %2 部分）的报告，其中包括 %3。</translation>
    </message>
    <message numerus="yes">
        <source>%n lessons</source>
        <translation>
            <numerusform>%n 个课件</numerusform>
        </translation>
    </message>
    <message>
        <source>Give files that lessonconv has written with --report about many lessons</source>
        <translation>请给出 lessonconv 用 --report 写出的关于多个课件的文件</translation>
    </message>
    <message>
        <source>The lessons of this report aren&apos;t in their order</source>
        <translation>此报告中的课件顺序不正确</translation>
    </message>
    <message>
        <source>There is something behind the end of the report</source>
        <translation>报告结尾之后还有内容</translation>
    </message>
    <message>
        <source>This is no report on many lessons</source>
        <translation>这不是关于多个课件的报告</translation>
    </message>
    <message>
        <source>This report is on another work than %1</source>
        <translation>此报告与 %1 不是同一种工作</translation>
    </message>
    <message>
        <source>Put conversions and drawings together by themselves</source>
        <translation>请将转换和绘制的报告分开合并</translation>
    </message>
    <message>
        <source>This report is on another number of shards than %1</source>
        <translation>此报告的部分总数与 %1 不同</translation>
    </message>
    <message>
        <source>Give the reports of one run over all shards</source>
        <translation>请给出同一次运行所有部分的报告</translation>
    </message>
    <message>
        <source>%1 is in this report and in %2</source>
        <translation>%1 既在此报告中，也在 %2 中</translation>
    </message>
    <message>
        <source>Give one report of each run</source>
        <translation>请给出每次运行的一份报告</translation>
    </message>
    <message>
        <source>what became of all lessons, by the reports of many runs</source>
        <translation>根据多次运行的报告，汇总所有课件的结果</translation>
    </message>
    <message>
        <source>the report of its run</source>
        <translation>其运行的报告</translation>
    </message>
    <message>
        <source>Many: take a part of the lessons, such as 3/16 for the third of 16. Each falls to one by its path.</source>
        <translation>多个课件：只处理一部分，例如 3/16 表示 16 部分中的第三部分。每个课件按路径归入一部分。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no shard</source>
        <translation>“%1”不是有效的部分</translation>
    </message>
    <message>
        <source>Give its number and that of all, at most %1, such as --shard 3/16</source>
        <translation>请给出其编号和总数，最多 %1，例如 --shard 3/16</translation>
    </message>
    <message numerus="yes">
        <source>%1 in %n lessons</source>
        <translation>
            <numerusform>%n 个课件中的 %1</numerusform>
        </translation>
    </message>
    <message>
        <source>Missing, and not shown in the first one: %1</source>
        <translation>缺少且第一个中也不显示：%1</translation>
    </message>
    <message>
        <source>the link to &quot;%1&quot; leads to the page of it</source>
        <translation>指向“%1”的链接通向它所在的页面</translation>
    </message>
    <message>
        <source>the lesson has no page and no element of that name</source>
        <translation>课件中没有该名称的页面或元素</translation>
    </message>
    <message>
        <source>%1 &quot;%2&quot; is left out</source>
        <translation>%1“%2”已舍弃</translation>
    </message>
    <message numerus="yes">
        <source>%n polygons became one stroke</source>
        <translation>
            <numerusform>%n 个多边形变成一个笔画</numerusform>
        </translation>
    </message>
    <message>
        <source>the polygon became a stroke</source>
        <translation>多边形变成了笔画</translation>
    </message>
    <message>
        <source>an arrow at its end is left out</source>
        <translation>其末端的箭头已舍弃</translation>
    </message>
    <message>
        <source>it isn&apos;t drawn as a pen does, so it is no ink</source>
        <translation>不像用笔画出的，因此不是笔迹</translation>
    </message>
    <message>
        <source>the link of its letters to &quot;%1&quot; is left out</source>
        <translation>字母上指向“%1”的链接已舍弃</translation>
    </message>
    <message>
        <source>stroke-dasharray &quot;%1&quot; has other lengths</source>
        <translation>stroke-dasharray“%1”的长度不同</translation>
    </message>
    <message>
        <source>the link of &quot;%1&quot; to &quot;%2&quot; is left out</source>
        <translation>“%1”指向“%2”的链接已舍弃</translation>
    </message>
    <message>
        <source>%1 &quot;%2&quot; of letters is left out</source>
        <translation>字母的 %1“%2”已舍弃</translation>
    </message>
    <message>
        <source>it runs from right to left where its letters do</source>
        <translation>仅在字母从右到左时从右到左排列</translation>
    </message>
    <message>
        <source>it is a list, whose marks became letters</source>
        <translation>是列表，其标记变成了字母</translation>
    </message>
    <message>
        <source>Answer</source>
        <translation>答案</translation>
    </message>
    <message>
        <source>Show the answer</source>
        <translation>显示答案</translation>
    </message>
    <message>
        <source>Turn the card</source>
        <translation>翻转卡片</translation>
    </message>
    <message>
        <source>%1. Turn the card</source>
        <translation>%1。翻转卡片</translation>
    </message>
    <message>
        <source>Card %1 of %2, back</source>
        <translation>第 %1 张卡片，共 %2 张，背面</translation>
    </message>
    <message>
        <source>Card %1 of %2, front</source>
        <translation>第 %1 张卡片，共 %2 张，正面</translation>
    </message>
    <message>
        <source>Previous</source>
        <translation>上一个</translation>
    </message>
    <message>
        <source>Previous card</source>
        <translation>上一张卡片</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>下一个</translation>
    </message>
    <message>
        <source>Next card</source>
        <translation>下一张卡片</translation>
    </message>
    <message>
        <source>right</source>
        <translation>正确</translation>
    </message>
    <message>
        <source>wrong</source>
        <translation>错误</translation>
    </message>
    <message>
        <source>Right: %1 of %2. Wrong: %3.</source>
        <translation>正确：%1，共 %2。错误：%3。</translation>
    </message>
    <message>
        <source>Put it into %1</source>
        <translation>放入%1</translation>
    </message>
    <message>
        <source>That was the last one.</source>
        <translation>已经是最后一题。</translation>
    </message>
    <message>
        <source>Previous text</source>
        <translation>上一段文字</translation>
    </message>
    <message>
        <source>Next text</source>
        <translation>下一段文字</translation>
    </message>
    <message>
        <source>True</source>
        <translation>对</translation>
    </message>
    <message>
        <source>False</source>
        <translation>错</translation>
    </message>
    <message>
        <source>Start again</source>
        <translation>重新开始</translation>
    </message>
    <message>
        <source>Game</source>
        <translation>游戏</translation>
    </message>
    <message>
        <source>Pen in red</source>
        <translation>红笔</translation>
    </message>
    <message>
        <source>Pen in blue</source>
        <translation>蓝笔</translation>
    </message>
    <message>
        <source>Pen in green</source>
        <translation>绿笔</translation>
    </message>
    <message>
        <source>Pen in black</source>
        <translation>黑笔</translation>
    </message>
    <message>
        <source>Pen on</source>
        <translation>已启用画笔</translation>
    </message>
    <message>
        <source>Eraser on</source>
        <translation>已启用橡皮</translation>
    </message>
    <message>
        <source>Pen and eraser off</source>
        <translation>已关闭画笔和橡皮</translation>
    </message>
    <message>
        <source>A file of the lesson</source>
        <translation>课件中的文件</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>保存</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>打开</translation>
    </message>
    <message>
        <source>Hint</source>
        <translation>提示</translation>
    </message>
    <message>
        <source>This leads out of the lesson</source>
        <translation>此链接通向课件之外</translation>
    </message>
    <message>
        <source>This browser can’t play %1.</source>
        <translation>此浏览器无法播放 %1。</translation>
    </message>
    <message>
        <source>Open it with another program</source>
        <translation>用其他程序打开</translation>
    </message>
    <message>
        <source>All slides (%1)</source>
        <translation>所有幻灯片（%1）</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>开始游戏</translation>
    </message>
    <message>
        <source>Play the game of this slide</source>
        <translation>开始此幻灯片的游戏</translation>
    </message>
    <message>
        <source>Lesson</source>
        <translation>课件</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>后退</translation>
    </message>
    <message>
        <source>Pen</source>
        <translation>画笔</translation>
    </message>
    <message>
        <source>Rub out</source>
        <translation>擦除</translation>
    </message>
    <message>
        <source>This slide from its beginning, without what was drawn (%1)</source>
        <translation>从头播放此幻灯片，并清除所画内容（%1）</translation>
    </message>
    <message>
        <source>Full screen</source>
        <translation>全屏</translation>
    </message>
    <message>
        <source>Full screen (%1)</source>
        <translation>全屏（%1）</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
    <message>
        <source>%1. Arrows move it, plus and minus change its size.</source>
        <translation>%1。方向键移动，加号和减号改变大小。</translation>
    </message>
    <message>
        <source>%1. Arrows move it, square brackets turn it.</source>
        <translation>%1。方向键移动，方括号旋转。</translation>
    </message>
    <message>
        <source>%1. Arrows move it.</source>
        <translation>%1。方向键移动。</translation>
    </message>
    <message>
        <source>Turn %1</source>
        <translation>旋转%1</translation>
    </message>
    <message>
        <source>it became a part of a stroke</source>
        <translation>成为一条笔画的一部分</translation>
    </message>
    <message>
        <source>it is filled also where it crosses itself</source>
        <translation>自身相交之处也被填充</translation>
    </message>
    <message>
        <source>Slide %1 has lines of %2 points, and no page of IWB may have more than %3</source>
        <translation>幻灯片 %1 的线条有 %2 个点，而 IWB 的每页不得超过 %3 个</translation>
    </message>
    <message numerus="yes">
        <source>%n checked</source>
        <translation>
            <numerusform>%n 个已检查</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n not checked</source>
        <translation>
            <numerusform>%n 个未检查</numerusform>
        </translation>
    </message>
    <message>
        <source>Not checked:</source>
        <translation>未检查：</translation>
    </message>
    <message numerus="yes">
        <source>Not checked, of %n lessons the first %1:</source>
        <translation>
            <numerusform>%n 个课件未检查，前 %1 个：</numerusform>
        </translation>
    </message>
    <message>
        <source>The check took longer than %1 s</source>
        <translation>检查用时超过 %1 秒</translation>
    </message>
    <message numerus="yes">
        <source>%n things are missing or wrong; %1 names each.</source>
        <translation>
            <numerusform>有 %n 处缺失或错误；%1会逐一列出。</numerusform>
        </translation>
    </message>
    <message>
        <source>is it whole, and what would other formats lose</source>
        <translation>是否完整，转成其他格式会丢失什么</translation>
    </message>
    <message>
        <source>checks many lessons, or all in a folder</source>
        <translation>检查多个课件，或文件夹中的全部课件</translation>
    </message>
    <message>
        <source>The format of the output, where its name doesn&apos;t tell; with check, the only one to try.</source>
        <translation>输出的格式（当名称不能说明时）；用于 check 时，只尝试该格式。</translation>
    </message>
    <message>
        <source>The lesson</source>
        <translation>课件</translation>
    </message>
    <message>
        <source>Slide %1, %2</source>
        <translation>幻灯片 %1，%2</translation>
    </message>
    <message>
        <source>Slide %1, %2 &quot;%3&quot;</source>
        <translation>幻灯片 %1，%2“%3”</translation>
    </message>
    <message>
        <source>%1: the file %2 isn&apos;t there.</source>
        <translation>%1：缺少文件 %2。</translation>
    </message>
    <message>
        <source>%1: the file %2 can&apos;t be shown: %3.</source>
        <translation>%1：文件 %2 无法显示：%3。</translation>
    </message>
    <message>
        <source>%1: nobody knows what this is.</source>
        <translation>%1：不知道这是什么。</translation>
    </message>
    <message>
        <source>%1: %2.</source>
        <translation>%1：%2。</translation>
    </message>
    <message>
        <source>%1: %2 is &quot;%3&quot; and has to be %4.</source>
        <translation>%1：“%2”的值是“%3”，应为：%4。</translation>
    </message>
    <message>
        <source>the points are not in the file</source>
        <translation>文件中没有笔迹的点</translation>
    </message>
    <message>
        <source>%1 is whole.</source>
        <translation>%1 是完整的。</translation>
    </message>
    <message numerus="yes">
        <source>%1 isn&apos;t whole; %n things are wrong:</source>
        <translation>
            <numerusform>%1 不完整，有 %n 处问题：</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>And %n more.</source>
        <translation>
            <numerusform>另有 %n 项。</numerusform>
        </translation>
    </message>
    <message>
        <source>%1, %2, %3.</source>
        <translation>%1，%2，%3。</translation>
    </message>
    <message numerus="yes">
        <source>%n slides</source>
        <translation>
            <numerusform>%n 张幻灯片</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n items</source>
        <translation>
            <numerusform>%n 个对象</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n files</source>
        <translation>
            <numerusform>%n 个文件</numerusform>
        </translation>
    </message>
    <message>
        <source>When it is read:</source>
        <translation>读取时：</translation>
    </message>
    <message>
        <source>%1 can&apos;t hold it: %2</source>
        <translation>%1 无法容纳该课件：%2</translation>
    </message>
    <message>
        <source>Written as %1, it loses nothing.</source>
        <translation>写成 %1 时不会丢失任何内容。</translation>
    </message>
    <message>
        <source>Written as %1:</source>
        <translation>写成 %1 时：</translation>
    </message>
    <message>
        <source>it is hidden</source>
        <translation>它是隐藏的</translation>
    </message>
    <message numerus="yes">
        <source>%n acid burettes</source>
        <translation>
            <numerusform>%n 个酸式滴定管</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n aeroplanes</source>
        <translation>
            <numerusform>%n 个飞机</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n alkali burettes</source>
        <translation>
            <numerusform>%n 个碱式滴定管</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n alternating current motors</source>
        <translation>
            <numerusform>%n 个交流电动机</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n ammeters</source>
        <translation>
            <numerusform>%n 个电流表</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n ammeters with a scale</source>
        <translation>
            <numerusform>%n 个带刻度的电流表</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n angles</source>
        <translation>
            <numerusform>%n 个角</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n angle brackets</source>
        <translation>
            <numerusform>%n 个尖括号</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n arcs</source>
        <translation>
            <numerusform>%n 个弧</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n arrows</source>
        <translation>
            <numerusform>%n 个箭头</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n arrows with two heads</source>
        <translation>
            <numerusform>%n 个双向箭头</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n atoms</source>
        <translation>
            <numerusform>%n 个原子</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n balances</source>
        <translation>
            <numerusform>%n 个天平</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n balls</source>
        <translation>
            <numerusform>%n 个小球</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n bamboo brush strokes</source>
        <translation>
            <numerusform>%n 个竹笔笔迹</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n bar magnets</source>
        <translation>
            <numerusform>%n 个条形磁铁</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n baskets of games</source>
        <translation>
            <numerusform>%n 个游戏的容器</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n batteries</source>
        <translation>
            <numerusform>%n 个电池组</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n battery cells</source>
        <translation>
            <numerusform>%n 个电池</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n batteries, as symbols</source>
        <translation>
            <numerusform>%n 个电池符号</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n beakers</source>
        <translation>
            <numerusform>%n 个烧杯</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n benzene rings</source>
        <translation>
            <numerusform>%n 个苯环</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n block arrows</source>
        <translation>
            <numerusform>%n 个块状箭头</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n bonds</source>
        <translation>
            <numerusform>%n 个化学键</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n braces</source>
        <translation>
            <numerusform>%n 个花括号</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n brackets</source>
        <translation>
            <numerusform>%n 个括号</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n brush strokes</source>
        <translation>
            <numerusform>%n 个毛笔笔迹</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n bubbles</source>
        <translation>
            <numerusform>%n 个气泡</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n bullets</source>
        <translation>
            <numerusform>%n 个子弹</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n burette clamps</source>
        <translation>
            <numerusform>%n 个滴定管夹</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n burning spoons</source>
        <translation>
            <numerusform>%n 个燃烧匙</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n callouts with arrows</source>
        <translation>
            <numerusform>%n 个箭头标注</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n candles</source>
        <translation>
            <numerusform>%n 个蜡烛</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n capacitors</source>
        <translation>
            <numerusform>%n 个电容</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n cards to turn</source>
        <translation>
            <numerusform>%n 个翻转卡片</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n sets of cards</source>
        <translation>
            <numerusform>%n 个卡片</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n chalk strokes</source>
        <translation>
            <numerusform>%n 个粉笔笔迹</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n characters with pinyin</source>
        <translation>
            <numerusform>%n 个带拼音的汉字</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n Chinese characters</source>
        <translation>
            <numerusform>%n 个汉字</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n circles</source>
        <translation>
            <numerusform>%n 个圆</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n clouds</source>
        <translation>
            <numerusform>%n 个云</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n coils</source>
        <translation>
            <numerusform>%n 个线圈</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n compass needles</source>
        <translation>
            <numerusform>%n 个小磁针</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n pairs of compasses</source>
        <translation>
            <numerusform>%n 个圆规</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n concave lenses</source>
        <translation>
            <numerusform>%n 个凹透镜</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n concave lenses, as symbols</source>
        <translation>
            <numerusform>%n 个凹透镜符号</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n condensers</source>
        <translation>
            <numerusform>%n 个冷凝管</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n cones</source>
        <translation>
            <numerusform>%n 个圆锥</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n conical flasks</source>
        <translation>
            <numerusform>%n 个锥形瓶</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n connecting lines</source>
        <translation>
            <numerusform>%n 个连接线</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n convex lenses</source>
        <translation>
            <numerusform>%n 个凸透镜</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n convex lenses, as symbols</source>
        <translation>
            <numerusform>%n 个凸透镜符号</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n conveyor belts</source>
        <translation>
            <numerusform>%n 个传送带</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n coordinates with functions</source>
        <translation>
            <numerusform>%n 个函数坐标系</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n coordinates with parametric curves</source>
        <translation>
            <numerusform>%n 个参数坐标系</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n copies of shapes</source>
        <translation>
            <numerusform>%n 个形状的副本</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n crosses</source>
        <translation>
            <numerusform>%n 个叉</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n cubes</source>
        <translation>
            <numerusform>%n 个立方体</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n curtains</source>
        <translation>
            <numerusform>%n 个幕布</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n curved arrows</source>
        <translation>
            <numerusform>%n 个曲线箭头</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n curved slides</source>
        <translation>
            <numerusform>%n 个圆弧滑板</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n cylinders</source>
        <translation>
            <numerusform>%n 个圆柱</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n cylinders with a piston</source>
        <translation>
            <numerusform>%n 个气缸</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n direct current motors</source>
        <translation>
            <numerusform>%n 个直流电动机</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n distances</source>
        <translation>
            <numerusform>%n 个距离</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n division signs</source>
        <translation>
            <numerusform>%n 个除号</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n documents</source>
        <translation>
            <numerusform>%n 个文档</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n drainage tubes</source>
        <translation>
            <numerusform>%n 个引流管</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n drops of water</source>
        <translation>
            <numerusform>%n 个水滴</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n droppers</source>
        <translation>
            <numerusform>%n 个胶头滴管</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n drying bulbs</source>
        <translation>
            <numerusform>%n 个干燥球</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n earth connections</source>
        <translation>
            <numerusform>%n 个接地</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n electric bells</source>
        <translation>
            <numerusform>%n 个电铃</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n electric charges</source>
        <translation>
            <numerusform>%n 个电荷</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n electric fields</source>
        <translation>
            <numerusform>%n 个电场</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n electrons</source>
        <translation>
            <numerusform>%n 个电子</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n electron transfers</source>
        <translation>
            <numerusform>%n 个双线桥</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n ellipses</source>
        <translation>
            <numerusform>%n 个椭圆</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n equals signs</source>
        <translation>
            <numerusform>%n 个等号</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n equilateral triangles</source>
        <translation>
            <numerusform>%n 个等边三角形</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n evaporating dishes</source>
        <translation>
            <numerusform>%n 个蒸发皿</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n explosions</source>
        <translation>
            <numerusform>%n 个爆炸形</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n expressions</source>
        <translation>
            <numerusform>%n 个表达式</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n films</source>
        <translation>
            <numerusform>%n 个视频</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n first players</source>
        <translation>
            <numerusform>%n 个一号选手</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n five-pointed stars</source>
        <translation>
            <numerusform>%n 个五角星</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n flags</source>
        <translation>
            <numerusform>%n 个旗帜</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n flames</source>
        <translation>
            <numerusform>%n 个火焰</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n Flash films</source>
        <translation>
            <numerusform>%n 个 Flash 动画</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n flasks</source>
        <translation>
            <numerusform>%n 个烧瓶</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n forces</source>
        <translation>
            <numerusform>%n 个力</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n formulas</source>
        <translation>
            <numerusform>%n 个公式</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n free drawings</source>
        <translation>
            <numerusform>%n 个自由绘图</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n frustums of cones</source>
        <translation>
            <numerusform>%n 个圆台</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n frustums of pyramids</source>
        <translation>
            <numerusform>%n 个棱台</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n funnels</source>
        <translation>
            <numerusform>%n 个漏斗</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n galvanometers</source>
        <translation>
            <numerusform>%n 个电流计</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n gaps to fill</source>
        <translation>
            <numerusform>%n 个填空</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n gas jars</source>
        <translation>
            <numerusform>%n 个集气瓶</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n glass delivery tubes</source>
        <translation>
            <numerusform>%n 个玻璃导管</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n glass rods</source>
        <translation>
            <numerusform>%n 个玻璃棒</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n glass stoppers</source>
        <translation>
            <numerusform>%n 个玻璃塞</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n glass tubes</source>
        <translation>
            <numerusform>%n 个玻璃管</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n grooves</source>
        <translation>
            <numerusform>%n 个凹槽</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n groups</source>
        <translation>
            <numerusform>%n 个组合</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n halves of concave lenses</source>
        <translation>
            <numerusform>%n 个半凹透镜</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n halves of convex lenses</source>
        <translation>
            <numerusform>%n 个半凸透镜</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n half spheres</source>
        <translation>
            <numerusform>%n 个半球</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n handwritten formulas</source>
        <translation>
            <numerusform>%n 个手写公式</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n hearts</source>
        <translation>
            <numerusform>%n 个心形</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n hexagons</source>
        <translation>
            <numerusform>%n 个六边形</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n highlighter strokes</source>
        <translation>
            <numerusform>%n 个荧光笔笔迹</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n hooked weights</source>
        <translation>
            <numerusform>%n 个钩码</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n horseshoe magnets</source>
        <translation>
            <numerusform>%n 个 U 形磁铁</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n inclined planes</source>
        <translation>
            <numerusform>%n 个斜面</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n pairs of intersecting planes</source>
        <translation>
            <numerusform>%n 个相交平面</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n iron cores</source>
        <translation>
            <numerusform>%n 个铁芯</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n iron stands</source>
        <translation>
            <numerusform>%n 个铁架台</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n items of subjects</source>
        <translation>
            <numerusform>%n 个学科对象</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n Kipp&apos;s apparatuses</source>
        <translation>
            <numerusform>%n 个启普发生器</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n knife switches</source>
        <translation>
            <numerusform>%n 个闸刀开关</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n knobs</source>
        <translation>
            <numerusform>%n 个旋钮</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n lamps</source>
        <translation>
            <numerusform>%n 个电灯</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n lamps, as symbols</source>
        <translation>
            <numerusform>%n 个电灯符号</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n levers</source>
        <translation>
            <numerusform>%n 个杠杆</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n bolts of lightning</source>
        <translation>
            <numerusform>%n 个闪电</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n lines of segments</source>
        <translation>
            <numerusform>%n 个折线</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n links</source>
        <translation>
            <numerusform>%n 个链接</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n long-necked funnels</source>
        <translation>
            <numerusform>%n 个长颈漏斗</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n loudspeakers</source>
        <translation>
            <numerusform>%n 个喇叭</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n magnetic fields</source>
        <translation>
            <numerusform>%n 个磁场</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n measured segments</source>
        <translation>
            <numerusform>%n 个测量线段</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n measured triangles</source>
        <translation>
            <numerusform>%n 个测量三角形</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n measuring cylinders</source>
        <translation>
            <numerusform>%n 个量筒</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n meters</source>
        <translation>
            <numerusform>%n 个仪表</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n mind maps</source>
        <translation>
            <numerusform>%n 个思维导图</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n minus signs</source>
        <translation>
            <numerusform>%n 个减号</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n moons</source>
        <translation>
            <numerusform>%n 个月亮</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n moving worksheets</source>
        <translation>
            <numerusform>%n 个动态课件</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n multiplication signs</source>
        <translation>
            <numerusform>%n 个乘号</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n not-equals signs</source>
        <translation>
            <numerusform>%n 个不等号</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n one-to-many lines</source>
        <translation>
            <numerusform>%n 个一对多连线</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n one-sided arrows</source>
        <translation>
            <numerusform>%n 个单边箭头</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n pages</source>
        <translation>
            <numerusform>%n 个页面形</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n parallelograms</source>
        <translation>
            <numerusform>%n 个平行四边形</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n parts of sentences</source>
        <translation>
            <numerusform>%n 个句子成分</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n pen strokes</source>
        <translation>
            <numerusform>%n 个笔迹</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n pentagons</source>
        <translation>
            <numerusform>%n 个五边形</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n pictures</source>
        <translation>
            <numerusform>%n 个图片</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n pieces for gaps</source>
        <translation>
            <numerusform>%n 个填空素材</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n pieces of contests</source>
        <translation>
            <numerusform>%n 个竞赛素材</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n pieces of games</source>
        <translation>
            <numerusform>%n 个游戏素材</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n pieces to compare</source>
        <translation>
            <numerusform>%n 个比较素材</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n pieces of pinyin</source>
        <translation>
            <numerusform>%n 个拼音</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n sets of pinyin letters</source>
        <translation>
            <numerusform>%n 个拼音字母</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n places of sentences</source>
        <translation>
            <numerusform>%n 个句子位置</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n places to compare</source>
        <translation>
            <numerusform>%n 个比较位置</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n planes</source>
        <translation>
            <numerusform>%n 个平面</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n plus signs</source>
        <translation>
            <numerusform>%n 个加号</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n points</source>
        <translation>
            <numerusform>%n 个点</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n systems of polar coordinates</source>
        <translation>
            <numerusform>%n 个极坐标系</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n prisms</source>
        <translation>
            <numerusform>%n 个棱柱</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n propellers</source>
        <translation>
            <numerusform>%n 个螺旋桨</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n protractors</source>
        <translation>
            <numerusform>%n 个量角器</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n pulleys</source>
        <translation>
            <numerusform>%n 个滑轮</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n pulley blocks</source>
        <translation>
            <numerusform>%n 个滑轮组</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n pyramids</source>
        <translation>
            <numerusform>%n 个棱锥</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n quadrangles</source>
        <translation>
            <numerusform>%n 个四边形</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n questions</source>
        <translation>
            <numerusform>%n 个题目</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n reagent bottles</source>
        <translation>
            <numerusform>%n 个试剂瓶</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n rectangles</source>
        <translation>
            <numerusform>%n 个矩形</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n regular heptagons</source>
        <translation>
            <numerusform>%n 个正七边形</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n regular hexagons</source>
        <translation>
            <numerusform>%n 个正六边形</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n regular octagons</source>
        <translation>
            <numerusform>%n 个正八边形</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n regular pentagons</source>
        <translation>
            <numerusform>%n 个正五边形</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n resistors</source>
        <translation>
            <numerusform>%n 个电阻</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n retorts</source>
        <translation>
            <numerusform>%n 个曲颈甑</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n rhombuses</source>
        <translation>
            <numerusform>%n 个菱形</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n round brackets</source>
        <translation>
            <numerusform>%n 个圆括号</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n round grooves</source>
        <translation>
            <numerusform>%n 个圆槽</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n round separating funnels</source>
        <translation>
            <numerusform>%n 个球形分液漏斗</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n rounded rectangles</source>
        <translation>
            <numerusform>%n 个圆角矩形</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n traces of rubbed out ink</source>
        <translation>
            <numerusform>%n 个擦除的笔迹</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n rubber tubes</source>
        <translation>
            <numerusform>%n 个橡皮管</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n rulers</source>
        <translation>
            <numerusform>%n 个直尺</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n scales</source>
        <translation>
            <numerusform>%n 个刻度</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n scores</source>
        <translation>
            <numerusform>%n 个得分</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n second players</source>
        <translation>
            <numerusform>%n 个二号选手</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n sectors</source>
        <translation>
            <numerusform>%n 个扇形</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n segments</source>
        <translation>
            <numerusform>%n 个线段</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n separating funnels</source>
        <translation>
            <numerusform>%n 个分液漏斗</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n set squares of 30 and 60 degrees</source>
        <translation>
            <numerusform>%n 个 30°、60° 三角板</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n set squares of 45 degrees</source>
        <translation>
            <numerusform>%n 个 45° 三角板</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n shapes</source>
        <translation>
            <numerusform>%n 个形状</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n sliding resistors</source>
        <translation>
            <numerusform>%n 个滑动变阻器</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n sliding resistors, as symbols</source>
        <translation>
            <numerusform>%n 个滑动变阻器符号</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n slopes</source>
        <translation>
            <numerusform>%n 个坡面</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n smileys</source>
        <translation>
            <numerusform>%n 个笑脸</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n solids</source>
        <translation>
            <numerusform>%n 个固状物</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n sounds</source>
        <translation>
            <numerusform>%n 个声音</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n spatulas</source>
        <translation>
            <numerusform>%n 个药匙</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n speech bubbles</source>
        <translation>
            <numerusform>%n 个对话框</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n spheres</source>
        <translation>
            <numerusform>%n 个球体</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n spirit lamps</source>
        <translation>
            <numerusform>%n 个酒精灯</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n spotlights</source>
        <translation>
            <numerusform>%n 个聚光灯</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n springs</source>
        <translation>
            <numerusform>%n 个弹簧</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n spring balances</source>
        <translation>
            <numerusform>%n 个弹簧秤</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n squares</source>
        <translation>
            <numerusform>%n 个正方形</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n square brackets</source>
        <translation>
            <numerusform>%n 个方括号</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n stamps</source>
        <translation>
            <numerusform>%n 个图章</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n stands for optics</source>
        <translation>
            <numerusform>%n 个光学支架</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n stars</source>
        <translation>
            <numerusform>%n 个星形</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n stoppers</source>
        <translation>
            <numerusform>%n 个塞子</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n straight arrows</source>
        <translation>
            <numerusform>%n 个直线箭头</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n sets of strokes of a character</source>
        <translation>
            <numerusform>%n 个汉字笔画</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n switches</source>
        <translation>
            <numerusform>%n 个开关</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n test tubes</source>
        <translation>
            <numerusform>%n 个试管</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n test tube clamps</source>
        <translation>
            <numerusform>%n 个试管夹</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n test tube racks</source>
        <translation>
            <numerusform>%n 个试管架</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n tetrahedra</source>
        <translation>
            <numerusform>%n 个四面体</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n texts</source>
        <translation>
            <numerusform>%n 个文本</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n texts to read aloud</source>
        <translation>
            <numerusform>%n 个朗读文本</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n textured strokes</source>
        <translation>
            <numerusform>%n 个纹理笔迹</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n thermometers</source>
        <translation>
            <numerusform>%n 个温度计</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n sets of things to connect</source>
        <translation>
            <numerusform>%n 个连线题</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n sets of things to sort</source>
        <translation>
            <numerusform>%n 个分类题</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n ticks</source>
        <translation>
            <numerusform>%n 个对号</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n tiles</source>
        <translation>
            <numerusform>%n 个瓦片形</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n tips for reading aloud</source>
        <translation>
            <numerusform>%n 个朗读提示</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n tips of games</source>
        <translation>
            <numerusform>%n 个游戏提示</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n trapeziums</source>
        <translation>
            <numerusform>%n 个梯形</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n triangles</source>
        <translation>
            <numerusform>%n 个三角形</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n tripods</source>
        <translation>
            <numerusform>%n 个三脚架</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n trolleys</source>
        <translation>
            <numerusform>%n 个小车</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n pairs of tweezers</source>
        <translation>
            <numerusform>%n 个镊子</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n two-way switches</source>
        <translation>
            <numerusform>%n 个双向开关</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n U-tubes</source>
        <translation>
            <numerusform>%n 个 U 形管</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n vernier calipers</source>
        <translation>
            <numerusform>%n 个游标卡尺</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n voltmeters</source>
        <translation>
            <numerusform>%n 个电压表</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n voltmeters with a scale</source>
        <translation>
            <numerusform>%n 个带刻度的电压表</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n volumetric flasks</source>
        <translation>
            <numerusform>%n 个容量瓶</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n water troughs</source>
        <translation>
            <numerusform>%n 个水槽</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n waves</source>
        <translation>
            <numerusform>%n 个波浪形</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n weights</source>
        <translation>
            <numerusform>%n 个砝码</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n wires</source>
        <translation>
            <numerusform>%n 个导线</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n wire gauzes</source>
        <translation>
            <numerusform>%n 个石棉网</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n wooden blocks</source>
        <translation>
            <numerusform>%n 个木块</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n wooden rods</source>
        <translation>
            <numerusform>%n 个木棒</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n pieces of word art</source>
        <translation>
            <numerusform>%n 个艺术字</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n words with phonetics</source>
        <translation>
            <numerusform>%n 个带音标的单词</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n sets of words in squares</source>
        <translation>
            <numerusform>%n 个田字格文字</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 x %2</source>
        <translation>%1 x %2</translation>
    </message>
    <message>
        <source>identifier</source>
        <translation>标识符</translation>
    </message>
    <message>
        <source>kind of item</source>
        <translation>对象类型</translation>
    </message>
    <message>
        <source>setting of the editor</source>
        <translation>编辑器设置</translation>
    </message>
    <message>
        <source>whether it is shown</source>
        <translation>是否显示</translation>
    </message>
    <message>
        <source>lock</source>
        <translation>锁定</translation>
    </message>
    <message>
        <source>copies without end</source>
        <translation>无限复制</translation>
    </message>
    <message>
        <source>mark of the eraser</source>
        <translation>橡皮擦标记</translation>
    </message>
    <message>
        <source>link</source>
        <translation>链接</translation>
    </message>
    <message>
        <source>place and size</source>
        <translation>位置和大小</translation>
    </message>
    <message>
        <source>place and size in the file</source>
        <translation>文件中的位置和大小</translation>
    </message>
    <message>
        <source>turn and stretch</source>
        <translation>旋转和拉伸</translation>
    </message>
    <message>
        <source>how the slide was fitted to the page</source>
        <translation>幻灯片的适配方式</translation>
    </message>
    <message>
        <source>turn</source>
        <translation>旋转</translation>
    </message>
    <message>
        <source>mirroring</source>
        <translation>翻转</translation>
    </message>
    <message>
        <source>points of the shape</source>
        <translation>形状的点</translation>
    </message>
    <message>
        <source>points of the shape in the file</source>
        <translation>文件中形状的点</translation>
    </message>
    <message>
        <source>items in it</source>
        <translation>其中的对象</translation>
    </message>
    <message>
        <source>item as it came</source>
        <translation>原样保留的对象</translation>
    </message>
    <message>
        <source>cover</source>
        <translation>遮盖</translation>
    </message>
    <message>
        <source>where it was made</source>
        <translation>创建位置</translation>
    </message>
    <message>
        <source>animation</source>
        <translation>动画</translation>
    </message>
    <message>
        <source>files of the item</source>
        <translation>对象的文件</translation>
    </message>
    <message>
        <source>file</source>
        <translation>文件</translation>
    </message>
    <message>
        <source>picture or document</source>
        <translation>图片或文档</translation>
    </message>
    <message>
        <source>picture of the background</source>
        <translation>背景图片</translation>
    </message>
    <message>
        <source>name</source>
        <translation>名称</translation>
    </message>
    <message>
        <source>width</source>
        <translation>宽度</translation>
    </message>
    <message>
        <source>height</source>
        <translation>高度</translation>
    </message>
    <message>
        <source>place</source>
        <translation>位置</translation>
    </message>
    <message>
        <source>radius</source>
        <translation>半径</translation>
    </message>
    <message>
        <source>points</source>
        <translation>点</translation>
    </message>
    <message>
        <source>colour of the fill</source>
        <translation>填充颜色</translation>
    </message>
    <message>
        <source>colour of the line</source>
        <translation>线条颜色</translation>
    </message>
    <message>
        <source>width of the line</source>
        <translation>线条宽度</translation>
    </message>
    <message>
        <source>how the colour shines through</source>
        <translation>颜色透明度</translation>
    </message>
    <message>
        <source>dashes of the line</source>
        <translation>线型</translation>
    </message>
    <message>
        <source>ends of the line</source>
        <translation>线条端点</translation>
    </message>
    <message>
        <source>colour</source>
        <translation>颜色</translation>
    </message>
    <message>
        <source>author</source>
        <translation>作者</translation>
    </message>
    <message>
        <source>date</source>
        <translation>日期</translation>
    </message>
    <message>
        <source>version of the file</source>
        <translation>文件版本</translation>
    </message>
    <message>
        <source>version of the editor</source>
        <translation>编辑器版本</translation>
    </message>
    <message>
        <source>title</source>
        <translation>标题</translation>
    </message>
    <message>
        <source>size of the page</source>
        <translation>页面大小</translation>
    </message>
    <message>
        <source>colour of the background</source>
        <translation>背景颜色</translation>
    </message>
    <message>
        <source>paper of the background</source>
        <translation>背景纸张</translation>
    </message>
    <message>
        <source>how the background lies</source>
        <translation>背景的摆放</translation>
    </message>
    <message>
        <source>change to the next slide</source>
        <translation>切换效果</translation>
    </message>
    <message>
        <source>game</source>
        <translation>游戏</translation>
    </message>
    <message>
        <source>pictures of the game</source>
        <translation>游戏的图片</translation>
    </message>
    <message>
        <source>slides</source>
        <translation>幻灯片</translation>
    </message>
    <message>
        <source>items</source>
        <translation>对象</translation>
    </message>
    <message>
        <source>files</source>
        <translation>文件</translation>
    </message>
    <message>
        <source>description</source>
        <translation>说明</translation>
    </message>
    <message>
        <source>width along the stroke</source>
        <translation>笔迹各处的宽度</translation>
    </message>
    <message>
        <source>when each point was drawn</source>
        <translation>各点的书写时间</translation>
    </message>
    <message>
        <source>pressure of the pen</source>
        <translation>笔压</translation>
    </message>
    <message>
        <source>picture of the stroke</source>
        <translation>笔迹纹理</translation>
    </message>
    <message>
        <source>picture of the stamp</source>
        <translation>图章图片</translation>
    </message>
    <message>
        <source>what was rubbed out</source>
        <translation>擦除的部分</translation>
    </message>
    <message>
        <source>how the formula was written</source>
        <translation>公式的书写过程</translation>
    </message>
    <message>
        <source>text</source>
        <translation>文字</translation>
    </message>
    <message>
        <source>colour behind the text</source>
        <translation>文字背景颜色</translation>
    </message>
    <message>
        <source>sound</source>
        <translation>声音</translation>
    </message>
    <message>
        <source>scale at the beginning</source>
        <translation>初始缩放</translation>
    </message>
    <message>
        <source>height of the text</source>
        <translation>文字的高度</translation>
    </message>
    <message>
        <source>how the text is aligned</source>
        <translation>文字对齐</translation>
    </message>
    <message>
        <source>colour of the text</source>
        <translation>文字颜色</translation>
    </message>
    <message>
        <source>font</source>
        <translation>字体</translation>
    </message>
    <message>
        <source>size of the letters</source>
        <translation>字号</translation>
    </message>
    <message>
        <source>font of the front</source>
        <translation>正面字体</translation>
    </message>
    <message>
        <source>font of the back</source>
        <translation>背面字体</translation>
    </message>
    <message>
        <source>text of the front</source>
        <translation>正面文字</translation>
    </message>
    <message>
        <source>front</source>
        <translation>正面</translation>
    </message>
    <message>
        <source>back</source>
        <translation>背面</translation>
    </message>
    <message>
        <source>width of the text</source>
        <translation>文字宽度</translation>
    </message>
    <message>
        <source>colour of the character</source>
        <translation>汉字颜色</translation>
    </message>
    <message>
        <source>whether it plays by itself</source>
        <translation>是否自动播放</translation>
    </message>
    <message>
        <source>whether it plays again</source>
        <translation>是否循环播放</translation>
    </message>
    <message>
        <source>whether it is silent</source>
        <translation>是否静音</translation>
    </message>
    <message>
        <source>loudness</source>
        <translation>音量</translation>
    </message>
    <message>
        <source>length of the sound</source>
        <translation>声音时长</translation>
    </message>
    <message>
        <source>length</source>
        <translation>长度</translation>
    </message>
    <message>
        <source>whether its name is shown</source>
        <translation>是否显示名称</translation>
    </message>
    <message>
        <source>what is cut off</source>
        <translation>裁剪</translation>
    </message>
    <message>
        <source>how it shines through</source>
        <translation>透明度</translation>
    </message>
    <message>
        <source>edge</source>
        <translation>边框</translation>
    </message>
    <message>
        <source>kind of file</source>
        <translation>文件类型</translation>
    </message>
    <message>
        <source>whether it is filled</source>
        <translation>是否填充</translation>
    </message>
    <message>
        <source>kind of fill</source>
        <translation>填充方式</translation>
    </message>
    <message>
        <source>form of the line</source>
        <translation>线条形式</translation>
    </message>
    <message>
        <source>arrowheads</source>
        <translation>箭头</translation>
    </message>
    <message>
        <source>kind</source>
        <translation>种类</translation>
    </message>
    <message>
        <source>number of corners</source>
        <translation>边数</translation>
    </message>
    <message>
        <source>whether its centre is shown</source>
        <translation>是否显示圆心</translation>
    </message>
    <message>
        <source>whether its measure is shown</source>
        <translation>是否显示度量</translation>
    </message>
    <message>
        <source>auxiliary lines</source>
        <translation>辅助线</translation>
    </message>
    <message>
        <source>unit of measures</source>
        <translation>度量单位</translation>
    </message>
    <message>
        <source>digits of measures</source>
        <translation>度量位数</translation>
    </message>
    <message>
        <source>measures of the shape</source>
        <translation>形状的尺寸</translation>
    </message>
    <message>
        <source>scale</source>
        <translation>刻度</translation>
    </message>
    <message>
        <source>kind of path</source>
        <translation>路径类型</translation>
    </message>
    <message>
        <source>drawing of the shape</source>
        <translation>形状的图样</translation>
    </message>
    <message>
        <source>name of the point</source>
        <translation>点的名称</translation>
    </message>
    <message>
        <source>angles of the arc</source>
        <translation>弧的角度</translation>
    </message>
    <message>
        <source>function</source>
        <translation>函数</translation>
    </message>
    <message>
        <source>colour of the function</source>
        <translation>函数颜色</translation>
    </message>
    <message>
        <source>whether the function is shown</source>
        <translation>是否显示函数</translation>
    </message>
    <message>
        <source>whether the axes are shown</source>
        <translation>是否显示坐标轴</translation>
    </message>
    <message>
        <source>setting of the axes</source>
        <translation>坐标轴设置</translation>
    </message>
    <message>
        <source>range of the curve</source>
        <translation>曲线范围</translation>
    </message>
    <message>
        <source>unit of the axes</source>
        <translation>坐标轴单位</translation>
    </message>
    <message>
        <source>lid</source>
        <translation>盖子</translation>
    </message>
    <message>
        <source>direction</source>
        <translation>方向</translation>
    </message>
    <message>
        <source>flame</source>
        <translation>火焰</translation>
    </message>
    <message>
        <source>whether it is lit</source>
        <translation>是否发光</translation>
    </message>
    <message>
        <source>liquid</source>
        <translation>液体</translation>
    </message>
    <message>
        <source>solid in it</source>
        <translation>其中的固体</translation>
    </message>
    <message>
        <source>colour of the liquid</source>
        <translation>液体颜色</translation>
    </message>
    <message>
        <source>colour of the solid</source>
        <translation>固体颜色</translation>
    </message>
    <message>
        <source>colour of the scale</source>
        <translation>刻度颜色</translation>
    </message>
    <message>
        <source>colour of the light</source>
        <translation>灯光颜色</translation>
    </message>
    <message>
        <source>colour of the flame</source>
        <translation>火焰颜色</translation>
    </message>
    <message>
        <source>colour of the poles</source>
        <translation>磁极颜色</translation>
    </message>
    <message>
        <source>parts of it</source>
        <translation>部件</translation>
    </message>
    <message>
        <source>shells of the atom</source>
        <translation>电子层</translation>
    </message>
    <message>
        <source>number of forces</source>
        <translation>力的组数</translation>
    </message>
    <message>
        <source>sign of the charge</source>
        <translation>电荷正负</translation>
    </message>
    <message>
        <source>speed</source>
        <translation>速度</translation>
    </message>
    <message>
        <source>place of the bracket</source>
        <translation>支架位置</translation>
    </message>
    <message>
        <source>whether the switch is closed</source>
        <translation>开关是否闭合</translation>
    </message>
    <message>
        <source>formula</source>
        <translation>公式</translation>
    </message>
    <message>
        <source>whether the character is shown</source>
        <translation>是否显示汉字</translation>
    </message>
    <message>
        <source>word</source>
        <translation>单词</translation>
    </message>
    <message>
        <source>character</source>
        <translation>汉字</translation>
    </message>
    <message>
        <source>pinyin</source>
        <translation>拼音</translation>
    </message>
    <message>
        <source>squares</source>
        <translation>田字格</translation>
    </message>
    <message>
        <source>lines for writing</source>
        <translation>书写线</translation>
    </message>
    <message>
        <source>width of a square</source>
        <translation>格子宽度</translation>
    </message>
    <message>
        <source>where the word stands</source>
        <translation>单词位置</translation>
    </message>
    <message>
        <source>whether the word is hidden</source>
        <translation>是否隐藏单词</translation>
    </message>
    <message>
        <source>how the cover shines through</source>
        <translation>遮盖透明度</translation>
    </message>
    <message>
        <source>cards</source>
        <translation>卡片</translation>
    </message>
    <message>
        <source>list of the game</source>
        <translation>游戏列表</translation>
    </message>
    <message>
        <source>connections</source>
        <translation>连线</translation>
    </message>
    <message>
        <source>things to sort</source>
        <translation>分类内容</translation>
    </message>
    <message>
        <source>shape of the light</source>
        <translation>光圈形状</translation>
    </message>
    <message>
        <source>place of the light</source>
        <translation>光圈位置</translation>
    </message>
    <message>
        <source>size of the light</source>
        <translation>光圈大小</translation>
    </message>
    <message>
        <source>picture</source>
        <translation>图片</translation>
    </message>
    <message>
        <source>text of the gap</source>
        <translation>填空文字</translation>
    </message>
    <message>
        <source>gap</source>
        <translation>空格</translation>
    </message>
    <message>
        <source>figure of the game</source>
        <translation>游戏形象</translation>
    </message>
    <message>
        <source>place of the text</source>
        <translation>文字位置</translation>
    </message>
    <message>
        <source>whether it can be changed</source>
        <translation>是否可编辑</translation>
    </message>
    <message>
        <source>kind of worksheet</source>
        <translation>课件类型</translation>
    </message>
    <message>
        <source>question of the game</source>
        <translation>游戏问题</translation>
    </message>
    <message>
        <source>sign</source>
        <translation>符号</translation>
    </message>
    <message>
        <source>branches of the mind map</source>
        <translation>思维导图的分支</translation>
    </message>
    <message>
        <source>text of the question</source>
        <translation>题目内容</translation>
    </message>
    <message>
        <source>answer</source>
        <translation>答案</translation>
    </message>
    <message>
        <source>page that is open</source>
        <translation>打开的页面</translation>
    </message>
    <message>
        <source>size of the question</source>
        <translation>题目大小</translation>
    </message>
    <message>
        <source>pieces of the game</source>
        <translation>游戏素材</translation>
    </message>
    <message>
        <source>&quot;%1&quot;</source>
        <translation>“%1”</translation>
    </message>
    <message>
        <source>Things to connect</source>
        <translation>连线题</translation>
    </message>
    <message>
        <source>Curtain</source>
        <translation>幕布</translation>
    </message>
    <message>
        <source>Things to sort</source>
        <translation>分类题</translation>
    </message>
    <message>
        <source>Spotlight</source>
        <translation>聚光灯</translation>
    </message>
    <message>
        <source>Compasses</source>
        <translation>圆规</translation>
    </message>
    <message>
        <source>Protractor</source>
        <translation>量角器</translation>
    </message>
    <message>
        <source>Ruler</source>
        <translation>直尺</translation>
    </message>
    <message>
        <source>Set square of 30 and 60 degrees</source>
        <translation>30°、60° 三角板</translation>
    </message>
    <message>
        <source>Set square of 45 degrees</source>
        <translation>45° 三角板</translation>
    </message>
    <message>
        <source>Basket of a game</source>
        <translation>游戏的容器</translation>
    </message>
    <message>
        <source>Place to compare</source>
        <translation>比较位置</translation>
    </message>
    <message>
        <source>Gap to fill</source>
        <translation>填空</translation>
    </message>
    <message>
        <source>Place of a sentence</source>
        <translation>句子位置</translation>
    </message>
    <message>
        <source>Piece of a game</source>
        <translation>游戏素材</translation>
    </message>
    <message>
        <source>Piece to compare</source>
        <translation>比较素材</translation>
    </message>
    <message>
        <source>Piece of a contest</source>
        <translation>竞赛素材</translation>
    </message>
    <message>
        <source>Piece for a gap</source>
        <translation>填空素材</translation>
    </message>
    <message>
        <source>Score</source>
        <translation>得分</translation>
    </message>
    <message>
        <source>Tip of a game</source>
        <translation>游戏提示</translation>
    </message>
    <message>
        <source>Part of a sentence</source>
        <translation>句子成分</translation>
    </message>
    <message>
        <source>First player</source>
        <translation>一号选手</translation>
    </message>
    <message>
        <source>Second player</source>
        <translation>二号选手</translation>
    </message>
    <message>
        <source>Card to turn</source>
        <translation>翻转卡片</translation>
    </message>
    <message>
        <source>Text to read aloud</source>
        <translation>朗读文本</translation>
    </message>
    <message>
        <source>Tip for reading aloud</source>
        <translation>朗读提示</translation>
    </message>
    <message>
        <source>Brace</source>
        <translation>花括号</translation>
    </message>
    <message>
        <source>Bracket</source>
        <translation>括号</translation>
    </message>
    <message>
        <source>Speech bubble</source>
        <translation>对话框</translation>
    </message>
    <message>
        <source>Division sign</source>
        <translation>除号</translation>
    </message>
    <message>
        <source>Arrow with two heads</source>
        <translation>双向箭头</translation>
    </message>
    <message>
        <source>Ellipse</source>
        <translation>椭圆</translation>
    </message>
    <message>
        <source>Equals sign</source>
        <translation>等号</translation>
    </message>
    <message>
        <source>Flag</source>
        <translation>旗帜</translation>
    </message>
    <message>
        <source>Free drawing</source>
        <translation>自由绘图</translation>
    </message>
    <message>
        <source>Heart</source>
        <translation>心形</translation>
    </message>
    <message>
        <source>Minus sign</source>
        <translation>减号</translation>
    </message>
    <message>
        <source>Multiplication sign</source>
        <translation>乘号</translation>
    </message>
    <message>
        <source>Shape</source>
        <translation>形状</translation>
    </message>
    <message>
        <source>Parallelogram</source>
        <translation>平行四边形</translation>
    </message>
    <message>
        <source>Five-pointed star</source>
        <translation>五角星</translation>
    </message>
    <message>
        <source>Plus sign</source>
        <translation>加号</translation>
    </message>
    <message>
        <source>Rectangle</source>
        <translation>矩形</translation>
    </message>
    <message>
        <source>Rhombus</source>
        <translation>菱形</translation>
    </message>
    <message>
        <source>Tick</source>
        <translation>对号</translation>
    </message>
    <message>
        <source>Segment</source>
        <translation>线段</translation>
    </message>
    <message>
        <source>Arrow</source>
        <translation>箭头</translation>
    </message>
    <message>
        <source>Trapezium</source>
        <translation>梯形</translation>
    </message>
    <message>
        <source>Triangle</source>
        <translation>三角形</translation>
    </message>
    <message>
        <source>Not-equals sign</source>
        <translation>不等号</translation>
    </message>
    <message>
        <source>Cross</source>
        <translation>叉</translation>
    </message>
    <message>
        <source>Chalk stroke</source>
        <translation>粉笔笔迹</translation>
    </message>
    <message>
        <source>Brush stroke</source>
        <translation>毛笔笔迹</translation>
    </message>
    <message>
        <source>Benzene ring</source>
        <translation>苯环</translation>
    </message>
    <message>
        <source>Formula</source>
        <translation>公式</translation>
    </message>
    <message>
        <source>Glass rod</source>
        <translation>玻璃棒</translation>
    </message>
    <message>
        <source>Glass delivery tube</source>
        <translation>玻璃导管</translation>
    </message>
    <message>
        <source>Glass tube</source>
        <translation>玻璃管</translation>
    </message>
    <message>
        <source>Glass stopper</source>
        <translation>玻璃塞</translation>
    </message>
    <message>
        <source>Long-necked funnel</source>
        <translation>长颈漏斗</translation>
    </message>
    <message>
        <source>Burette clamp</source>
        <translation>滴定管夹</translation>
    </message>
    <message>
        <source>Expression</source>
        <translation>表达式</translation>
    </message>
    <message>
        <source>Weight</source>
        <translation>砝码</translation>
    </message>
    <message>
        <source>Separating funnel</source>
        <translation>分液漏斗</translation>
    </message>
    <message>
        <source>Flask</source>
        <translation>烧瓶</translation>
    </message>
    <message>
        <source>Drying bulb</source>
        <translation>干燥球</translation>
    </message>
    <message>
        <source>Solid</source>
        <translation>固状物</translation>
    </message>
    <message>
        <source>Flame</source>
        <translation>火焰</translation>
    </message>
    <message>
        <source>Alkali burette</source>
        <translation>碱式滴定管</translation>
    </message>
    <message>
        <source>Gas jar</source>
        <translation>集气瓶</translation>
    </message>
    <message>
        <source>Bond</source>
        <translation>化学键</translation>
    </message>
    <message>
        <source>Dropper</source>
        <translation>胶头滴管</translation>
    </message>
    <message>
        <source>Spirit lamp</source>
        <translation>酒精灯</translation>
    </message>
    <message>
        <source>Condenser</source>
        <translation>冷凝管</translation>
    </message>
    <message>
        <source>Measuring cylinder</source>
        <translation>量筒</translation>
    </message>
    <message>
        <source>Funnel</source>
        <translation>漏斗</translation>
    </message>
    <message>
        <source>Wooden block</source>
        <translation>木块</translation>
    </message>
    <message>
        <source>Stopper</source>
        <translation>塞子</translation>
    </message>
    <message>
        <source>Tweezers</source>
        <translation>镊子</translation>
    </message>
    <message>
        <source>Bubble</source>
        <translation>气泡</translation>
    </message>
    <message>
        <source>Kipp&apos;s apparatus</source>
        <translation>启普发生器</translation>
    </message>
    <message>
        <source>Round separating funnel</source>
        <translation>球形分液漏斗</translation>
    </message>
    <message>
        <source>Retort</source>
        <translation>曲颈甑</translation>
    </message>
    <message>
        <source>Burning spoon</source>
        <translation>燃烧匙</translation>
    </message>
    <message>
        <source>Volumetric flask</source>
        <translation>容量瓶</translation>
    </message>
    <message>
        <source>Acid burette</source>
        <translation>酸式滴定管</translation>
    </message>
    <message>
        <source>Tripod</source>
        <translation>三脚架</translation>
    </message>
    <message>
        <source>Beaker</source>
        <translation>烧杯</translation>
    </message>
    <message>
        <source>Test tube rack</source>
        <translation>试管架</translation>
    </message>
    <message>
        <source>Test tube clamp</source>
        <translation>试管夹</translation>
    </message>
    <message>
        <source>Reagent bottle</source>
        <translation>试剂瓶</translation>
    </message>
    <message>
        <source>Wire gauze</source>
        <translation>石棉网</translation>
    </message>
    <message>
        <source>Test tube</source>
        <translation>试管</translation>
    </message>
    <message>
        <source>Electron transfer</source>
        <translation>双线桥</translation>
    </message>
    <message>
        <source>Water trough</source>
        <translation>水槽</translation>
    </message>
    <message>
        <source>Drop of water</source>
        <translation>水滴</translation>
    </message>
    <message>
        <source>Balance</source>
        <translation>天平</translation>
    </message>
    <message>
        <source>Iron stand</source>
        <translation>铁架台</translation>
    </message>
    <message>
        <source>U-tube</source>
        <translation>U 形管</translation>
    </message>
    <message>
        <source>Thermometer</source>
        <translation>温度计</translation>
    </message>
    <message>
        <source>Rubber tube</source>
        <translation>橡皮管</translation>
    </message>
    <message>
        <source>Spatula</source>
        <translation>药匙</translation>
    </message>
    <message>
        <source>Drainage tube</source>
        <translation>引流管</translation>
    </message>
    <message>
        <source>Atom</source>
        <translation>原子</translation>
    </message>
    <message>
        <source>Evaporating dish</source>
        <translation>蒸发皿</translation>
    </message>
    <message>
        <source>Conical flask</source>
        <translation>锥形瓶</translation>
    </message>
    <message>
        <source>Pinyin letters</source>
        <translation>拼音字母</translation>
    </message>
    <message>
        <source>Chinese character</source>
        <translation>汉字</translation>
    </message>
    <message>
        <source>Pinyin</source>
        <translation>拼音</translation>
    </message>
    <message>
        <source>Pen stroke</source>
        <translation>笔迹</translation>
    </message>
    <message>
        <source>Word art</source>
        <translation>艺术字</translation>
    </message>
    <message>
        <source>Moving worksheet</source>
        <translation>动态课件</translation>
    </message>
    <message>
        <source>Highlighter</source>
        <translation>荧光笔笔迹</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>组合</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>图片</translation>
    </message>
    <message>
        <source>Strokes of a character</source>
        <translation>汉字笔画</translation>
    </message>
    <message>
        <source>Character with pinyin</source>
        <translation>带拼音的汉字</translation>
    </message>
    <message>
        <source>Word with phonetics</source>
        <translation>带音标的单词</translation>
    </message>
    <message>
        <source>Angle</source>
        <translation>角</translation>
    </message>
    <message>
        <source>Circle</source>
        <translation>圆</translation>
    </message>
    <message>
        <source>Point</source>
        <translation>点</translation>
    </message>
    <message>
        <source>Measured segment</source>
        <translation>测量线段</translation>
    </message>
    <message>
        <source>Measured triangle</source>
        <translation>测量三角形</translation>
    </message>
    <message>
        <source>Arc</source>
        <translation>弧</translation>
    </message>
    <message>
        <source>Regular heptagon</source>
        <translation>正七边形</translation>
    </message>
    <message>
        <source>Regular hexagon</source>
        <translation>正六边形</translation>
    </message>
    <message>
        <source>Regular octagon</source>
        <translation>正八边形</translation>
    </message>
    <message>
        <source>Regular pentagon</source>
        <translation>正五边形</translation>
    </message>
    <message>
        <source>Square</source>
        <translation>正方形</translation>
    </message>
    <message>
        <source>Equilateral triangle</source>
        <translation>等边三角形</translation>
    </message>
    <message>
        <source>Pentagon</source>
        <translation>五边形</translation>
    </message>
    <message>
        <source>Plane</source>
        <translation>平面</translation>
    </message>
    <message>
        <source>Line of segments</source>
        <translation>折线</translation>
    </message>
    <message>
        <source>Quadrangle</source>
        <translation>四边形</translation>
    </message>
    <message>
        <source>Cylinder</source>
        <translation>圆柱</translation>
    </message>
    <message>
        <source>Cone</source>
        <translation>圆锥</translation>
    </message>
    <message>
        <source>Cube</source>
        <translation>立方体</translation>
    </message>
    <message>
        <source>Frustum of a cone</source>
        <translation>圆台</translation>
    </message>
    <message>
        <source>Frustum of a pyramid</source>
        <translation>棱台</translation>
    </message>
    <message>
        <source>Half sphere</source>
        <translation>半球</translation>
    </message>
    <message>
        <source>Intersecting planes</source>
        <translation>相交平面</translation>
    </message>
    <message>
        <source>Prism</source>
        <translation>棱柱</translation>
    </message>
    <message>
        <source>Pyramid</source>
        <translation>棱锥</translation>
    </message>
    <message>
        <source>Sphere</source>
        <translation>球体</translation>
    </message>
    <message>
        <source>Tetrahedron</source>
        <translation>四面体</translation>
    </message>
    <message>
        <source>Coordinates with functions</source>
        <translation>函数坐标系</translation>
    </message>
    <message>
        <source>Coordinates with parametric curves</source>
        <translation>参数坐标系</translation>
    </message>
    <message>
        <source>Polar coordinates</source>
        <translation>极坐标系</translation>
    </message>
    <message>
        <source>Sound</source>
        <translation>声音</translation>
    </message>
    <message>
        <source>Document</source>
        <translation>文档</translation>
    </message>
    <message>
        <source>Flash film</source>
        <translation>Flash 动画</translation>
    </message>
    <message>
        <source>Film</source>
        <translation>视频</translation>
    </message>
    <message>
        <source>Mind map</source>
        <translation>思维导图</translation>
    </message>
    <message>
        <source>Ammeter</source>
        <translation>电流表</translation>
    </message>
    <message>
        <source>Ammeter with a scale</source>
        <translation>带刻度的电流表</translation>
    </message>
    <message>
        <source>Groove</source>
        <translation>凹槽</translation>
    </message>
    <message>
        <source>Concave lens, as a symbol</source>
        <translation>凹透镜符号</translation>
    </message>
    <message>
        <source>Concave lens</source>
        <translation>凹透镜</translation>
    </message>
    <message>
        <source>Half of a concave lens</source>
        <translation>半凹透镜</translation>
    </message>
    <message>
        <source>Half of a convex lens</source>
        <translation>半凸透镜</translation>
    </message>
    <message>
        <source>Conveyor belt</source>
        <translation>传送带</translation>
    </message>
    <message>
        <source>Magnetic field</source>
        <translation>磁场</translation>
    </message>
    <message>
        <source>Wire</source>
        <translation>导线</translation>
    </message>
    <message>
        <source>Electric field</source>
        <translation>电场</translation>
    </message>
    <message>
        <source>Battery cell</source>
        <translation>电池</translation>
    </message>
    <message>
        <source>Battery</source>
        <translation>电池组</translation>
    </message>
    <message>
        <source>Lamp, as a symbol</source>
        <translation>电灯符号</translation>
    </message>
    <message>
        <source>Electric charge</source>
        <translation>电荷</translation>
    </message>
    <message>
        <source>Electric bell</source>
        <translation>电铃</translation>
    </message>
    <message>
        <source>Galvanometer</source>
        <translation>电流计</translation>
    </message>
    <message>
        <source>Capacitor</source>
        <translation>电容</translation>
    </message>
    <message>
        <source>Electron</source>
        <translation>电子</translation>
    </message>
    <message>
        <source>Resistor</source>
        <translation>电阻</translation>
    </message>
    <message>
        <source>Lamp</source>
        <translation>电灯</translation>
    </message>
    <message>
        <source>Voltmeter with a scale</source>
        <translation>带刻度的电压表</translation>
    </message>
    <message>
        <source>Lever</source>
        <translation>杠杆</translation>
    </message>
    <message>
        <source>Hooked weight</source>
        <translation>钩码</translation>
    </message>
    <message>
        <source>Stand for optics</source>
        <translation>光学支架</translation>
    </message>
    <message>
        <source>Sliding resistor, as a symbol</source>
        <translation>滑动变阻器符号</translation>
    </message>
    <message>
        <source>Pulley</source>
        <translation>滑轮</translation>
    </message>
    <message>
        <source>Pulley block</source>
        <translation>滑轮组</translation>
    </message>
    <message>
        <source>Sliding resistor</source>
        <translation>滑动变阻器</translation>
    </message>
    <message>
        <source>Alternating current motor</source>
        <translation>交流电动机</translation>
    </message>
    <message>
        <source>Earth connection</source>
        <translation>接地</translation>
    </message>
    <message>
        <source>Distance</source>
        <translation>距离</translation>
    </message>
    <message>
        <source>Switch</source>
        <translation>开关</translation>
    </message>
    <message>
        <source>Two-way switch</source>
        <translation>双向开关</translation>
    </message>
    <message>
        <source>Knife switch</source>
        <translation>闸刀开关</translation>
    </message>
    <message>
        <source>Scale</source>
        <translation>刻度</translation>
    </message>
    <message>
        <source>Loudspeaker</source>
        <translation>喇叭</translation>
    </message>
    <message>
        <source>Candle</source>
        <translation>蜡烛</translation>
    </message>
    <message>
        <source>Force</source>
        <translation>力</translation>
    </message>
    <message>
        <source>Propeller</source>
        <translation>螺旋桨</translation>
    </message>
    <message>
        <source>Wooden rod</source>
        <translation>木棒</translation>
    </message>
    <message>
        <source>Cylinder with a piston</source>
        <translation>气缸</translation>
    </message>
    <message>
        <source>Inclined plane</source>
        <translation>斜面</translation>
    </message>
    <message>
        <source>Meter</source>
        <translation>仪表</translation>
    </message>
    <message>
        <source>Spring</source>
        <translation>弹簧</translation>
    </message>
    <message>
        <source>Spring balance</source>
        <translation>弹簧秤</translation>
    </message>
    <message>
        <source>Bar magnet</source>
        <translation>条形磁铁</translation>
    </message>
    <message>
        <source>Iron core</source>
        <translation>铁芯</translation>
    </message>
    <message>
        <source>Convex lens, as a symbol</source>
        <translation>凸透镜符号</translation>
    </message>
    <message>
        <source>Convex lens</source>
        <translation>凸透镜</translation>
    </message>
    <message>
        <source>Horseshoe magnet</source>
        <translation>U 形磁铁</translation>
    </message>
    <message>
        <source>Voltmeter</source>
        <translation>电压表</translation>
    </message>
    <message>
        <source>Battery, as a symbol</source>
        <translation>电池符号</translation>
    </message>
    <message>
        <source>Coil</source>
        <translation>线圈</translation>
    </message>
    <message>
        <source>Trolley</source>
        <translation>小车</translation>
    </message>
    <message>
        <source>Compass needle</source>
        <translation>小磁针</translation>
    </message>
    <message>
        <source>Ball</source>
        <translation>小球</translation>
    </message>
    <message>
        <source>Slope</source>
        <translation>坡面</translation>
    </message>
    <message>
        <source>Knob</source>
        <translation>旋钮</translation>
    </message>
    <message>
        <source>Vernier caliper</source>
        <translation>游标卡尺</translation>
    </message>
    <message>
        <source>Round groove</source>
        <translation>圆槽</translation>
    </message>
    <message>
        <source>Curved slide</source>
        <translation>圆弧滑板</translation>
    </message>
    <message>
        <source>Direct current motor</source>
        <translation>直流电动机</translation>
    </message>
    <message>
        <source>Question</source>
        <translation>题目</translation>
    </message>
    <message>
        <source>One-sided arrow</source>
        <translation>单边箭头</translation>
    </message>
    <message>
        <source>Square bracket</source>
        <translation>方括号</translation>
    </message>
    <message>
        <source>Aeroplane</source>
        <translation>飞机</translation>
    </message>
    <message>
        <source>Angle bracket</source>
        <translation>尖括号</translation>
    </message>
    <message>
        <source>Callout with an arrow</source>
        <translation>箭头标注</translation>
    </message>
    <message>
        <source>Connecting line</source>
        <translation>连接线</translation>
    </message>
    <message>
        <source>Curved arrow</source>
        <translation>曲线箭头</translation>
    </message>
    <message>
        <source>One to many</source>
        <translation>一对多连线</translation>
    </message>
    <message>
        <source>Round bracket</source>
        <translation>圆括号</translation>
    </message>
    <message>
        <source>Cloud</source>
        <translation>云</translation>
    </message>
    <message>
        <source>Straight arrow</source>
        <translation>直线箭头</translation>
    </message>
    <message>
        <source>Textured stroke</source>
        <translation>纹理笔迹</translation>
    </message>
    <message>
        <source>Handwritten formula</source>
        <translation>手写公式</translation>
    </message>
    <message>
        <source>Bamboo brush stroke</source>
        <translation>竹笔笔迹</translation>
    </message>
    <message>
        <source>Rubbed out ink</source>
        <translation>擦除的笔迹</translation>
    </message>
    <message>
        <source>Stamp</source>
        <translation>图章</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>文本</translation>
    </message>
    <message>
        <source>Explosion</source>
        <translation>爆炸形</translation>
    </message>
    <message>
        <source>Wave</source>
        <translation>波浪形</translation>
    </message>
    <message>
        <source>Block arrow</source>
        <translation>块状箭头</translation>
    </message>
    <message>
        <source>Hexagon</source>
        <translation>六边形</translation>
    </message>
    <message>
        <source>Sector</source>
        <translation>扇形</translation>
    </message>
    <message>
        <source>Lightning</source>
        <translation>闪电</translation>
    </message>
    <message>
        <source>Tile</source>
        <translation>瓦片形</translation>
    </message>
    <message>
        <source>Smiley</source>
        <translation>笑脸</translation>
    </message>
    <message>
        <source>Star</source>
        <translation>星形</translation>
    </message>
    <message>
        <source>Page</source>
        <translation>页面形</translation>
    </message>
    <message>
        <source>Rounded rectangle</source>
        <translation>圆角矩形</translation>
    </message>
    <message>
        <source>Moon</source>
        <translation>月亮</translation>
    </message>
    <message>
        <source>Bullet</source>
        <translation>子弹</translation>
    </message>
    <message>
        <source>Words in squares</source>
        <translation>田字格文字</translation>
    </message>
    <message>
        <source>Item of a subject</source>
        <translation>学科对象</translation>
    </message>
    <message>
        <source>Link</source>
        <translation>链接</translation>
    </message>
    <message>
        <source>Copy of a shape</source>
        <translation>形状的副本</translation>
    </message>
    <message>
        <source>0 or 1</source>
        <translation>0 或 1</translation>
    </message>
    <message>
        <source>four numbers, none of them more than %1 from 0</source>
        <translation>四个数，与 0 相差都不超过 %1</translation>
    </message>
    <message>
        <source>six numbers, none of them more than %1 from 0</source>
        <translation>六个数，与 0 相差都不超过 %1</translation>
    </message>
    <message>
        <source>pairs of numbers, none of them more than %1 from 0</source>
        <translation>成对的数，与 0 相差都不超过 %1</translation>
    </message>
    <message>
        <source>a number from %1 to %2</source>
        <translation>%1 到 %2 之间的数</translation>
    </message>
    <message>
        <source>a colour</source>
        <translation>一种颜色</translation>
    </message>
    <message>
        <source>a slide from 1 to %1</source>
        <translation>1 到 %1 的幻灯片编号</translation>
    </message>
    <message numerus="yes">
        <source>%n values aren&apos;t in the lesson: %1</source>
        <translation>
            <numerusform>课件中缺少 %n 个值：%1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n slides are empty in the result: %1</source>
        <translation>
            <numerusform>结果中有 %n 张空白幻灯片：%1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n slides are empty on other boards: %1</source>
        <translation>
            <numerusform>在其他白板上有 %n 张幻灯片为空：%1</numerusform>
        </translation>
    </message>
    <message>
        <source>the lesson</source>
        <translation>课件</translation>
    </message>
    <message>
        <source>slide %1</source>
        <translation>幻灯片 %1</translation>
    </message>
    <message>
        <source>slides %1 to %2</source>
        <translation>幻灯片 %1 至 %2</translation>
    </message>
    <message numerus="yes">
        <source>%n slides from %1 to %2</source>
        <translation>
            <numerusform>幻灯片 %1 至 %2 中的 %n 张</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n other items</source>
        <translation>
            <numerusform>%n 个其他对象</numerusform>
        </translation>
    </message>
    <message>
        <source>as a picture</source>
        <translation>显示为图片</translation>
    </message>
    <message>
        <source>other boards have no such thing</source>
        <translation>其他白板没有这种对象</translation>
    </message>
    <message>
        <source>this format has no such thing</source>
        <translation>该格式没有这种对象</translation>
    </message>
    <message>
        <source>Slide %1 is empty in the result.</source>
        <translation>结果中幻灯片 %1 为空。</translation>
    </message>
    <message>
        <source>Slide %1 is empty there.</source>
        <translation>幻灯片 %1 在那里为空。</translation>
    </message>
    <message>
        <source>%1 (%2): %3.</source>
        <translation>%1（%2）：%3。</translation>
    </message>
    <message>
        <source>%1 (%2 times)</source>
        <translation>%1（%2 次）</translation>
    </message>
    <message>
        <source>The lesson itself travels along in the file, so that lessonconv brings all of it back.</source>
        <translation>课件本身随文件一起保存，lessonconv 可以全部还原。</translation>
    </message>
    <message>
        <source>--report FILE names each.</source>
        <translation>--report 文件 会逐一列出。</translation>
    </message>
    <message>
        <source>%1:</source>
        <translation>%1：</translation>
    </message>
    <message>
        <source>nobody knows what it is, so it is kept as it came</source>
        <translation>不知道这是什么，因此原样保留</translation>
    </message>
    <message numerus="yes">
        <source>Note: and %n more.</source>
        <translation>
            <numerusform>提示：另有 %n 项。</numerusform>
        </translation>
    </message>
    <message>
        <source>Not shown by other boards</source>
        <translation>其他白板不显示</translation>
    </message>
    <message>
        <source>Not shown in the result</source>
        <translation>结果中不显示</translation>
    </message>
    <message>
        <source>Shown by other boards, but not the same</source>
        <translation>其他白板上显示但不相同</translation>
    </message>
    <message>
        <source>Shown in the result, but not the same</source>
        <translation>结果中显示但不相同</translation>
    </message>
    <message>
        <source>Only internal, and nothing to other boards</source>
        <translation>仅内部信息，与其他白板无关</translation>
    </message>
    <message>
        <source>Only internal, seen by nobody</source>
        <translation>仅内部信息，无人可见</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>提示</translation>
    </message>
    <message>
        <source>Shown in the result the same, but it works otherwise</source>
        <translation>结果中显示相同但行为不同</translation>
    </message>
    <message>
        <source>Cover</source>
        <translation>遮盖</translation>
    </message>
    <message>
        <source>it has no place on the page</source>
        <translation>在页面上没有位置</translation>
    </message>
    <message>
        <source>it has no file to show</source>
        <translation>没有可显示的文件</translation>
    </message>
    <message>
        <source>some have no form, or are groups</source>
        <translation>有些没有对应形式，或者是组合</translation>
    </message>
    <message numerus="yes">
        <source>%n texts with a translucent background</source>
        <translation>
            <numerusform>%n 段带半透明背景的文本</numerusform>
        </translation>
    </message>
    <message>
        <source>it became a curtain, which has a cloth of its own</source>
        <translation>变成了幕布，幕布有自己的颜色</translation>
    </message>
    <message>
        <source>only upright or turned rectangles become curtains</source>
        <translation>只有正放或旋转的矩形才会变成幕布</translation>
    </message>
    <message>
        <source>only pictures can be flipped</source>
        <translation>只有图片可以翻转</translation>
    </message>
    <message>
        <source>its slides were put into another order by another program</source>
        <translation>其幻灯片的顺序被其他程序改变</translation>
    </message>
    <message>
        <source>removed by another program</source>
        <translation>被其他程序删除</translation>
    </message>
    <message>
        <source>changed by another program</source>
        <translation>被其他程序修改</translation>
    </message>
    <message>
        <source>the slide was removed by another program</source>
        <translation>该幻灯片被其他程序删除</translation>
    </message>
    <message>
        <source>added by another program</source>
        <translation>由其他程序添加</translation>
    </message>
    <message>
        <source>its background was changed by another program</source>
        <translation>其背景被其他程序修改</translation>
    </message>
    <message>
        <source>its items were put into another order by another program</source>
        <translation>其对象的顺序被其他程序改变</translation>
    </message>
    <message>
        <source>its items were put elsewhere by another program</source>
        <translation>其中的对象被其他程序移到别处</translation>
    </message>
    <message numerus="yes">
        <source>%n things are another program&apos;s work: %1</source>
        <translation>
            <numerusform>%n 处是其他程序所为：%1</numerusform>
        </translation>
    </message>
    <message>
        <source>other boards show a picture that opens it</source>
        <translation>其他白板显示一张可以打开它的图片</translation>
    </message>
    <message>
        <source>Chemistry</source>
        <translation>化学</translation>
    </message>
    <message>
        <source>Physics</source>
        <translation>物理</translation>
    </message>
    <message>
        <source>Mathematics</source>
        <translation>数学</translation>
    </message>
    <message>
        <source>Figure</source>
        <translation>图形</translation>
    </message>
    <message>
        <source>Item of no type</source>
        <translation>没有类型的对象</translation>
    </message>
    <message>
        <source>%1 that is missing</source>
        <translation>缺失的%1</translation>
    </message>
    <message>
        <source>a picture of all its repetitions took its place</source>
        <translation>由一张包含其全部平铺的图片代替</translation>
    </message>
    <message>
        <source>it is a drawing with nothing in it</source>
        <translation>是没有内容的 svg 图形</translation>
    </message>
    <message>
        <source>it is a larger drawing than can be read</source>
        <translation>是过大而无法读取的 svg 图形</translation>
    </message>
    <message>
        <source>Standard output takes no report</source>
        <translation>标准输出不接受报告</translation>
    </message>
    <message>
        <source>Give the report a name, or say --json</source>
        <translation>请给报告一个文件名，或使用 --json</translation>
    </message>
    <message>
        <source>%1 takes no files</source>
        <translation>%1 不接受文件</translation>
    </message>
    <message>
        <source>%1 takes a single file</source>
        <translation>%1 只接受一个文件</translation>
    </message>
    <message>
        <source>%1 needs the reports of runs over many lessons</source>
        <translation>%1 需要批量运行的报告</translation>
    </message>
    <message>
        <source>Slides drawn: %1. Items shown by their name: %2.</source>
        <translation>已绘制幻灯片：%1。以名称显示的对象：%2。</translation>
    </message>
    <message>
        <source>Print the versions of the command and of the plug-in.</source>
        <translation>显示命令和插件的版本。</translation>
    </message>
    <message>
        <source>A name in this call is empty</source>
        <translation>命令中有一个名称为空</translation>
    </message>
    <message>
        <source>Check what was to stand in its place, such as a variable of the shell</source>
        <translation>请检查该处应有的内容，例如 shell 变量</translation>
    </message>
    <message>
        <source>Many lessons come from files and go into a folder, and &quot;%1&quot; is neither</source>
        <translation>多个课件须来自文件并写入文件夹，而“%1”两者都不是</translation>
    </message>
    <message>
        <source>Convert what is sent there by a call of its own, without --out-dir</source>
        <translation>请用单独的、不带 --out-dir 的命令转换传入的内容</translation>
    </message>
    <message>
        <source>%1 %2.</source>
        <translation>%1%2。</translation>
    </message>
    <message>
        <source>This archive is no lesson: it has neither index.xml nor content.xml</source>
        <translation>该压缩包不是课件：其中既没有 index.xml 也没有 content.xml</translation>
    </message>
    <message>
        <source>Unpack it if lessons are in it, and convert those</source>
        <translation>如果其中有课件，请先解压再转换</translation>
    </message>
    <message>
        <source>it is a larger picture than can be read</source>
        <translation>是过大而无法读取的图片</translation>
    </message>
    <message>
        <source>the file %1 was found as %2</source>
        <translation>文件 %1 以 %2 的名称找到</translation>
    </message>
    <message numerus="yes">
        <source>%n elements</source>
        <translation>
            <numerusform>%n 个对象</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n parts of texts</source>
        <translation>
            <numerusform>%n 个文字片段</numerusform>
        </translation>
    </message>
    <message>
        <source>Element</source>
        <translation>对象</translation>
    </message>
    <message>
        <source>Part of a text</source>
        <translation>文字片段</translation>
    </message>
    <message numerus="yes">
        <source>%n bytes</source>
        <translation>
            <numerusform>%n 字节</numerusform>
        </translation>
    </message>
    <message>
        <source>what the file has of the lesson itself is damaged, so it is read as others show it</source>
        <translation>文件中的课件本身已损坏，因此按其他白板所显示的内容读取</translation>
    </message>
    <message>
        <source>as outlines</source>
        <translation>显示为轮廓</translation>
    </message>
    <message>
        <source>the system allows no more threads</source>
        <translation>系统不允许更多线程</translation>
    </message>
    <message>
        <source>Try again when less is running, or raise the limit</source>
        <translation>请在运行的程序较少时重试，或提高限制</translation>
    </message>
    <message>
        <source>A picture can&apos;t be packed</source>
        <translation>图片无法压缩</translation>
    </message>
    <message>
        <source>The picture &quot;%1&quot; can&apos;t be packed</source>
        <translation>图片“%1”无法压缩</translation>
    </message>
    <message>
        <source>Check that there is enough memory</source>
        <translation>请检查内存是否足够</translation>
    </message>
    <message>
        <source>The archive can&apos;t be written</source>
        <translation>无法写入压缩包</translation>
    </message>
</context>
</TS>
