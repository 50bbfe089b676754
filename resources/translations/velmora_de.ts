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
        <translation>Dateien und Ordner
aus dem Dateimanager hierher ziehen</translation>
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
        <translation>Datei</translation>
    </message>
    <message>
        <source>editTitle</source>
        <translation>Bearbeiten</translation>
    </message>
    <message>
        <source>viewTitle</source>
        <translation>Ansicht</translation>
    </message>
    <message>
        <source>windowTitle</source>
        <translation>Fenster</translation>
    </message>
    <message>
        <source>helpTitle</source>
        <translation>Hilfe</translation>
    </message>
    <message>
        <source>hideMenuItem</source>
        <translation>Verstecken</translation>
    </message>
    <message>
        <source>addMenuItem</source>
        <translation>Hinzufügen …</translation>
    </message>
    <message>
        <source>openMenuItem</source>
        <translation>Öffnen</translation>
    </message>
    <message>
        <source>removeMenuItem</source>
        <translation>Entfernen</translation>
    </message>
    <message>
        <source>closeMenuItem</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>revealInFinderMenuItem</source>
        <translation>Im Dateimanager zeigen</translation>
    </message>
    <message>
        <source>aboutVelmoraMenuItem</source>
        <translation>Über Velmora</translation>
    </message>
    <message>
        <source>preferenceMenuItem</source>
        <translation>Einstellungen …</translation>
    </message>
    <message>
        <source>checkforUpdatesMenuItem</source>
        <translation>Nach Updates suchen …</translation>
    </message>
    <message>
        <source>hideVelmoraMenuItem</source>
        <translation>Velmora ausblenden</translation>
    </message>
    <message>
        <source>hideOthersMenuItem</source>
        <translation>Andere ausblenden</translation>
    </message>
    <message>
        <source>showAllMenuItem</source>
        <translation>Alle einblenden</translation>
    </message>
    <message>
        <source>quitVelmoraMenuItem</source>
        <translation>Velmora beenden</translation>
    </message>
    <message>
        <source>serviceMenuItem</source>
        <translation>Dienste</translation>
    </message>
    <message>
        <source>undo</source>
        <translation>Rückgängig</translation>
    </message>
    <message>
        <source>redo</source>
        <translation>Wiederholen</translation>
    </message>
    <message>
        <source>cut</source>
        <translation>Ausschneiden</translation>
    </message>
    <message>
        <source>copy</source>
        <translation>Kopieren</translation>
    </message>
    <message>
        <source>paste</source>
        <translation>Einfügen</translation>
    </message>
    <message>
        <source>delete</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>selectAll</source>
        <translation>Alles auswählen</translation>
    </message>
    <message>
        <source>hideInfo</source>
        <translation>Objektinfos anzeigen</translation>
    </message>
    <message>
        <source>minimize</source>
        <translation>Minimieren</translation>
    </message>
    <message>
        <source>zoom</source>
        <translation>Zoomen</translation>
    </message>
    <message>
        <source>bringAllToFront</source>
        <translation>Alle nach vorne bringen</translation>
    </message>
    <message>
        <source>velmoraHelp</source>
        <translation>Velmora-Hilfe</translation>
    </message>
    <message>
        <source>licenseAgreement</source>
        <translation>Lizenzvereinbarung</translation>
    </message>
    <message>
        <source>ackNowleDgments</source>
        <translation>Danksagungen</translation>
    </message>
    <message>
        <source>inPasswordMeunItem</source>
        <translation>Passwort ändern …</translation>
    </message>
    <message>
        <source>unPasswordMeunItem</source>
        <translation>Passwort festlegen …</translation>
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
        <translation>Versteckte Objekte per Doppelklick sichtbar machen und öffnen</translation>
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
        <translation>In der Dateiverwaltung zeigen</translation>
    </message>
    <message>
        <source>Remove from the list</source>
        <translation>Aus der Liste entfernen</translation>
    </message>
</context>
<context>
    <name>DragDropView</name>
    <message>
        <source>Reveal in File Manager</source>
        <translation>In der Dateiverwaltung zeigen</translation>
    </message>
    <message>
        <source>Remove from List</source>
        <translation>Aus der Liste entfernen</translation>
    </message>
    <message>
        <source>Some of the dropped items could not be added: their names or places are not files on this computer that can be written as text.</source>
        <translation>Einige der abgelegten Objekte konnten nicht hinzugefügt werden: Sie liegen nicht auf diesem Computer, oder ihr Name ist kein gültiger Text.</translation>
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
</context>
<context>
    <name>QuietLine</name>
    <message>
        <source>Press %1 in %2 to see the change.</source>
        <translation>Drücken Sie %1 in %2, um die Änderung zu sehen.</translation>
    </message>
    <message>
        <source>its path holds an apostrophe, which the command cannot take.</source>
        <translation>Der Pfad enthält einen Apostroph, den der Befehl nicht annimmt.</translation>
    </message>
    <message>
        <source>its name holds a line break, which file managers cannot hide.</source>
        <translation>Der Name enthält einen Zeilenumbruch, den Dateiverwaltungen nicht verstecken können.</translation>
    </message>
    <message>
        <source>the command did not come to an end.</source>
        <translation>Der Befehl kam zu keinem Ende.</translation>
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
        <source>Copy</source>
        <translation>Kopieren</translation>
    </message>
</context>
</TS>
