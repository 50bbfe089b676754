<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name>Main</name>
    <message>
        <source>uQy-DD-JDr.title</source>
        <translation>Velmora</translation>
    </message>
    <message>
        <source>textViewTitle</source>
        <translation>The files and folders that you hide and show
are listed here</translation>
    </message>
    <message>
        <source>lEi-kk-qD3.title</source>
        <translation>Visible</translation>
    </message>
    <message>
        <source>L5h-mo-cYT.title</source>
        <translation>Hidden</translation>
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
        <translation>&amp;File</translation>
    </message>
    <message>
        <source>editTitle</source>
        <translation>&amp;Edit</translation>
    </message>
    <message>
        <source>viewTitle</source>
        <translation>&amp;View</translation>
    </message>
    <message>
        <source>windowTitle</source>
        <translation>&amp;Window</translation>
    </message>
    <message>
        <source>helpTitle</source>
        <translation>&amp;Help</translation>
    </message>
    <message>
        <source>hideMenuItem</source>
        <translation>Hide</translation>
    </message>
    <message>
        <source>addMenuItem</source>
        <translation>&amp;Add…</translation>
    </message>
    <message>
        <source>openMenuItem</source>
        <translation>&amp;Open</translation>
    </message>
    <message>
        <source>removeMenuItem</source>
        <translation>Re&amp;move</translation>
    </message>
    <message>
        <source>closeMenuItem</source>
        <translation>&amp;Close</translation>
    </message>
    <message>
        <source>revealInFinderMenuItem</source>
        <translation>&amp;Reveal in File Manager</translation>
    </message>
    <message>
        <source>aboutVelmoraMenuItem</source>
        <translation>&amp;About Velmora</translation>
    </message>
    <message>
        <source>preferenceMenuItem</source>
        <translation>&amp;Preferences…</translation>
    </message>
    <message>
        <source>checkforUpdatesMenuItem</source>
        <translation>Check for &amp;Updates…</translation>
    </message>
    <message>
        <source>hideVelmoraMenuItem</source>
        <translation>&amp;Hide Velmora</translation>
    </message>
    <message>
        <source>hideOthersMenuItem</source>
        <translation>Hide &amp;Others</translation>
    </message>
    <message>
        <source>showAllMenuItem</source>
        <translation>Show A&amp;ll</translation>
    </message>
    <message>
        <source>quitVelmoraMenuItem</source>
        <translation>&amp;Quit Velmora</translation>
    </message>
    <message>
        <source>serviceMenuItem</source>
        <translation>&amp;Services</translation>
    </message>
    <message>
        <source>undo</source>
        <translation>&amp;Undo</translation>
    </message>
    <message>
        <source>redo</source>
        <translation>&amp;Redo</translation>
    </message>
    <message>
        <source>cut</source>
        <translation>Cu&amp;t</translation>
    </message>
    <message>
        <source>copy</source>
        <translation>&amp;Copy</translation>
    </message>
    <message>
        <source>paste</source>
        <translation>&amp;Paste</translation>
    </message>
    <message>
        <source>delete</source>
        <translation>&amp;Delete</translation>
    </message>
    <message>
        <source>selectAll</source>
        <translation>Select &amp;All</translation>
    </message>
    <message>
        <source>hideInfo</source>
        <translation>Show Item &amp;Info</translation>
    </message>
    <message>
        <source>minimize</source>
        <translation>Mi&amp;nimize</translation>
    </message>
    <message>
        <source>zoom</source>
        <translation>&amp;Zoom</translation>
    </message>
    <message>
        <source>bringAllToFront</source>
        <translation>&amp;Bring All to Front</translation>
    </message>
    <message>
        <source>velmoraHelp</source>
        <translation>Velmora &amp;Help</translation>
    </message>
    <message>
        <source>licenseAgreement</source>
        <translation>&amp;License Agreement</translation>
    </message>
    <message>
        <source>ackNowleDgments</source>
        <translation>&amp;Acknowledgments</translation>
    </message>
    <message>
        <source>inPasswordMeunItem</source>
        <translation>Change Pass&amp;word…</translation>
    </message>
    <message>
        <source>unPasswordMeunItem</source>
        <translation>Set Pass&amp;word…</translation>
    </message>
    <message>
        <source>Kind:</source>
        <translation>Kind:</translation>
    </message>
    <message>
        <source>Where:</source>
        <translation>Where:</translation>
    </message>
    <message>
        <source>Size:</source>
        <translation>Size:</translation>
    </message>
    <message>
        <source>Created:</source>
        <translation>Created:</translation>
    </message>
    <message>
        <source>Modified:</source>
        <translation>Modified:</translation>
    </message>
    <message>
        <source>Visible</source>
        <translation>Visible</translation>
    </message>
    <message>
        <source>Hidden</source>
        <translation>Hidden</translation>
    </message>
    <message>
        <source>Password protection</source>
        <translation>Password protection</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Add</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Settings</translation>
    </message>
