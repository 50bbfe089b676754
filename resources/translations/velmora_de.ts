<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>Main</name>
    <message>
        <source>%1 at %2</source>
        <translation>%1 um %2</translation>
    </message>
    <message>
        <source>Velmora is running already, but does not answer.</source>
        <translation>Velmora läuft bereits, antwortet aber nicht.</translation>
    </message>
    <message>
        <source>uQy-DD-JDr.title</source>
        <translation>Velmora</translation>
    </message>
    <message>
        <source>textViewTitle</source>
        <translation>Hier stehen die Dateien und Ordner,
die Sie verstecken und wieder zeigen</translation>
    </message>
    <message>
        <source>lEi-kk-qD3.title</source>
        <translation>Sichtbar</translation>
    </message>
    <message>
        <source>L5h-mo-cYT.title</source>
        <translation>Versteckt</translation>
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
        <translation>&amp;Datei</translation>
    </message>
    <message>
        <source>editTitle</source>
        <translation>&amp;Bearbeiten</translation>
    </message>
    <message>
        <source>viewTitle</source>
        <translation>&amp;Ansicht</translation>
    </message>
    <message>
        <source>windowTitle</source>
        <translation>&amp;Fenster</translation>
    </message>
    <message>
        <source>helpTitle</source>
        <translation>&amp;Hilfe</translation>
    </message>
    <message>
        <source>hideMenuItem</source>
        <translation>Verstecken</translation>
    </message>
    <message>
        <source>addMenuItem</source>
        <translation>&amp;Hinzufügen …</translation>
    </message>
    <message>
        <source>openMenuItem</source>
        <translation>Ö&amp;ffnen</translation>
    </message>
    <message>
        <source>removeMenuItem</source>
        <translation>&amp;Entfernen</translation>
    </message>
    <message>
        <source>closeMenuItem</source>
        <translation>&amp;Schließen</translation>
    </message>
    <message>
        <source>revealInFinderMenuItem</source>
        <translation>Im Datei&amp;manager zeigen</translation>
    </message>
    <message>
        <source>aboutVelmoraMenuItem</source>
        <translation>Über &amp;Velmora</translation>
    </message>
    <message>
        <source>preferenceMenuItem</source>
        <translation>&amp;Einstellungen …</translation>
    </message>
    <message>
        <source>checkforUpdatesMenuItem</source>
        <translation>Nach &amp;Updates suchen …</translation>
    </message>
    <message>
        <source>hideVelmoraMenuItem</source>
        <translation>Velmora &amp;ausblenden</translation>
    </message>
    <message>
        <source>hideOthersMenuItem</source>
        <translation>A&amp;ndere ausblenden</translation>
    </message>
    <message>
        <source>showAllMenuItem</source>
        <translation>Alle e&amp;inblenden</translation>
    </message>
    <message>
        <source>quitVelmoraMenuItem</source>
        <translation>Velmora &amp;beenden</translation>
    </message>
    <message>
        <source>serviceMenuItem</source>
        <translation>&amp;Dienste</translation>
    </message>
    <message>
        <source>undo</source>
        <translation>&amp;Rückgängig</translation>
    </message>
    <message>
        <source>redo</source>
        <translation>&amp;Wiederholen</translation>
    </message>
    <message>
        <source>cut</source>
        <translation>&amp;Ausschneiden</translation>
    </message>
    <message>
        <source>copy</source>
        <translation>&amp;Kopieren</translation>
    </message>
    <message>
        <source>paste</source>
        <translation>&amp;Einfügen</translation>
    </message>
    <message>
        <source>delete</source>
        <translation>&amp;Löschen</translation>
    </message>
    <message>
        <source>selectAll</source>
        <translation>Alle&amp;s auswählen</translation>
    </message>
    <message>
        <source>hideInfo</source>
        <translation>Objekt&amp;infos anzeigen</translation>
    </message>
    <message>
        <source>minimize</source>
        <translation>&amp;Minimieren</translation>
    </message>
    <message>
        <source>zoom</source>
        <translation>&amp;Zoomen</translation>
    </message>
    <message>
        <source>bringAllToFront</source>
        <translation>&amp;Alle nach vorne bringen</translation>
    </message>
    <message>
        <source>velmoraHelp</source>
        <translation>Velmora-&amp;Hilfe</translation>
    </message>
    <message>
        <source>licenseAgreement</source>
        <translation>&amp;Lizenzvereinbarung</translation>
    </message>
    <message>
        <source>ackNowleDgments</source>
        <translation>&amp;Danksagungen</translation>
    </message>
    <message>
        <source>inPasswordMeunItem</source>
        <translation>&amp;Passwort ändern …</translation>
    </message>
    <message>
        <source>unPasswordMeunItem</source>
        <translation>&amp;Passwort festlegen …</translation>
    </message>
    <message>
        <source>Kind:</source>
        <translation>Art:</translation>
    </message>
    <message>
        <source>Where:</source>
        <translation>Ort:</translation>
    </message>
    <message>
        <source>Size:</source>
        <translation>Größe:</translation>
    </message>
    <message>
        <source>Created:</source>
        <translation>Erstellt:</translation>
    </message>
    <message>
        <source>Modified:</source>
        <translation>Geändert:</translation>
    </message>
    <message>
        <source>Visible</source>
        <translation>Sichtbar</translation>
    </message>
    <message>
        <source>Hidden</source>
        <translation>Versteckt</translation>
    </message>
    <message>
        <source>Password protection</source>
        <translation>Passwortschutz</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Hinzufügen</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Einstellungen</translation>
    </message>
