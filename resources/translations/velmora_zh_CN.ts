<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name>Main</name>
    <message>
        <source>%1 at %2</source>
        <translation>%1 %2</translation>
    </message>
    <message>
        <source>Velmora is running already, but does not answer.</source>
        <translation>Velmora 已在运行，但没有响应。</translation>
    </message>
    <message>
        <source>uQy-DD-JDr.title</source>
        <translation>Velmora</translation>
    </message>
    <message>
        <source>textViewTitle</source>
        <translation>您隐藏和显示的文件与文件夹
会列在这里</translation>
    </message>
    <message>
        <source>lEi-kk-qD3.title</source>
        <translation>可见</translation>
    </message>
    <message>
        <source>L5h-mo-cYT.title</source>
        <translation>已隐藏</translation>
    </message>
    <message>
        <source>searchTitle</source>
        <translation>search</translation>
    </message>
    <message>
        <source>removeTitle</source>
        <translation>remove</translation>
    </message>
    <message>
        <source>fileTitle</source>
        <translation>文件(&amp;F)</translation>
    </message>
    <message>
        <source>editTitle</source>
        <translation>编辑(&amp;E)</translation>
    </message>
    <message>
        <source>viewTitle</source>
        <translation>显示(&amp;V)</translation>
    </message>
    <message>
        <source>windowTitle</source>
        <translation>窗口(&amp;W)</translation>
    </message>
    <message>
        <source>helpTitle</source>
        <translation>帮助(&amp;H)</translation>
    </message>
    <message>
        <source>hideMenuItem</source>
        <translation>隐藏</translation>
    </message>
    <message>
        <source>addMenuItem</source>
        <translation>添加(&amp;A)…</translation>
    </message>
    <message>
        <source>openMenuItem</source>
        <translation>打开(&amp;O)</translation>
    </message>
    <message>
        <source>removeMenuItem</source>
        <translation>移除(&amp;M)</translation>
    </message>
    <message>
        <source>closeMenuItem</source>
        <translation>关闭(&amp;C)</translation>
    </message>
    <message>
        <source>revealInFinderMenuItem</source>
        <translation>在文件管理器中显示(&amp;R)</translation>
    </message>
    <message>
        <source>aboutVelmoraMenuItem</source>
        <translation>关于 Velmora(&amp;A)</translation>
    </message>
    <message>
        <source>preferenceMenuItem</source>
        <translation>偏好设置(&amp;P)…</translation>
    </message>
    <message>
        <source>checkforUpdatesMenuItem</source>
        <translation>检查更新(&amp;U)…</translation>
    </message>
    <message>
        <source>hideVelmoraMenuItem</source>
        <translation>隐藏 Velmora(&amp;H)</translation>
    </message>
    <message>
        <source>hideOthersMenuItem</source>
        <translation>隐藏其他(&amp;O)</translation>
    </message>
    <message>
        <source>showAllMenuItem</source>
        <translation>全部显示(&amp;L)</translation>
    </message>
    <message>
        <source>quitVelmoraMenuItem</source>
        <translation>退出 Velmora(&amp;Q)</translation>
    </message>
    <message>
        <source>serviceMenuItem</source>
        <translation>服务(&amp;S)</translation>
    </message>
    <message>
        <source>undo</source>
        <translation>撤销(&amp;U)</translation>
    </message>
    <message>
        <source>redo</source>
        <translation>重做(&amp;R)</translation>
    </message>
    <message>
        <source>cut</source>
        <translation>剪切(&amp;T)</translation>
    </message>
    <message>
        <source>copy</source>
        <translation>复制(&amp;C)</translation>
    </message>
    <message>
        <source>paste</source>
        <translation>粘贴(&amp;P)</translation>
    </message>
    <message>
        <source>delete</source>
        <translation>删除(&amp;D)</translation>
    </message>
    <message>
        <source>selectAll</source>
        <translation>全选(&amp;A)</translation>
    </message>
    <message>
        <source>hideInfo</source>
        <translation>显示项目信息(&amp;I)</translation>
    </message>
    <message>
        <source>minimize</source>
        <translation>最小化(&amp;N)</translation>
    </message>
    <message>
        <source>zoom</source>
        <translation>缩放(&amp;Z)</translation>
    </message>
    <message>
        <source>bringAllToFront</source>
        <translation>前置全部窗口(&amp;B)</translation>
    </message>
    <message>
        <source>velmoraHelp</source>
        <translation>Velmora 帮助(&amp;H)</translation>
    </message>
    <message>
        <source>licenseAgreement</source>
        <translation>许可协议(&amp;L)</translation>
    </message>
    <message>
        <source>ackNowleDgments</source>
        <translation>致谢(&amp;A)</translation>
    </message>
    <message>
        <source>inPasswordMeunItem</source>
        <translation>更改密码(&amp;W)…</translation>
    </message>
    <message>
        <source>unPasswordMeunItem</source>
        <translation>设置密码(&amp;W)…</translation>
    </message>
    <message>
        <source>Kind:</source>
        <translation>种类：</translation>
    </message>
    <message>
        <source>Where:</source>
        <translation>位置：</translation>
    </message>
    <message>
        <source>Size:</source>
        <translation>大小：</translation>
    </message>
    <message>
        <source>Created:</source>
        <translation>创建时间：</translation>
    </message>
    <message>
        <source>Modified:</source>
        <translation>修改时间：</translation>
    </message>
    <message>
        <source>Visible</source>
        <translation>可见</translation>
    </message>
    <message>
        <source>Hidden</source>
        <translation>隐藏</translation>
    </message>
    <message>
        <source>Password protection</source>
        <translation>密码保护</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>添加</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>偏好设置</translation>
    </message>