</context>
<context>
    <name>RDPasswordViewController</name>
    <message>
        <source>1.title</source>
        <translation>Password</translation>
    </message>
    <message>
        <source>1.titleChange</source>
        <translation>Change Password</translation>
    </message>
    <message>
        <source>cancelTitle</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>saveTitle</source>
        <translation>Save</translation>
    </message>
    <message>
        <source>1.alertButtonTitle</source>
        <translation>OK</translation>
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
        <translation>Password:</translation>
    </message>
    <message>
        <source>1.labelTitlenew</source>
        <translation>New password:</translation>
    </message>
    <message>
        <source>1.alertTitle</source>
        <translation>Wrong password</translation>
    </message>
    <message>
        <source>1.messageContent</source>
        <translation>The password is not correct. Please try again.</translation>
    </message>
</context>
<context>
    <name>RDTwoWindowController</name>
    <message>
        <source>Make visible all the listed items at launch</source>
        <translation>Make visible all the listed items at launch</translation>
    </message>
    <message>
        <source>Make invisible all the listed items on quit</source>
        <translation>Make invisible all the listed items on quit</translation>
    </message>
    <message>
        <source>Make visible and open hidden items on double click</source>
        <translation>Open visible items on double click</translation>
    </message>
    <message>
        <source>Use Alternating Colors For the Items List Rows</source>
        <translation>Use Alternating Colors For the Items List Rows</translation>
    </message>
    <message>
        <source>Preferences</source>
        <translation>Preferences</translation>
    </message>
    <message>
        <source>General</source>
        <translation>General</translation>
    </message>
</context>
<context>
    <name>AboutPanelController</name>
    <message>
        <source>About Velmora</source>
        <translation>About Velmora</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Version %1</translation>
    </message>
    <message>
        <source>Hides files and folders from the file manager, and shows them again.</source>
        <translation>Hides files and folders from the file manager, and shows them again.</translation>
    </message>
    <message>
        <source>Copyright © 2026 The Velmora developers</source>
        <translation>Copyright © 2026 The Velmora developers</translation>
    </message>
</context>
<context>
    <name>RDShowMessageTextWindowController</name>
    <message>
        <source>Acknowledgments</source>
        <translation>Acknowledgments</translation>
    </message>
    <message>
        <source>License Agreement</source>
        <translation>License Agreement</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Close</translation>
    </message>
</context>
<context>
    <name>QuietLine</name>
    <message numerus="yes">
        <source>%n listed item(s) could not be made visible.</source>
        <translation>
            <numerusform>%n listed item could not be made visible.</numerusform>
            <numerusform>%n listed items could not be made visible.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n listed item(s) could not be hidden when Velmora last quit.</source>
        <translation>
            <numerusform>%n listed item could not be hidden when Velmora last quit.</numerusform>
            <numerusform>%n listed items could not be hidden when Velmora last quit.</numerusform>
        </translation>
    </message>
</context>
</TS>