</context>
<context>
    <name>RDPasswordViewController</name>
    <message>
        <source>1.title</source>
        <translation>Passwort</translation>
    </message>
    <message>
        <source>1.titleChange</source>
        <translation>Passwort ändern</translation>
    </message>
    <message>
        <source>cancelTitle</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>saveTitle</source>
        <translation>Sichern</translation>
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
        <translation>Passwort:</translation>
    </message>
    <message>
        <source>1.labelTitlenew</source>
        <translation>Neues Passwort:</translation>
    </message>
    <message>
        <source>1.alertTitle</source>
        <translation>Falsches Passwort</translation>
    </message>
    <message>
        <source>1.messageContent</source>
        <translation>Das Passwort stimmt nicht. Bitte versuchen Sie es noch einmal.</translation>
    </message>
    <message>
        <source>Show password</source>
        <translation>Passwort zeigen</translation>
    </message>
    <message>
        <source>Enter the password that you have set.</source>
        <translation>Geben Sie das Passwort ein, das Sie festgelegt haben.</translation>
    </message>
    <message>
        <source>The new password takes the place of the old one. From now on, only this one unlocks the list.</source>
        <translation>Das neue Passwort tritt an die Stelle des alten. Von nun an entsperrt nur dieses die Liste.</translation>
    </message>
    <message>
        <source>Choose a password. From now on, the list stays locked at each start until you type it exactly as you do here.</source>
        <translation>Wählen Sie ein Passwort. Von nun an bleibt die Liste nach jedem Start gesperrt, bis Sie es genau so eingeben wie hier.</translation>
    </message>
</context>
<context>
    <name>RDTwoWindowController</name>
    <message>
        <source>Make visible all the listed items at launch</source>
        <translation>Beim Start alle Objekte der Liste sichtbar machen</translation>
    </message>
    <message>
        <source>Make invisible all the listed items on quit</source>
        <translation>Beim Beenden alle Objekte der Liste verstecken</translation>
    </message>
    <message>
        <source>Make visible and open hidden items on double click</source>
        <translation>Sichtbare Objekte per Doppelklick öffnen</translation>
    </message>
    <message>
        <source>Use Alternating Colors For the Items List Rows</source>
        <translation>Abwechselnde Farben für die Zeilen der Liste verwenden</translation>
    </message>
    <message>
        <source>Preferences</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Allgemein</translation>
    </message>
