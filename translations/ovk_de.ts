<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE" sourcelanguage="en">
<context>
    <name>ColorRangeSelection</name>
    <message>
        <source>Color Range</source>
        <translation>Farbbereich</translation>
    </message>
    <message>
        <source>...</source>
        <translation>...</translation>
    </message>
    <message>
        <source>End color range</source>
        <translation>Endfarbe</translation>
    </message>
    <message>
        <source>Begin color range</source>
        <translation>Anfangsfarbe</translation>
    </message>
</context>
<context>
    <name>QKeySequenceEdit</name>
    <message>
        <source>Press key</source>
        <translation>Taste drücken</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>Assign shortcut</source>
        <translation>Tastenkombination zuweisen</translation>
    </message>
    <message>
        <source>Quick search</source>
        <translation>Schnellsuche</translation>
    </message>
    <message>
        <source>Quick search (Shift+Q)</source>
        <translation>Schnellsuche (Umschalt+Q)</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Seiten</translation>
    </message>
    <message>
        <source>mm</source>
        <translation>mm</translation>
    </message>
    <message>
        <source>inch</source>
        <translation>Zoll</translation>
    </message>
</context>
<context>
    <name>Qtitan::RibbonBackstageBack</name>
    <message>
        <source>Back</source>
        <translation>Zurück</translation>
    </message>
</context>
<context>
    <name>Qtitan::RibbonBar</name>
    <message>
        <source>Minimize the Ribbon</source>
        <translation>Menüband minimieren</translation>
    </message>
    <message>
        <source>Scroll forward</source>
        <translation>Vorwärts blättern</translation>
    </message>
    <message>
        <source>Scroll back</source>
        <translation>Zurückblättern</translation>
    </message>
</context>
<context>
    <name>Qtitan::RibbonCaptionWidget</name>
    <message>
        <source>Minimize</source>
        <translation>Minimieren</translation>
    </message>
    <message>
        <source>Maximize</source>
        <translation>Maximieren</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>Wiederherstellen</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Hilfe</translation>
    </message>
</context>
<context>
    <name>Qtitan::RibbonGallery</name>
    <message>
        <source>Row up</source>
        <translation>Eine Zeile nach oben</translation>
    </message>
    <message>
        <source>Row down</source>
        <translation>Eine Zeile nach unten</translation>
    </message>
    <message>
        <source>More</source>
        <translation>Weitere</translation>
    </message>
</context>
<context>
    <name>Qtitan::RibbonOverflowButton</name>
    <message>
        <source>More controls</source>
        <translation>Weitere Steuerelemente</translation>
    </message>
</context>
<context>
    <name>Qtitan::RibbonQuickAccessBar</name>
    <message>
        <source>Quick Access Bar</source>
        <translation>Schnellzugriffsleiste</translation>
    </message>
</context>
<context>
    <name>UiCustimizeToolpages</name>
    <message>
        <source>Restore default toolsheets layout</source>
        <translation>Die Anordnung der Bereiche auf den Standard zurücksetzen</translation>
    </message>
    <message>
        <source>Restore
Pages
Layout</source>
        <translation>Anordnung
der Seiten
zurücksetzen</translation>
    </message>
    <message>
        <source>Docking preferences</source>
        <translation>Einstellungen zum Andocken</translation>
    </message>
    <message>
        <source>Animated docking</source>
        <translation>Andocken animieren</translation>
    </message>
</context>
<context>
    <name>UiCustomizeSitesLayout</name>
    <message>
        <source>Mode</source>
        <translation>Arbeitsbereich</translation>
    </message>
    <message>
        <source>Basic commands</source>
        <translation>Grundbefehle</translation>
    </message>
    <message>
        <source>&lt;enter text to search&gt;</source>
        <translation>&lt;Suchtext eingeben&gt;</translation>
    </message>
    <message>
        <source>Composite commands</source>
        <translation>Zusammengesetzte Befehle</translation>
    </message>
    <message>
        <source>&gt;</source>
        <translation>&gt;</translation>
    </message>
    <message>
        <source>Ribbon</source>
        <translation>Menüband</translation>
    </message>
    <message>
        <source>Groups Title Visible</source>
        <translation>Gruppentitel anzeigen</translation>
    </message>
    <message>
        <source>...</source>
        <translation>...</translation>
    </message>
    <message>
        <source>Quick Access Bar</source>
        <translation>Schnellzugriffsleiste</translation>
    </message>
    <message>
        <source>Toolbars</source>
        <translation>Symbolleisten</translation>
    </message>
    <message>
        <source>Context Menus</source>
        <translation>Kontextmenüs</translation>
    </message>
    <message>
        <source>Automatically shrink menu for optimal icons positions</source>
        <translation>Menü automatisch verkleinern, damit die Symbole günstig liegen</translation>
    </message>
