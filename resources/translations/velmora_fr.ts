<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>Main</name>
    <message>
        <source>%1 at %2</source>
        <translation>%1 à %2</translation>
    </message>
    <message>
        <source>Velmora is running already, but does not answer.</source>
        <translation>Velmora est déjà lancé, mais ne répond pas.</translation>
    </message>
    <message>
        <source>uQy-DD-JDr.title</source>
        <translation>Velmora</translation>
    </message>
    <message>
        <source>textViewTitle</source>
        <translation>Les fichiers et dossiers que vous masquez
et affichez figurent ici</translation>
    </message>
    <message>
        <source>lEi-kk-qD3.title</source>
        <translation>Visible</translation>
    </message>
    <message>
        <source>L5h-mo-cYT.title</source>
        <translation>Masqué</translation>
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
        <translation>&amp;Fichier</translation>
    </message>
    <message>
        <source>editTitle</source>
        <translation>É&amp;dition</translation>
    </message>
    <message>
        <source>viewTitle</source>
        <translation>&amp;Affichage</translation>
    </message>
    <message>
        <source>windowTitle</source>
        <translation>Fe&amp;nêtre</translation>
    </message>
    <message>
        <source>helpTitle</source>
        <translation>A&amp;ide</translation>
    </message>
    <message>
        <source>hideMenuItem</source>
        <translation>Masquer</translation>
    </message>
    <message>
        <source>addMenuItem</source>
        <translation>&amp;Ajouter…</translation>
    </message>
    <message>
        <source>openMenuItem</source>
        <translation>&amp;Ouvrir</translation>
    </message>
    <message>
        <source>removeMenuItem</source>
        <translation>&amp;Retirer</translation>
    </message>
    <message>
        <source>closeMenuItem</source>
        <translation>&amp;Fermer</translation>
    </message>
    <message>
        <source>revealInFinderMenuItem</source>
        <translation>Afficher dans le &amp;gestionnaire de fichiers</translation>
    </message>
    <message>
        <source>aboutVelmoraMenuItem</source>
        <translation>À &amp;propos de Velmora</translation>
    </message>
    <message>
        <source>preferenceMenuItem</source>
        <translation>P&amp;références…</translation>
    </message>
    <message>
        <source>checkforUpdatesMenuItem</source>
        <translation>Rechercher les mises à &amp;jour…</translation>
    </message>
    <message>
        <source>hideVelmoraMenuItem</source>
        <translation>Masquer &amp;Velmora</translation>
    </message>
    <message>
        <source>hideOthersMenuItem</source>
        <translation>Masquer les &amp;autres</translation>
    </message>
    <message>
        <source>showAllMenuItem</source>
        <translation>&amp;Tout afficher</translation>
    </message>
    <message>
        <source>quitVelmoraMenuItem</source>
        <translation>&amp;Quitter Velmora</translation>
    </message>
    <message>
        <source>serviceMenuItem</source>
        <translation>&amp;Services</translation>
    </message>
    <message>
        <source>undo</source>
        <translation>&amp;Annuler</translation>
    </message>
    <message>
        <source>redo</source>
        <translation>&amp;Rétablir</translation>
    </message>
    <message>
        <source>cut</source>
        <translation>&amp;Couper</translation>
    </message>
    <message>
        <source>copy</source>
        <translation>Co&amp;pier</translation>
    </message>
    <message>
        <source>paste</source>
        <translation>C&amp;oller</translation>
    </message>
    <message>
        <source>delete</source>
        <translation>&amp;Supprimer</translation>
    </message>
    <message>
        <source>selectAll</source>
        <translation>&amp;Tout sélectionner</translation>
    </message>
    <message>
        <source>hideInfo</source>
        <translation>Afficher les &amp;infos de l’élément</translation>
    </message>
    <message>
        <source>minimize</source>
        <translation>&amp;Réduire</translation>
    </message>
    <message>
        <source>zoom</source>
        <translation>&amp;Agrandir</translation>
    </message>
    <message>
        <source>bringAllToFront</source>
        <translation>&amp;Tout ramener au premier plan</translation>
    </message>
    <message>
        <source>velmoraHelp</source>
        <translation>&amp;Aide Velmora</translation>
    </message>
    <message>
        <source>licenseAgreement</source>
        <translation>&amp;Contrat de licence</translation>
    </message>
    <message>
        <source>ackNowleDgments</source>
        <translation>Re&amp;merciements</translation>
    </message>
    <message>
        <source>inPasswordMeunItem</source>
        <translation>Changer le &amp;mot de passe…</translation>
    </message>
    <message>
        <source>unPasswordMeunItem</source>
        <translation>Définir un &amp;mot de passe…</translation>
    </message>
    <message>
        <source>Kind:</source>
        <translation>Type :</translation>
    </message>
    <message>
        <source>Where:</source>
        <translation>Emplacement :</translation>
    </message>
    <message>
        <source>Size:</source>
        <translation>Taille :</translation>
    </message>
    <message>
        <source>Created:</source>
        <translation>Création :</translation>
    </message>
    <message>
        <source>Modified:</source>
        <translation>Modification :</translation>
    </message>
    <message>
        <source>Visible</source>
        <translation>Visible</translation>
    </message>
    <message>
        <source>Hidden</source>
        <translation>Masqué</translation>
    </message>
    <message>
        <source>Password protection</source>
        <translation>Protection par mot de passe</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Ajouter</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Préférences</translation>
    </message>