</context>
<context>
    <name>RDPasswordViewController</name>
    <message>
        <source>1.title</source>
        <translation>密码</translation>
    </message>
    <message>
        <source>1.titleChange</source>
        <translation>更改密码</translation>
    </message>
    <message>
        <source>cancelTitle</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>saveTitle</source>
        <translation>保存</translation>
    </message>
    <message>
        <source>1.alertButtonTitle</source>
        <translation>好</translation>
    </message>
    <message>
        <source>appImageName</source>
        <translation>velmora</translation>
    </message>
    <message>
        <source>lockImageName</source>
        <translation>lock</translation>
    </message>
    <message>
        <source>1.labelTitle</source>
        <translation>密码：</translation>
    </message>
    <message>
        <source>1.labelTitlenew</source>
        <translation>新密码：</translation>
    </message>
    <message>
        <source>1.alertTitle</source>
        <translation>密码错误</translation>
    </message>
    <message>
        <source>1.messageContent</source>
        <translation>密码不正确，请重试。</translation>
    </message>
    <message>
        <source>Show password</source>
        <translation>显示密码</translation>
    </message>
    <message>
        <source>Enter the password that you have set.</source>
        <translation>请输入您设置的密码。</translation>
    </message>
    <message>
        <source>The new password takes the place of the old one. From now on, only this one unlocks the list.</source>
        <translation>新密码将取代旧密码。从现在起，只有新密码能解锁列表。</translation>
    </message>
    <message>
        <source>Choose a password. From now on, the list stays locked at each start until you type it exactly as you do here.</source>
        <translation>请选择一个密码。从现在起，每次启动后列表都保持锁定，直到您输入与此处完全相同的密码。</translation>
    </message>
</context>
<context>
    <name>RDTwoWindowController</name>
    <message>
        <source>Make visible all the listed items at launch</source>
        <translation>启动时显示列表中的所有项目</translation>
    </message>
    <message>
        <source>Make invisible all the listed items on quit</source>
        <translation>退出时隐藏列表中的所有项目</translation>
    </message>
    <message>
        <source>Make visible and open hidden items on double click</source>
        <translation>双击打开可见项目</translation>
    </message>
    <message>
        <source>Use Alternating Colors For the Items List Rows</source>
        <translation>列表各行使用交替颜色</translation>
    </message>
    <message>
        <source>Preferences</source>
        <translation>偏好设置</translation>
    </message>
    <message>
        <source>General</source>
        <translation>通用</translation>
    </message>
</context>
<context>
    <name>AboutPanelController</name>
    <message>
        <source>About Velmora</source>
        <translation>关于 Velmora</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>版本 %1</translation>
    </message>
    <message>
        <source>Hides files and folders from the file manager, and shows them again.</source>
        <translation>在文件管理器中隐藏文件和文件夹，并可再次显示。</translation>
    </message>
    <message>
        <source>Copyright © 2026 The Velmora developers</source>
        <translation>版权所有 © 2026 Velmora 开发者</translation>
    </message>
</context>
<context>
    <name>RDShowMessageTextWindowController</name>
    <message>
        <source>Acknowledgments</source>
        <translation>致谢</translation>
    </message>
    <message>
        <source>License Agreement</source>
        <translation>许可协议</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