</context>
<context>
    <name>UiCustomizeStyleLayout</name>
    <message>
        <source>Skin</source>
        <translation>Design</translation>
    </message>
    <message>
        <source>Color accent</source>
        <translation>Akzentfarbe</translation>
    </message>
</context>
<context>
    <name>buttonStyles</name>
    <message>
        <source>Icon Only</source>
        <translation>Nur Symbol</translation>
    </message>
    <message>
        <source>Text Only</source>
        <translation>Nur Text</translation>
    </message>
    <message>
        <source>Text Beside Icon</source>
        <translation>Text neben Symbol</translation>
    </message>
    <message>
        <source>Text Under Icon</source>
        <translation>Text unter Symbol</translation>
    </message>
</context>
<context>
    <name>ovk::AreaCloseButton</name>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
</context>
<context>
    <name>ovk::AreaMaximizeButton</name>
    <message>
        <source>Restore</source>
        <translation>Wiederherstellen</translation>
    </message>
    <message>
        <source>Maximize</source>
        <translation>Maximieren</translation>
    </message>
</context>
<context>
    <name>ovk::AreaMinimizeButton</name>
    <message>
        <source>Minimize</source>
        <translation>Minimieren</translation>
    </message>
</context>
<context>
    <name>ovk::CloseButton</name>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
</context>
<context>
    <name>ovk::CollapsibleButton</name>
    <message>
        <source>Keep open</source>
        <translation>Offen halten</translation>
    </message>
    <message>
        <source>Allow folding</source>
        <translation>Einklappen erlauben</translation>
    </message>
</context>
<context>
    <name>ovk::ColorEdit</name>
    <message>
        <source>No color</source>
        <translation>Keine Farbe</translation>
    </message>
    <message>
        <source>More Colors...</source>
        <translation>Weitere Farben...</translation>
    </message>
    <message>
        <source>Standard Colors</source>
        <translation>Standardfarben</translation>
    </message>
    <message>
        <source>Custom Colors</source>
        <translation>Benutzerdefinierte Farben</translation>
    </message>
</context>
<context>
    <name>ovk::ColorText</name>
    <message>
        <source>red</source>
        <translation>Rot</translation>
    </message>
    <message>
        <source>orange</source>
        <translation>Orange</translation>
    </message>
    <message>
        <source>yellow</source>
        <translation>Gelb</translation>
    </message>
    <message>
        <source>green</source>
        <translation>Grün</translation>
    </message>
    <message>
        <source>cyan</source>
        <translation>Cyan</translation>
    </message>
    <message>
        <source>blue</source>
        <translation>Blau</translation>
    </message>
    <message>
        <source>violet</source>
        <translation>Violett</translation>
    </message>
    <message>
        <source>magenta</source>
        <translation>Magenta</translation>
    </message>
    <message>
        <source>gray</source>
        <translation>Grau</translation>
    </message>
    <message>
        <source>black</source>
        <translation>Schwarz</translation>
    </message>
    <message>
        <source>white</source>
        <translation>Weiß</translation>
    </message>
    <message>
        <source>dark %1</source>
        <translation>Dunkles %1</translation>
    </message>
    <message>
        <source>light %1</source>
        <translation>Helles %1</translation>
    </message>
    <message>
        <source>no color</source>
        <translation>Keine Farbe</translation>
    </message>
</context>
<context>
    <name>ovk::CommandShortcutDelegate</name>
    <message>
        <source>Key sequence &apos;%1&apos; is already used for command &apos;%2&apos;</source>
        <translation>Die Tastenkombination „%1“ ist schon für den Befehl „%2“ vergeben</translation>
    </message>
    <message>
        <source>Key sequence &apos;%1&apos; is already used for menu &apos;%2&apos;</source>
        <translation>Die Tastenkombination „%1“ ist schon für das Menü „%2“ vergeben</translation>
    </message>