</context>
<context>
    <name>AboutPanelController</name>
    <message>
        <source>About Velmora</source>
        <translation>Über Velmora</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Version %1</translation>
    </message>
    <message>
        <source>Hides files and folders from the file manager, and shows them again.</source>
        <translation>Versteckt Dateien und Ordner vor dem Dateimanager und zeigt sie wieder.</translation>
    </message>
    <message>
        <source>Copyright © 2026 The Velmora developers</source>
        <translation>Copyright © 2026 Die Velmora-Entwickler</translation>
    </message>
</context>
<context>
    <name>RDShowMessageTextWindowController</name>
    <message>
        <source>Acknowledgments</source>
        <translation>Danksagungen</translation>
    </message>
    <message>
        <source>License Agreement</source>
        <translation>Lizenzvereinbarung</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
</context>
<context>
    <name>DragDropTableView</name>
    <message>
        <source>Reveal in the file manager</source>
        <translation>Im Dateimanager zeigen</translation>
    </message>
    <message>
        <source>Remove from the list</source>
        <translation>Aus der Liste entfernen</translation>
    </message>
    <message>
        <source>Reveal %1</source>
        <translation>%1 zeigen</translation>
    </message>
    <message>
        <source>Remove %1</source>
        <translation>%1 entfernen</translation>
    </message>
    <message>
        <source>Items</source>
        <translation>Objekte</translation>
    </message>
    <message>
        <source>Reveal</source>
        <translation>Zeigen</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Entfernen</translation>
    </message>
</context>
<context>
    <name>DragDropView</name>
    <message>
        <source>&amp;Reveal in File Manager</source>
        <translation>Im Dateimanager &amp;zeigen</translation>
    </message>
    <message>
        <source>Re&amp;move from List</source>
        <translation>Aus der Liste &amp;entfernen</translation>
    </message>
    <message>
        <source>Some of the dropped items could not be added: they are not on this computer, or their names are not valid text.</source>
        <translation>Einige der abgelegten Objekte konnten nicht hinzugefügt werden: Sie liegen nicht auf diesem Computer, oder ihr Name ist kein gültiger Text.</translation>
    </message>
    <message>
        <source>“%1” stays hidden: to get it back, add it again and press the switch twice.</source>
        <translation>„%1“ bleibt versteckt: Um es zurückzuholen, fügen Sie es wieder hinzu und drücken Sie den Schalter zweimal.</translation>
    </message>
    <message>
        <source>“%1” was in the list already: it has been taken out, and the rest of the drop was not added.</source>
        <translation>„%1“ stand schon in der Liste: Es wurde herausgenommen, und der Rest wurde nicht hinzugefügt.</translation>
    </message>
</context>
<context>
    <name>ItemButton</name>
    <message>
        <source>sorted in ascending order</source>
        <translation>aufsteigend sortiert</translation>
    </message>
    <message>
        <source>sorted in descending order</source>
        <translation>absteigend sortiert</translation>
    </message>
    <message>
        <source>Item</source>
        <translation>Objekt</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Status</translation>
    </message>