</context>
<context>
    <name>RDPasswordViewController</name>
    <message>
        <source>1.title</source>
        <translation>Mot de passe</translation>
    </message>
    <message>
        <source>1.titleChange</source>
        <translation>Changer le mot de passe</translation>
    </message>
    <message>
        <source>cancelTitle</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>saveTitle</source>
        <translation>Enregistrer</translation>
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
        <translation>Mot de passe :</translation>
    </message>
    <message>
        <source>1.labelTitlenew</source>
        <translation>Nouveau mot de passe :</translation>
    </message>
    <message>
        <source>1.alertTitle</source>
        <translation>Mot de passe incorrect</translation>
    </message>
    <message>
        <source>1.messageContent</source>
        <translation>Le mot de passe n’est pas correct. Veuillez réessayer.</translation>
    </message>
    <message>
        <source>Show password</source>
        <translation>Afficher le mot de passe</translation>
    </message>
    <message>
        <source>Enter the password that you have set.</source>
        <translation>Saisissez le mot de passe que vous avez défini.</translation>
    </message>
    <message>
        <source>The new password takes the place of the old one. From now on, only this one unlocks the list.</source>
        <translation>Le nouveau mot de passe remplace l’ancien. Désormais, lui seul déverrouille la liste.</translation>
    </message>
    <message>
        <source>Choose a password. From now on, the list stays locked at each start until you type it exactly as you do here.</source>
        <translation>Choisissez un mot de passe. Désormais, la liste reste verrouillée à chaque démarrage jusqu’à ce que vous le saisissiez exactement comme ici.</translation>
    </message>
</context>
<context>
    <name>RDTwoWindowController</name>
    <message>
        <source>Make visible all the listed items at launch</source>
        <translation>Rendre visibles tous les éléments de la liste au lancement</translation>
    </message>
    <message>
        <source>Make invisible all the listed items on quit</source>
        <translation>Masquer tous les éléments de la liste à la fermeture</translation>
    </message>
    <message>
        <source>Make visible and open hidden items on double click</source>
        <translation>Ouvrir les éléments visibles par double-clic</translation>
    </message>
    <message>
        <source>Use Alternating Colors For the Items List Rows</source>
        <translation>Alterner les couleurs des lignes de la liste</translation>
    </message>
    <message>
        <source>Preferences</source>
        <translation>Préférences</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Général</translation>
    </message>