</context>
<context>
    <name>ovk::CompositeModel</name>
    <message>
        <source>Menu</source>
        <translation>Menü</translation>
    </message>
    <message>
        <source>Composite command</source>
        <translation>Zusammengesetzter Befehl</translation>
    </message>
    <message>
        <source>New Menu</source>
        <translation>Neues Menü</translation>
    </message>
    <message>
        <source>New Command</source>
        <translation>Neuer Befehl</translation>
    </message>
</context>
<context>
    <name>ovk::DockToolboxSiteHandle</name>
    <message>
        <source>Left panels</source>
        <translation>Linke Bereiche</translation>
    </message>
    <message>
        <source>Hide the panels at the left</source>
        <translation>Die Bereiche links ausblenden</translation>
    </message>
    <message>
        <source>Show the panels at the left</source>
        <translation>Die Bereiche links einblenden</translation>
    </message>
    <message>
        <source>Right panels</source>
        <translation>Rechte Bereiche</translation>
    </message>
    <message>
        <source>Hide the panels at the right</source>
        <translation>Die Bereiche rechts ausblenden</translation>
    </message>
    <message>
        <source>Show the panels at the right</source>
        <translation>Die Bereiche rechts einblenden</translation>
    </message>
    <message>
        <source>Top panels</source>
        <translation>Obere Bereiche</translation>
    </message>
    <message>
        <source>Hide the panels at the top</source>
        <translation>Die Bereiche oben ausblenden</translation>
    </message>
    <message>
        <source>Show the panels at the top</source>
        <translation>Die Bereiche oben einblenden</translation>
    </message>
    <message>
        <source>Bottom panels</source>
        <translation>Untere Bereiche</translation>
    </message>
    <message>
        <source>Hide the panels at the bottom</source>
        <translation>Die Bereiche unten ausblenden</translation>
    </message>
    <message>
        <source>Show the panels at the bottom</source>
        <translation>Die Bereiche unten einblenden</translation>
    </message>
</context>
<context>
    <name>ovk::EditDblSuffix</name>
    <message>
        <source>Please enter value between %1 and %2</source>
        <translation>Bitte geben Sie einen Wert zwischen %1 und %2 ein</translation>
    </message>
</context>
<context>
    <name>ovk::MenuShortcutDelegate</name>
    <message>
        <source>Key sequence &apos;%1&apos; is already used for command &apos;%2&apos;</source>
        <translation>Die Tastenkombination „%1“ ist schon für den Befehl „%2“ vergeben</translation>
    </message>
    <message>
        <source>Key sequence &apos;%1&apos; is already used for menu &apos;%2&apos;</source>
        <translation>Die Tastenkombination „%1“ ist schon für das Menü „%2“ vergeben</translation>
    </message>
</context>
<context>
    <name>ovk::MenusModel</name>
    <message>
        <source> + RMB</source>
        <translation> + rechte Maustaste</translation>
    </message>
    <message>
        <source>New Menu</source>
        <translation>Neues Menü</translation>
    </message>
</context>
<context>
    <name>ovk::MinimizeButton</name>
    <message>
        <source>Unfold</source>
        <translation>Ausklappen</translation>
    </message>
    <message>
        <source>Fold</source>
        <translation>Einklappen</translation>
    </message>
</context>
<context>
    <name>ovk::RibbonModel</name>
    <message>
        <source>New page</source>
        <translation>Neue Seite</translation>
    </message>
    <message>
        <source>New group</source>
        <translation>Neue Gruppe</translation>
    </message>
</context>
<context>
    <name>ovk::RibbonWindow</name>
    <message>
        <source>File</source>
        <translation>Datei</translation>
    </message>
    <message>
        <source>Minimize the Ribbon</source>
        <translation>Menüband minimieren</translation>
    </message>
    <message>
        <source>Show only the tab names on the Ribbon</source>
        <translation>Nur die Registerkartennamen im Menüband anzeigen</translation>
    </message>
    <message>
        <source>Ctrl+F1</source>
        <translation>Ctrl+F1</translation>
    </message>
    <message>
        <source>Restore the Ribbon</source>
        <translation>Menüband wiederherstellen</translation>
    </message>