</context>
<context>
    <name>ProgressDialog</name>
    <message>
        <source>Showing the listed items…</source>
        <translation>Die Objekte der Liste werden sichtbar gemacht …</translation>
    </message>
    <message>
        <source>Hiding the listed items…</source>
        <translation>Die Objekte der Liste werden versteckt …</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Anhalten</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 von %2</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>Files and folders to add to the list, and to hide or show.</source>
        <translation>Dateien und Ordner, die in die Liste aufgenommen und versteckt oder gezeigt werden.</translation>
    </message>
    <message>
        <source>Hide files and folders from the file manager, and show them again.</source>
        <translation>Dateien und Ordner vor dem Dateimanager verstecken und wieder zeigen.</translation>
    </message>
    <message>
        <source>Hide the files; those that are not listed are added.</source>
        <translation>Die Dateien verstecken; solche, die nicht in der Liste stehen, werden hinzugefügt.</translation>
    </message>
    <message>
        <source>Show the files that are listed.</source>
        <translation>Die Dateien zeigen, die in der Liste stehen.</translation>
    </message>
    <message>
        <source>Show every listed item.</source>
        <translation>Alle Objekte der Liste zeigen.</translation>
    </message>
    <message>
        <source>Print this help.</source>
        <translation>Diese Hilfe ausgeben.</translation>
    </message>
    <message>
        <source>Print the version.</source>
        <translation>Die Version ausgeben.</translation>
    </message>
    <message>
        <source>Velmora is running already, but does not answer.</source>
        <translation>Velmora läuft bereits, antwortet aber nicht.</translation>
    </message>
    <message>
        <source>Only one of --hide, --show and --show-all can be given.</source>
        <translation>Es kann nur eine der Optionen --hide, --show und --show-all angegeben werden.</translation>
    </message>
    <message>
        <source>No file was given.</source>
        <translation>Es wurde keine Datei angegeben.</translation>
    </message>
    <message>
        <source>--show-all takes no files.</source>
        <translation>Mit --show-all können keine Dateien angegeben werden.</translation>
    </message>
</context>
<context>
    <name>Hiding</name>
    <message>
        <source>its path holds an apostrophe, which the command cannot take.</source>
        <translation>Der Pfad enthält einen Apostroph, den der Befehl nicht annimmt.</translation>
    </message>
    <message>
        <source>its name holds a line break, which file managers cannot hide.</source>
        <translation>Der Name enthält einen Zeilenumbruch, den Dateimanager nicht verstecken können.</translation>
    </message>
    <message>
        <source>the command did not come to an end.</source>
        <translation>Der Befehl wurde nicht fertig.</translation>
    </message>
    <message>
        <source>its folder cannot be written.</source>
        <translation>In den Ordner kann nicht geschrieben werden.</translation>
    </message>
    <message>
        <source>the change was not carried out.</source>
        <translation>Die Änderung wurde nicht ausgeführt.</translation>
    </message>
    <message>
        <source>“%1” no longer exists.</source>
        <translation>„%1“ ist nicht mehr vorhanden.</translation>
    </message>
    <message>
        <source>“%1” is still hidden: %2</source>
        <translation>„%1“ ist noch versteckt: %2</translation>
    </message>
    <message>
        <source>“%1” is still visible: %2</source>
        <translation>„%1“ ist noch sichtbar: %2</translation>
    </message>
</context>
<context>
    <name>ListRequest</name>
    <message>
        <source>Nothing was changed: no command could be started.</source>
        <translation>Nichts wurde geändert: Es konnte kein Befehl gestartet werden.</translation>
    </message>
    <message>
        <source>Not everything was done: the program was asked to end.</source>
        <translation>Nicht alles wurde erledigt: Das Programm sollte sich beenden.</translation>
    </message>
    <message>
        <source>Some of the given names were left out: they are not files on this computer, or not valid text.</source>
        <translation>Einige der angegebenen Namen wurden ausgelassen: Sie bezeichnen keine Dateien auf diesem Computer oder sind kein gültiger Text.</translation>
    </message>
    <message>
        <source>“%1” is not in the list.</source>
        <translation>„%1“ steht nicht in der Liste.</translation>
    </message>
    <message>
        <source>“%1” does not exist.</source>
        <translation>„%1“ gibt es nicht.</translation>
    </message>
    <message>
        <source>The list is locked: unlock it in Velmora’s window first.</source>
        <translation>Die Liste ist gesperrt: Entsperren Sie sie zuerst im Fenster von Velmora.</translation>
    </message>