</context>
<context>
    <name>DragDropTableView</name>
    <message>
        <source>Reveal in the file manager</source>
        <translation>在文件管理器中显示</translation>
    </message>
    <message>
        <source>Remove from the list</source>
        <translation>从列表中移除</translation>
    </message>
    <message>
        <source>Reveal %1</source>
        <translation>显示 %1</translation>
    </message>
    <message>
        <source>Remove %1</source>
        <translation>移除 %1</translation>
    </message>
    <message>
        <source>Items</source>
        <translation>项目</translation>
    </message>
    <message>
        <source>Reveal</source>
        <translation>显示</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>移除</translation>
    </message>
</context>
<context>
    <name>DragDropView</name>
    <message>
        <source>&amp;Reveal in File Manager</source>
        <translation>在文件管理器中显示(&amp;R)</translation>
    </message>
    <message>
        <source>Re&amp;move from List</source>
        <translation>从列表中移除(&amp;M)</translation>
    </message>
    <message>
        <source>Some of the dropped items could not be added: they are not on this computer, or their names are not valid text.</source>
        <translation>部分拖入的项目无法添加：它们不在这台电脑上，或名称不是有效的文本。</translation>
    </message>
    <message>
        <source>“%1” stays hidden: to get it back, add it again and press the switch twice.</source>
        <translation>“%1”仍处于隐藏状态：要恢复它，请重新添加并按两次开关。</translation>
    </message>
    <message>
        <source>“%1” was in the list already: it has been taken out, and the rest of the drop was not added.</source>
        <translation>“%1”已在列表中：它已被移出，其余拖入的项目没有添加。</translation>
    </message>
</context>
<context>
    <name>ItemButton</name>
    <message>
        <source>sorted in ascending order</source>
        <translation>升序排列</translation>
    </message>
    <message>
        <source>sorted in descending order</source>
        <translation>降序排列</translation>
    </message>
    <message>
        <source>Item</source>
        <translation>项目</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>状态</translation>
    </message>
</context>
<context>
    <name>ProgressDialog</name>
    <message>
        <source>Showing the listed items…</source>
        <translation>正在显示列表中的项目…</translation>
    </message>
    <message>
        <source>Hiding the listed items…</source>
        <translation>正在隐藏列表中的项目…</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>停止</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 / %2</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>Files and folders to add to the list, and to hide or show.</source>
        <translation>要添加到列表并隐藏或显示的文件和文件夹。</translation>
    </message>
    <message>
        <source>Hide files and folders from the file manager, and show them again.</source>
        <translation>在文件管理器中隐藏文件和文件夹，并可再次显示。</translation>
    </message>
    <message>
        <source>Hide the files; those that are not listed are added.</source>
        <translation>隐藏这些文件；未列出的会被添加。</translation>
    </message>
    <message>
        <source>Show the files that are listed.</source>
        <translation>显示列表中的这些文件。</translation>
    </message>
    <message>
        <source>Show every listed item.</source>
        <translation>显示列表中的所有项目。</translation>
    </message>
    <message>
        <source>Print this help.</source>
        <translation>显示此帮助。</translation>
    </message>
    <message>
        <source>Print the version.</source>
        <translation>显示版本。</translation>
    </message>
    <message>
        <source>Velmora is running already, but does not answer.</source>
        <translation>Velmora 已在运行，但没有响应。</translation>
    </message>
    <message>
        <source>Only one of --hide, --show and --show-all can be given.</source>
        <translation>--hide、--show 和 --show-all 只能使用其中之一。</translation>
    </message>
    <message>
        <source>No file was given.</source>
        <translation>未指定文件。</translation>
    </message>
    <message>
        <source>--show-all takes no files.</source>
        <translation>--show-all 不接受文件。</translation>
    </message>
</context>
<context>
    <name>Hiding</name>
    <message>
        <source>its path holds an apostrophe, which the command cannot take.</source>
        <translation>路径中含有单引号，命令无法处理。</translation>
    </message>
    <message>
        <source>its name holds a line break, which file managers cannot hide.</source>
        <translation>名称中含有换行符，文件管理器无法隐藏。</translation>
    </message>
    <message>
        <source>the command did not come to an end.</source>
        <translation>命令未能结束。</translation>
    </message>
    <message>
        <source>its folder cannot be written.</source>
        <translation>所在文件夹不可写。</translation>
    </message>
    <message>
        <source>the change was not carried out.</source>
        <translation>更改未能执行。</translation>
    </message>
    <message>
        <source>“%1” no longer exists.</source>
        <translation>“%1”已不存在。</translation>
    </message>
    <message>
        <source>“%1” is still hidden: %2</source>
        <translation>“%1”仍处于隐藏状态：%2</translation>
    </message>
    <message>
        <source>“%1” is still visible: %2</source>
        <translation>“%1”仍然可见：%2</translation>
    </message>