</context>
<context>
    <name>AboutPanelController</name>
    <message>
        <source>About Velmora</source>
        <translation>À propos de Velmora</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Version %1</translation>
    </message>
    <message>
        <source>Hides files and folders from the file manager, and shows them again.</source>
        <translation>Masque des fichiers et des dossiers dans le gestionnaire de fichiers, et les montre à nouveau.</translation>
    </message>
    <message>
        <source>Copyright © 2026 The Velmora developers</source>
        <translation>Copyright © 2026 Les développeurs de Velmora</translation>
    </message>
</context>
<context>
    <name>RDShowMessageTextWindowController</name>
    <message>
        <source>Acknowledgments</source>
        <translation>Remerciements</translation>
    </message>
    <message>
        <source>License Agreement</source>
        <translation>Contrat de licence</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
</context>
<context>
    <name>DragDropTableView</name>
    <message>
        <source>Reveal in the file manager</source>
        <translation>Afficher dans le gestionnaire de fichiers</translation>
    </message>
    <message>
        <source>Remove from the list</source>
        <translation>Retirer de la liste</translation>
    </message>
    <message>
        <source>Reveal %1</source>
        <translation>Afficher %1</translation>
    </message>
    <message>
        <source>Remove %1</source>
        <translation>Retirer %1</translation>
    </message>
    <message>
        <source>Items</source>
        <translation>Éléments</translation>
    </message>
    <message>
        <source>Reveal</source>
        <translation>Afficher</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Retirer</translation>
    </message>
</context>
<context>
    <name>DragDropView</name>
    <message>
        <source>&amp;Reveal in File Manager</source>
        <translation>Afficher dans le &amp;gestionnaire de fichiers</translation>
    </message>
    <message>
        <source>Re&amp;move from List</source>
        <translation>&amp;Retirer de la liste</translation>
    </message>
    <message>
        <source>Some of the dropped items could not be added: they are not on this computer, or their names are not valid text.</source>
        <translation>Certains des éléments déposés n’ont pas pu être ajoutés : ils ne se trouvent pas sur cet ordinateur, ou leur nom n’est pas un texte valide.</translation>
    </message>
    <message>
        <source>“%1” stays hidden: to get it back, add it again and press the switch twice.</source>
        <translation>« %1 » reste masqué : pour le retrouver, ajoutez-le de nouveau et appuyez deux fois sur l’interrupteur.</translation>
    </message>
    <message>
        <source>“%1” was in the list already: it has been taken out, and the rest of the drop was not added.</source>
        <translation>« %1 » figurait déjà dans la liste : il en a été retiré, et le reste n’a pas été ajouté.</translation>
    </message>
</context>
<context>
    <name>ItemButton</name>
    <message>
        <source>sorted in ascending order</source>
        <translation>trié par ordre croissant</translation>
    </message>
    <message>
        <source>sorted in descending order</source>
        <translation>trié par ordre décroissant</translation>
    </message>
    <message>
        <source>Item</source>
        <translation>Élément</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>État</translation>
    </message>