</context>
<context>
    <name>ovk::ToolbarsModel</name>
    <message>
        <source>New Toolbar</source>
        <translation>Neue Symbolleiste</translation>
    </message>
</context>
<context>
    <name>ovk::UiCustomizeDialog::Impl</name>
    <message>
        <source>Customize UI commands</source>
        <translation>Oberfläche anpassen</translation>
    </message>
    <message>
        <source>Visual
style</source>
        <translation>Design</translation>
    </message>
    <message>
        <source>Toolbars
&amp;&amp;
Shortcuts</source>
        <translation>Symbolleisten
und
Tasten</translation>
    </message>
    <message>
        <source>Toolpages</source>
        <translation>Bereiche</translation>
    </message>
</context>
<context>
    <name>ovk::UiCustomizeSitesWidget::Impl</name>
    <message>
        <source>Add page</source>
        <translation>Seite hinzufügen</translation>
    </message>
    <message>
        <source>Add new page onto the ribbon</source>
        <translation>Eine neue Seite zum Menüband hinzufügen</translation>
    </message>
    <message>
        <source>Insert page after</source>
        <translation>Seite danach einfügen</translation>
    </message>
    <message>
        <source>Add new page after selected one</source>
        <translation>Eine neue Seite nach der ausgewählten einfügen</translation>
    </message>
    <message>
        <source>Insert page before</source>
        <translation>Seite davor einfügen</translation>
    </message>
    <message>
        <source>Insert new page before selected one</source>
        <translation>Eine neue Seite vor der ausgewählten einfügen</translation>
    </message>
    <message>
        <source>Add group</source>
        <translation>Gruppe hinzufügen</translation>
    </message>
    <message>
        <source>Add new group at the end of the group list</source>
        <translation>Eine neue Gruppe am Ende der Seite hinzufügen</translation>
    </message>
    <message>
        <source>Insert group after</source>
        <translation>Gruppe danach einfügen</translation>
    </message>
    <message>
        <source>Insert new group after selected one</source>
        <translation>Eine neue Gruppe nach der ausgewählten einfügen</translation>
    </message>
    <message>
        <source>Insert group before</source>
        <translation>Gruppe davor einfügen</translation>
    </message>
    <message>
        <source>Insert new group before selected one</source>
        <translation>Eine neue Gruppe vor der ausgewählten einfügen</translation>
    </message>
    <message>
        <source>Add separator</source>
        <translation>Trennlinie hinzufügen</translation>
    </message>
    <message>
        <source>Add new separator into the group</source>
        <translation>Eine neue Trennlinie zur Gruppe hinzufügen</translation>
    </message>
    <message>
        <source>Insert separator after</source>
        <translation>Trennlinie danach einfügen</translation>
    </message>
    <message>
        <source>Insert new separator after selected</source>
        <translation>Eine neue Trennlinie nach dem ausgewählten Eintrag einfügen</translation>
    </message>
    <message>
        <source>Insert separator before</source>
        <translation>Trennlinie davor einfügen</translation>
    </message>
    <message>
        <source>Insert new separator before selected</source>
        <translation>Eine neue Trennlinie vor dem ausgewählten Eintrag einfügen</translation>
    </message>
    <message>
        <source>Delete separator</source>
        <translation>Trennlinie löschen</translation>
    </message>
    <message>
        <source>Delete selected separator from the group</source>
        <translation>Die ausgewählte Trennlinie aus der Gruppe löschen</translation>
    </message>
    <message>
        <source>Delete page</source>
        <translation>Seite löschen</translation>
    </message>
    <message>
        <source>Delete selected page from the ribbon</source>
        <translation>Die ausgewählte Seite aus dem Menüband löschen</translation>
    </message>
    <message>
        <source>Delete group</source>
        <translation>Gruppe löschen</translation>
    </message>
    <message>
        <source>Delete selected group from the page</source>
        <translation>Die ausgewählte Gruppe aus der Seite löschen</translation>
    </message>
    <message>
        <source>Delete command</source>
        <translation>Befehl löschen</translation>
    </message>
    <message>
        <source>Remove selected command from the group</source>
        <translation>Den ausgewählten Befehl aus der Gruppe entfernen</translation>
    </message>
    <message>
        <source>Delete items</source>
        <translation>Einträge löschen</translation>
    </message>
    <message>
        <source>Remove selected items from the tree</source>
        <translation>Die ausgewählten Einträge aus dem Baum entfernen</translation>
    </message>
    <message>
        <source>Add new separator into the quick access bar</source>
        <translation>Eine neue Trennlinie zur Schnellzugriffsleiste hinzufügen</translation>
    </message>
    <message>
        <source>Remove selected command from the quick access bar</source>
        <translation>Den ausgewählten Befehl aus der Schnellzugriffsleiste entfernen</translation>
    </message>
    <message>
        <source>Delete selected separator from the quick access bar</source>
        <translation>Die ausgewählte Trennlinie aus der Schnellzugriffsleiste löschen</translation>
    </message>
    <message>
        <source>Add new separator into the toolbar</source>
        <translation>Eine neue Trennlinie zur Symbolleiste hinzufügen</translation>
    </message>
    <message>
        <source>Remove selected command from the toolbar</source>
        <translation>Den ausgewählten Befehl aus der Symbolleiste entfernen</translation>
    </message>
    <message>
        <source>Delete selected separator from the toolbar</source>
        <translation>Die ausgewählte Trennlinie aus der Symbolleiste löschen</translation>
    </message>
    <message>
        <source>Add toolbar</source>
        <translation>Symbolleiste hinzufügen</translation>
    </message>
    <message>
        <source>Add new toolbar onto the toolbars</source>
        <translation>Eine neue Symbolleiste hinzufügen</translation>
    </message>
    <message>
        <source>Insert toolbar after</source>
        <translation>Symbolleiste danach einfügen</translation>
    </message>
    <message>
        <source>Add new toolbar after selected one</source>
        <translation>Eine neue Symbolleiste nach der ausgewählten einfügen</translation>
    </message>
    <message>
        <source>Insert toolbar before</source>
        <translation>Symbolleiste davor einfügen</translation>
    </message>
    <message>
        <source>Insert new toolbar before selected one</source>
        <translation>Eine neue Symbolleiste vor der ausgewählten einfügen</translation>
    </message>
    <message>
        <source>Delete toolbar</source>
        <translation>Symbolleiste löschen</translation>
    </message>
    <message>
        <source>Delete selected toolbar from the toolbars</source>
        <translation>Die ausgewählte Symbolleiste löschen</translation>
    </message>
    <message>
        <source>Create composite command</source>
        <translation>Zusammengesetzten Befehl erstellen</translation>
    </message>
    <message>
        <source>Create composite command from existing commands</source>
        <translation>Aus vorhandenen Befehlen einen zusammengesetzten Befehl erstellen</translation>
    </message>
    <message>
        <source>Create menu</source>
        <translation>Menü erstellen</translation>
    </message>
    <message>
        <source>Create menu from existing commands</source>
        <translation>Aus vorhandenen Befehlen ein Menü erstellen</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>Delete selected item</source>
        <translation>Den ausgewählten Eintrag löschen</translation>
    </message>
    <message>
        <source>Delete shortcut</source>
        <translation>Tastenkombination löschen</translation>
    </message>
    <message>
        <source>Delete shortcut for selected command</source>
        <translation>Die Tastenkombination des ausgewählten Befehls löschen</translation>
    </message>
    <message>
        <source>Assign shortcut</source>
        <translation>Tastenkombination zuweisen</translation>
    </message>
    <message>
        <source>Assign new shortcut for selected command</source>
        <translation>Dem ausgewählten Befehl eine neue Tastenkombination zuweisen</translation>
    </message>
    <message>
        <source>Remove selected command from the menu</source>
        <translation>Den ausgewählten Befehl aus dem Menü entfernen</translation>
    </message>
    <message>
        <source>Add menu</source>
        <translation>Menü hinzufügen</translation>
    </message>
    <message>
        <source>Add new menu onto the menus</source>
        <translation>Ein neues Menü hinzufügen</translation>
    </message>
    <message>
        <source>Insert menu after</source>
        <translation>Menü danach einfügen</translation>
    </message>
    <message>
        <source>Add new menu after selected one</source>
        <translation>Ein neues Menü nach dem ausgewählten einfügen</translation>
    </message>
    <message>
        <source>Insert menu before</source>
        <translation>Menü davor einfügen</translation>
    </message>
    <message>
        <source>Insert new menu before selected one</source>
        <translation>Ein neues Menü vor dem ausgewählten einfügen</translation>
    </message>
    <message>
        <source>Delete menu</source>
        <translation>Menü löschen</translation>
    </message>
    <message>
        <source>Delete selected menu from the menus</source>
        <translation>Das ausgewählte Menü löschen</translation>
    </message>
    <message>
        <source>Expand all</source>
        <translation>Alle ausklappen</translation>
    </message>
    <message>
        <source>Expand all tree items</source>
        <translation>Alle Einträge des Baums ausklappen</translation>
    </message>
    <message>
        <source>Collapse all</source>
        <translation>Alle einklappen</translation>
    </message>
    <message>
        <source>Collapse all tree items</source>
        <translation>Alle Einträge des Baums einklappen</translation>
    </message>
    <message>
        <source>There are no commands</source>
        <translation>Es gibt keine Befehle</translation>
    </message>
    <message>
        <source>Create composite commands with the context menu</source>
        <translation>Zusammengesetzte Befehle lassen sich im Kontextmenü erstellen</translation>
    </message>
    <message>
        <source>Add a page to begin</source>
        <translation>Fügen Sie zuerst eine Seite hinzu</translation>
    </message>
    <message>
        <source>Drag commands here</source>
        <translation>Ziehen Sie Befehle hierher</translation>
    </message>
    <message>
        <source>Add a toolbar to begin</source>
        <translation>Fügen Sie zuerst eine Symbolleiste hinzu</translation>
    </message>
    <message>
        <source>Add a menu to begin</source>
        <translation>Fügen Sie zuerst ein Menü hinzu</translation>
    </message>
    <message>
        <source>Nothing matches the search</source>
        <translation>Die Suche hat keine Treffer</translation>
    </message>