</context>
<context>
    <name>ListRequest</name>
    <message>
        <source>Nothing was changed: no command could be started.</source>
        <translation>未作任何更改：无法启动任何命令。</translation>
    </message>
    <message>
        <source>Not everything was done: the program was asked to end.</source>
        <translation>并非全部完成：程序被要求结束。</translation>
    </message>
    <message>
        <source>Some of the given names were left out: they are not files on this computer, or not valid text.</source>
        <translation>部分给出的名称已被忽略：它们不是这台电脑上的文件，或不是有效的文本。</translation>
    </message>
    <message>
        <source>“%1” is not in the list.</source>
        <translation>“%1”不在列表中。</translation>
    </message>
    <message>
        <source>“%1” does not exist.</source>
        <translation>“%1”不存在。</translation>
    </message>
    <message>
        <source>The list is locked: unlock it in Velmora’s window first.</source>
        <translation>列表已锁定：请先在 Velmora 窗口中解锁。</translation>
    </message>
</context>
<context>
    <name>QuietLine</name>
    <message>
        <source>Press %1 in %2 to see the change.</source>
        <translation>请在 %2 中按 %1 查看更改。</translation>
    </message>
    <message numerus="yes">
        <source>%n listed item(s) could not be made visible.</source>
        <translation>
            <numerusform>列表中有 %n 个项目未能显示。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n listed item(s) could not be hidden when Velmora last quit.</source>
        <translation>
            <numerusform>上次退出时，列表中有 %n 个项目未能隐藏。</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>RDWindowController</name>
    <message>
        <source>Quit all the same, and lose the changes?</source>
        <translation>仍要退出并丢失更改吗？</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>退出</translation>
    </message>
    <message>
        <source>Stay</source>
        <translation>留下</translation>
    </message>
</context>
<context>
    <name>UserDefaults</name>
    <message>
        <source>The settings cannot be read, so the list is closed for now: %1</source>
        <translation>无法读取设置，因此列表暂时关闭：%1</translation>
    </message>
    <message>
        <source>The settings were missing; the last good copy is used.</source>
        <translation>设置文件缺失；正在使用最近一次的完好副本。</translation>
    </message>
    <message>
        <source>The settings held no proper item list. They were kept as “%1” before the new list was saved.</source>
        <translation>设置中没有有效的项目列表。保存新列表之前，原设置已保留为“%1”。</translation>
    </message>
    <message>
        <source>The settings could not be saved: %1</source>
        <translation>无法保存设置：%1</translation>
    </message>
    <message>
        <source>The settings could not be read. They were kept as “%1”, and the last good copy is used.</source>
        <translation>无法读取设置。原文件已保留为“%1”，现使用最后一份完好的副本。</translation>
    </message>
    <message>
        <source>The settings could not be read. They were kept as “%1”, and there was no good copy to use instead.</source>
        <translation>无法读取设置。原文件已保留为“%1”，且没有可用的副本。</translation>
    </message>
    <message>
        <source>The settings file “%1” could not be used and could not be kept under another name, so changes are not saved.</source>
        <translation>设置文件“%1”无法使用，也无法另存为其他名称，因此更改不会保存。</translation>
    </message>
</context>
<context>
    <name>WrapLabel</name>
    <message>
        <source>&amp;Copy</source>
        <translation>复制(&amp;C)</translation>
    </message>
</context>
<context>
    <name>ListState</name>
    <message>
        <source>The list is locked: the password protection switch unlocks it.</source>
        <translation>列表已锁定：用密码保护开关可以解锁。</translation>
    </message>
    <message>
        <source>Drag and drop is closed until a password is entered or Velmora starts again.</source>
        <translation>在输入密码或重新启动 Velmora 之前，不能拖放。</translation>
    </message>
    <message>
        <source>Drag files and folders here from your file manager,
or press “+” below to add files.</source>
        <translation>将文件和文件夹从文件管理器拖到这里，
或按下方的“+”添加文件。</translation>
    </message>
    <message>
        <source>Press “+” below to add files. Drag and drop is closed
until a password is entered or Velmora starts again.</source>
        <translation>按下方的“+”添加文件。
在输入密码或重新启动 Velmora 之前，不能拖放。</translation>
    </message>
    <message>
        <source>The list is locked.
The password protection switch below unlocks it.</source>
        <translation>列表已锁定。
用下方的密码保护开关可以解锁。</translation>
    </message>
</context>
</TS>
