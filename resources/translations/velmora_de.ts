<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>Main</name>
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
</TS>