</context>
<context>
    <name>ProgressDialog</name>
    <message>
        <source>Showing the listed items…</source>
        <translation>Affichage des éléments de la liste…</translation>
    </message>
    <message>
        <source>Hiding the listed items…</source>
        <translation>Masquage des éléments de la liste…</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Arrêter</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 sur %2</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>Files and folders to add to the list, and to hide or show.</source>
        <translation>Fichiers et dossiers à ajouter à la liste, et à masquer ou afficher.</translation>
    </message>
    <message>
        <source>Hide files and folders from the file manager, and show them again.</source>
        <translation>Masquer des fichiers et des dossiers dans le gestionnaire de fichiers, et les montrer à nouveau.</translation>
    </message>
    <message>
        <source>Hide the files; those that are not listed are added.</source>
        <translation>Masquer les fichiers ; ceux qui ne sont pas dans la liste y sont ajoutés.</translation>
    </message>
    <message>
        <source>Show the files that are listed.</source>
        <translation>Afficher les fichiers qui sont dans la liste.</translation>
    </message>
    <message>
        <source>Show every listed item.</source>
        <translation>Afficher tous les éléments de la liste.</translation>
    </message>
    <message>
        <source>Print this help.</source>
        <translation>Afficher cette aide.</translation>
    </message>
    <message>
        <source>Print the version.</source>
        <translation>Afficher la version.</translation>
    </message>
    <message>
        <source>Velmora is running already, but does not answer.</source>
        <translation>Velmora est déjà lancé, mais ne répond pas.</translation>
    </message>
    <message>
        <source>Only one of --hide, --show and --show-all can be given.</source>
        <translation>Une seule des options --hide, --show et --show-all peut être donnée.</translation>
    </message>
    <message>
        <source>No file was given.</source>
        <translation>Aucun fichier n’a été indiqué.</translation>
    </message>
    <message>
        <source>--show-all takes no files.</source>
        <translation>--show-all ne prend pas de fichiers.</translation>
    </message>
</context>
<context>
    <name>Hiding</name>
    <message>
        <source>its path holds an apostrophe, which the command cannot take.</source>
        <translation>son chemin contient une apostrophe, que la commande n’accepte pas.</translation>
    </message>
    <message>
        <source>its name holds a line break, which file managers cannot hide.</source>
        <translation>son nom contient un saut de ligne, que les gestionnaires de fichiers ne peuvent pas masquer.</translation>
    </message>
    <message>
        <source>the command did not come to an end.</source>
        <translation>la commande ne s’est pas terminée.</translation>
    </message>
    <message>
        <source>its folder cannot be written.</source>
        <translation>son dossier n’est pas accessible en écriture.</translation>
    </message>
    <message>
        <source>the change was not carried out.</source>
        <translation>le changement n’a pas été effectué.</translation>
    </message>
    <message>
        <source>“%1” no longer exists.</source>
        <translation>« %1 » n’existe plus.</translation>
    </message>
    <message>
        <source>“%1” is still hidden: %2</source>
        <translation>« %1 » est toujours masqué : %2</translation>
    </message>
    <message>
        <source>“%1” is still visible: %2</source>
        <translation>« %1 » est toujours visible : %2</translation>
    </message>
</context>
<context>
    <name>ListRequest</name>
    <message>
        <source>Nothing was changed: no command could be started.</source>
        <translation>Rien n’a été modifié : aucune commande n’a pu être lancée.</translation>
    </message>
    <message>
        <source>Not everything was done: the program was asked to end.</source>
        <translation>Tout n’a pas été fait : le programme a dû se terminer.</translation>
    </message>
    <message>
        <source>Some of the given names were left out: they are not files on this computer, or not valid text.</source>
        <translation>Certains des noms indiqués ont été ignorés : ils ne désignent pas des fichiers de cet ordinateur ou ne sont pas un texte valide.</translation>
    </message>
    <message>
        <source>“%1” is not in the list.</source>
        <translation>« %1 » n’est pas dans la liste.</translation>
    </message>
    <message>
        <source>“%1” does not exist.</source>
        <translation>« %1 » n’existe pas.</translation>
    </message>
    <message>
        <source>The list is locked: unlock it in Velmora’s window first.</source>
        <translation>La liste est verrouillée : déverrouillez-la d’abord dans la fenêtre de Velmora.</translation>
    </message>