</context>
<context>
    <name>ovk::UiCustomizeStyleWidget::Impl</name>
    <message>
        <source>Office 2007 Blue</source>
        <translation>Office 2007 Blau</translation>
    </message>
    <message>
        <source>Office 2007 Black</source>
        <translation>Office 2007 Schwarz</translation>
    </message>
    <message>
        <source>Office 2007 Silver</source>
        <translation>Office 2007 Silber</translation>
    </message>
    <message>
        <source>Office 2007 Aqua</source>
        <translation>Office 2007 Aqua</translation>
    </message>
    <message>
        <source>Windows 7 Scenic</source>
        <translation>Windows 7 Scenic</translation>
    </message>
    <message>
        <source>Office 2010 Silver</source>
        <translation>Office 2010 Silber</translation>
    </message>
    <message>
        <source>Office 2010 Blue</source>
        <translation>Office 2010 Blau</translation>
    </message>
    <message>
        <source>Office 2010 Black</source>
        <translation>Office 2010 Schwarz</translation>
    </message>
    <message>
        <source>Office 2013 White</source>
        <translation>Office 2013 Weiß</translation>
    </message>
    <message>
        <source>Office 2013 Gray</source>
        <translation>Office 2013 Grau</translation>
    </message>
    <message>
        <source>Office 2013 Dark</source>
        <translation>Office 2013 Dunkel</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>Blau</translation>
    </message>
    <message>
        <source>Brown</source>
        <translation>Braun</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>Grün</translation>
    </message>
    <message>
        <source>Lime</source>
        <translation>Limette</translation>
    </message>
    <message>
        <source>Magenta</source>
        <translation>Magenta</translation>
    </message>
    <message>
        <source>Orange</source>
        <translation>Orange</translation>
    </message>
    <message>
        <source>Pink</source>
        <translation>Rosa</translation>
    </message>
    <message>
        <source>Purple</source>
        <translation>Lila</translation>
    </message>
    <message>
        <source>Red</source>
        <translation>Rot</translation>
    </message>
    <message>
        <source>Teal</source>
        <translation>Blaugrün</translation>
    </message>
</context>
<context>
    <name>ovk::WidgetAccessibility</name>
    <message>
        <source>Color</source>
        <translation>Farbe</translation>
    </message>
    <message>
        <source>Color scale</source>
        <translation>Farbskala</translation>
    </message>
    <message>
        <source>From %1 to %2</source>
        <translation>Von %1 bis %2</translation>
    </message>
    <message>
        <source>Color legend</source>
        <translation>Farblegende</translation>
    </message>
</context>
</TS>