</context>
<context>
    <name>QuietLine</name>
    <message>
        <source>Press %1 in %2 to see the change.</source>
        <translation>Drücken Sie %1 in %2, um die Änderung zu sehen.</translation>
    </message>
    <message numerus="yes">
        <source>%n listed item(s) could not be made visible.</source>
        <translation>
            <numerusform>%n Objekt der Liste konnte nicht sichtbar gemacht werden.</numerusform>
            <numerusform>%n Objekte der Liste konnten nicht sichtbar gemacht werden.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n listed item(s) could not be hidden when Velmora last quit.</source>
        <translation>
            <numerusform>%n Objekt der Liste konnte beim letzten Beenden nicht versteckt werden.</numerusform>
            <numerusform>%n Objekte der Liste konnten beim letzten Beenden nicht versteckt werden.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>RDWindowController</name>
    <message>
        <source>Quit all the same, and lose the changes?</source>
        <translation>Trotzdem beenden und die Änderungen verlieren?</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Beenden</translation>
    </message>
    <message>
        <source>Stay</source>
        <translation>Bleiben</translation>
    </message>
</context>
<context>
    <name>UserDefaults</name>
    <message>
        <source>The settings cannot be read, so the list is closed for now: %1</source>
        <translation>Die Einstellungen können nicht gelesen werden; die Liste ist deshalb vorerst geschlossen: %1</translation>
    </message>
    <message>
        <source>The settings were missing; the last good copy is used.</source>
        <translation>Die Einstellungen fehlten; die letzte gute Kopie wird verwendet.</translation>
    </message>
    <message>
        <source>The settings held no proper item list. They were kept as “%1” before the new list was saved.</source>
        <translation>Die Einstellungen enthielten keine gültige Liste. Sie wurden als „%1“ aufbewahrt, bevor die neue Liste gespeichert wurde.</translation>
    </message>
    <message>
        <source>The settings could not be saved: %1</source>
        <translation>Die Einstellungen konnten nicht gespeichert werden: %1</translation>
    </message>
    <message>
        <source>The settings could not be read. They were kept as “%1”, and the last good copy is used.</source>
        <translation>Die Einstellungen konnten nicht gelesen werden. Sie wurden als „%1“ aufbewahrt; die letzte gute Kopie wird verwendet.</translation>
    </message>
    <message>
        <source>The settings could not be read. They were kept as “%1”, and there was no good copy to use instead.</source>
        <translation>Die Einstellungen konnten nicht gelesen werden. Sie wurden als „%1“ aufbewahrt; eine gute Kopie war nicht vorhanden.</translation>
    </message>
    <message>
        <source>The settings file “%1” could not be used and could not be kept under another name, so changes are not saved.</source>
        <translation>Die Einstellungsdatei „%1“ war nicht brauchbar und konnte nicht umbenannt werden; Änderungen werden nicht gespeichert.</translation>
    </message>
</context>
<context>
    <name>WrapLabel</name>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Kopieren</translation>
    </message>
</context>
<context>
    <name>ListState</name>
    <message>
        <source>The list is locked: the password protection switch unlocks it.</source>
        <translation>Die Liste ist gesperrt: Der Schalter „Passwortschutz“ entsperrt sie.</translation>
    </message>
    <message>
        <source>Drag and drop is closed until a password is entered or Velmora starts again.</source>
        <translation>Die Liste nimmt nichts Hereingezogenes an, bis ein Passwort eingegeben oder Velmora neu gestartet wird.</translation>
    </message>
    <message>
        <source>Drag files and folders here from your file manager,
or press “+” below to add files.</source>
        <translation>Ziehen Sie Dateien und Ordner aus dem Dateimanager hierher,
oder fügen Sie mit „+“ unten Dateien hinzu.</translation>
    </message>
    <message>
        <source>Press “+” below to add files. Drag and drop is closed
until a password is entered or Velmora starts again.</source>
        <translation>Mit „+“ unten fügen Sie Dateien hinzu. Hereinziehen geht erst wieder,
wenn ein Passwort eingegeben oder Velmora neu gestartet wird.</translation>
    </message>
    <message>
        <source>The list is locked.
The password protection switch below unlocks it.</source>
        <translation>Die Liste ist gesperrt.
Der Schalter „Passwortschutz“ unten entsperrt sie.</translation>
    </message>
</context>
</TS>