</context>
<context>
    <name>QuietLine</name>
    <message>
        <source>Press %1 in %2 to see the change.</source>
        <translation>Appuyez sur %1 dans %2 pour voir le changement.</translation>
    </message>
    <message numerus="yes">
        <source>%n listed item(s) could not be made visible.</source>
        <translation>
            <numerusform>%n élément de la liste n’a pas pu être rendu visible.</numerusform>
            <numerusform>%n éléments de la liste n’ont pas pu être rendus visibles.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n listed item(s) could not be hidden when Velmora last quit.</source>
        <translation>
            <numerusform>%n élément de la liste n’a pas pu être masqué lors de la dernière fermeture.</numerusform>
            <numerusform>%n éléments de la liste n’ont pas pu être masqués lors de la dernière fermeture.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>RDWindowController</name>
    <message>
        <source>Quit all the same, and lose the changes?</source>
        <translation>Quitter quand même et perdre les modifications ?</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Quitter</translation>
    </message>
    <message>
        <source>Stay</source>
        <translation>Rester</translation>
    </message>
</context>
<context>
    <name>UserDefaults</name>
    <message>
        <source>The settings cannot be read, so the list is closed for now: %1</source>
        <translation>Les réglages ne peuvent pas être lus ; la liste est donc fermée pour le moment : %1</translation>
    </message>
    <message>
        <source>The settings were missing; the last good copy is used.</source>
        <translation>Les réglages étaient absents ; la dernière bonne copie est utilisée.</translation>
    </message>
    <message>
        <source>The settings held no proper item list. They were kept as “%1” before the new list was saved.</source>
        <translation>Les réglages ne contenaient pas de liste valide. Ils ont été conservés sous « %1 » avant l’enregistrement de la nouvelle liste.</translation>
    </message>
    <message>
        <source>The settings could not be saved: %1</source>
        <translation>Les réglages n’ont pas pu être enregistrés : %1</translation>
    </message>
    <message>
        <source>The settings could not be read. They were kept as “%1”, and the last good copy is used.</source>
        <translation>Les réglages n’ont pas pu être lus. Ils ont été conservés sous « %1 » et la dernière bonne copie est utilisée.</translation>
    </message>
    <message>
        <source>The settings could not be read. They were kept as “%1”, and there was no good copy to use instead.</source>
        <translation>Les réglages n’ont pas pu être lus. Ils ont été conservés sous « %1 » ; il n’y avait pas de bonne copie.</translation>
    </message>
    <message>
        <source>The settings file “%1” could not be used and could not be kept under another name, so changes are not saved.</source>
        <translation>Le fichier de réglages « %1 » est inutilisable et n’a pas pu être renommé ; les changements ne sont pas enregistrés.</translation>
    </message>
</context>
<context>
    <name>WrapLabel</name>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Copier</translation>
    </message>
</context>
<context>
    <name>ListState</name>
    <message>
        <source>The list is locked: the password protection switch unlocks it.</source>
        <translation>La liste est verrouillée : l’interrupteur « Protection par mot de passe » la déverrouille.</translation>
    </message>
    <message>
        <source>Drag and drop is closed until a password is entered or Velmora starts again.</source>
        <translation>Le glisser-déposer est fermé jusqu’à ce qu’un mot de passe soit saisi ou que Velmora redémarre.</translation>
    </message>
    <message>
        <source>Drag files and folders here from your file manager,
or press “+” below to add files.</source>
        <translation>Glissez ici des fichiers et des dossiers depuis votre gestionnaire de fichiers,
ou ajoutez des fichiers avec « + » ci-dessous.</translation>
    </message>
    <message>
        <source>Press “+” below to add files. Drag and drop is closed
until a password is entered or Velmora starts again.</source>
        <translation>Ajoutez des fichiers avec « + » ci-dessous. Le glisser-déposer est fermé
jusqu’à ce qu’un mot de passe soit saisi ou que Velmora redémarre.</translation>
    </message>
    <message>
        <source>The list is locked.
The password protection switch below unlocks it.</source>
        <translation>La liste est verrouillée.
L’interrupteur « Protection par mot de passe » ci-dessous la déverrouille.</translation>
    </message>
</context>
</TS>
