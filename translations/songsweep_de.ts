<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>Alerts</name>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>No duplicates found.</source>
        <translation>Keine Duplikate gefunden.</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Hilfe</translation>
    </message>
    <message>
        <source>Can&apos;t open the library.</source>
        <translation>Die Mediathek lässt sich nicht öffnen.</translation>
    </message>
    <message>
        <source>Can&apos;t write the library.</source>
        <translation>Die Mediathek lässt sich nicht schreiben.</translation>
    </message>
    <message>
        <source>Can&apos;t export the results.</source>
        <translation>Die Ergebnisse lassen sich nicht exportieren.</translation>
    </message>
    <message>
        <source>Look for the files there?</source>
        <translation>Dort nach den Dateien suchen?</translation>
    </message>
    <message>
        <source>The file that was tried is there.</source>
        <translation>Die geprüfte Datei ist dort.</translation>
    </message>
    <message>
        <source>%L1 of %L2 files that were tried are there.</source>
        <translation>%L1 von %L2 geprüften Dateien sind dort.</translation>
    </message>
    <message>
        <source>In the library: %1
Here: %2

%3</source>
        <translation>In der Mediathek: %1
Hier: %2

%3</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>A&amp;bbrechen</translation>
    </message>
    <message>
        <source>&amp;Search again</source>
        <translation>&amp;Erneut suchen</translation>
    </message>
    <message>
        <source>None of the files were found there.</source>
        <translation>Dort wurde keine der Dateien gefunden.</translation>
    </message>
    <message>
        <source>Choose the folder that holds the artists&apos; folders.</source>
        <translation>Wählen Sie den Ordner, in dem die Ordner der Interpreten liegen.</translation>
    </message>
    <message>
        <source>Open another library?</source>
        <translation>Eine andere Mediathek öffnen?</translation>
    </message>
    <message numerus="yes">
        <source>The %1 marks in these results are lost then.</source>
        <comment>The mark in these results is lost then.</comment>
        <translation>
            <numerusform>Die Markierung in diesen Ergebnissen geht dann verloren.</numerusform>
            <numerusform>Die %1 Markierungen in diesen Ergebnissen gehen dann verloren.</numerusform>
        </translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>&amp;Öffnen</translation>
    </message>
    <message>
        <source>The library is as it was before.</source>
        <translation>Die Mediathek ist unverändert.</translation>
    </message>
    <message>
        <source>Nothing was deleted.</source>
        <translation>Es wurde nichts gelöscht.</translation>
    </message>
    <message>
        <source>Tracks that the library still has keep their files.</source>
        <translation>Titel, die noch in der Mediathek stehen, behalten ihre Dateien.</translation>
    </message>
</context>
<context>
    <name>CellTexts</name>
    <message>
        <source>Not rated</source>
        <translation>Ohne Wertung</translation>
    </message>
    <message>
        <source>Rating: %1 of 5 stars</source>
        <translation>Wertung: %1 von 5 Sternen</translation>
    </message>
    <message>
        <source>Marked</source>
        <translation>Markiert</translation>
    </message>
    <message>
        <source>Not marked</source>
        <translation>Nicht markiert</translation>
    </message>
    <message>
        <source>File missing</source>
        <translation>Datei fehlt</translation>
    </message>
    <message>
        <source>File present</source>
        <translation>Datei vorhanden</translation>
    </message>
    <message>
        <source>Group %1 of %2, copy %3 of %4</source>
        <translation>Gruppe %1 von %2, Kopie %3 von %4</translation>
    </message>
</context>
<context>
    <name>CleanupTable</name>
    <message>
        <source>cancelled</source>
        <translation>abgebrochen</translation>
    </message>
    <message>
        <source>failed</source>
        <translation>fehlgeschlagen</translation>
    </message>
    <message>
        <source>restored</source>
        <translation>wiederhergestellt</translation>
    </message>
    <message>
        <source>backup missing</source>
        <translation>Sicherung fehlt</translation>
    </message>
    <message>
        <source>not ended</source>
        <translation>nicht beendet</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Datum</translation>
    </message>
    <message>
        <source>Tracks</source>
        <translation>Titel</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Dateien</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Größe</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Status</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message numerus="yes">
        <source>%1 clean-ups</source>
        <comment>1 clean-up</comment>
        <translation>
            <numerusform>%1 Bereinigung</numerusform>
            <numerusform>%1 Bereinigungen</numerusform>
        </translation>
    </message>
    <message>
        <source>complete</source>
        <translation>vollständig</translation>
    </message>
</context>
<context>
    <name>Columns</name>
    <message>
        <source>Yes</source>
        <translation>Ja</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Nein</translation>
    </message>
    <message>
        <source>Marked for deletion</source>
        <translation>Zum Löschen markiert</translation>
    </message>
    <message>
        <source>File missing</source>
        <translation>Datei fehlt</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Artist</source>
        <translation>Interpret</translation>
    </message>
    <message>
        <source>Album</source>
        <translation>Album</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Dauer</translation>
    </message>
    <message>
        <source>Bit rate</source>
        <translation>Bitrate</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Größe</translation>
    </message>
    <message>
        <source>Rating</source>
        <translation>Wertung</translation>
    </message>
    <message>
        <source>Plays</source>
        <translation>Zähler</translation>
    </message>
    <message>
        <source>Date added</source>
        <translation>Hinzugefügt</translation>
    </message>
    <message>
        <source>Artwork</source>
        <translation>Cover</translation>
    </message>
    <message>
        <source>Sound</source>
        <translation>Klang</translation>
    </message>
    <message>
        <source>Whether copies are the same recording</source>
        <translation>Ob die Kopien dieselbe Aufnahme sind</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Datei</translation>
    </message>
    <message>
        <source>Location</source>
        <translation>Ort</translation>
    </message>
    <message>
        <source>same</source>
        <translation>gleich</translation>
    </message>
    <message>
        <source>differs</source>
        <translation>anders</translation>
    </message>
    <message>
        <source>unsure</source>
        <translation>unsicher</translation>
    </message>
    <message>
        <source>not readable</source>
        <translation>nicht lesbar</translation>
    </message>
</context>
<context>
    <name>Commands</name>
    <message>
        <source>no track of these groups is of the kind %1</source>
        <translation>kein Titel dieser Gruppen ist von der Art %1</translation>
    </message>
    <message>
        <source>no track of these groups is in %1</source>
        <translation>kein Titel dieser Gruppen liegt in %1</translation>
    </message>
</context>
<context>
    <name>Confirmation</name>
    <message>
        <source>No tracks are marked</source>
        <translation>Es sind keine Titel markiert</translation>
    </message>
    <message>
        <source>No track can be deleted</source>
        <translation>Kein Titel kann gelöscht werden</translation>
    </message>
    <message numerus="yes">
        <source>Delete %1 tracks from the library?</source>
        <comment>Delete 1 track from the library?</comment>
        <translation>
            <numerusform>%1 Titel aus der Mediathek löschen?</numerusform>
            <numerusform>%1 Titel aus der Mediathek löschen?</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Delete %1 tracks from iTunes?</source>
        <comment>Delete 1 track from iTunes?</comment>
        <translation>
            <numerusform>%1 Titel aus iTunes löschen?</numerusform>
            <numerusform>%1 Titel aus iTunes löschen?</numerusform>
        </translation>
    </message>
    <message>
        <source>Nothing will be deleted.</source>
        <translation>Es wird nichts gelöscht.</translation>
    </message>
    <message numerus="yes">
        <source>They also leave every playlist.</source>
        <comment>It also leaves every playlist.</comment>
        <translation>
            <numerusform>Er verschwindet auch aus jeder Wiedergabeliste.</numerusform>
            <numerusform>Sie verschwinden auch aus jeder Wiedergabeliste.</numerusform>
        </translation>
    </message>
    <message>
        <source>A copy of the library file is kept beside it.</source>
        <translation>Eine Kopie der Mediatheksdatei bleibt neben ihr erhalten.</translation>
    </message>
    <message>
        <source>iTunes cannot undo this.</source>
        <translation>iTunes kann das nicht rückgängig machen.</translation>
    </message>
    <message numerus="yes">
        <source>Their files go to the Trash.</source>
        <comment>Its file goes to the Trash.</comment>
        <translation>
            <numerusform>Seine Datei kommt in den Papierkorb.</numerusform>
            <numerusform>Ihre Dateien kommen in den Papierkorb.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Move their &amp;files to the Trash too</source>
        <comment>Move its &amp;file to the Trash too</comment>
        <translation>
            <numerusform>Auch seine &amp;Datei in den Papierkorb legen</numerusform>
            <numerusform>Auch ihre &amp;Dateien in den Papierkorb legen</numerusform>
        </translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Löschen</translation>
    </message>
    <message numerus="yes">
        <source>&amp;Delete %1 tracks</source>
        <comment>&amp;Delete 1 track</comment>
        <translation>
            <numerusform>%1 Titel &amp;löschen</numerusform>
            <numerusform>%1 Titel &amp;löschen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The files stay where they are.</source>
        <comment>The file stays where it is.</comment>
        <translation>
            <numerusform>Die Datei bleibt, wo sie ist.</numerusform>
            <numerusform>Die Dateien bleiben, wo sie sind.</numerusform>
        </translation>
    </message>
    <message>
        <source>Looking at the files...</source>
        <translation>Die Dateien werden geprüft...</translation>
    </message>
    <message numerus="yes">
        <source>The rest of the library could not be read, so the files stay.</source>
        <comment>The rest of the library could not be read, so the file stays.</comment>
        <translation>
            <numerusform>Der Rest der Mediathek war nicht lesbar, deshalb bleibt die Datei.</numerusform>
            <numerusform>Der Rest der Mediathek war nicht lesbar, deshalb bleiben die Dateien.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 files, %2, go to the Trash.</source>
        <comment>1 file, %2, goes to the Trash.</comment>
        <translation>
            <numerusform>%1 Datei, %2, kommt in den Papierkorb.</numerusform>
            <numerusform>%1 Dateien, %2, kommen in den Papierkorb.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 files are shared with tracks that stay, and are kept.</source>
        <comment>1 file is shared with a track that stays, and is kept.</comment>
        <translation>
            <numerusform>%1 Datei gehört auch einem Titel, der bleibt, und wird behalten.</numerusform>
            <numerusform>%1 Dateien gehören auch Titeln, die bleiben, und werden behalten.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 files are shared with tracks that stay, and go too.</source>
        <comment>1 file is shared with a track that stays, and goes too.</comment>
        <translation>
            <numerusform>%1 Datei gehört auch einem Titel, der bleibt, und geht mit.</numerusform>
            <numerusform>%1 Dateien gehören auch Titeln, die bleiben, und gehen mit.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 files are missing already.</source>
        <comment>1 file is missing already.</comment>
        <translation>
            <numerusform>%1 Datei fehlt bereits.</numerusform>
            <numerusform>%1 Dateien fehlen bereits.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 files cannot go to the Trash, and are kept.</source>
        <comment>1 file cannot go to the Trash, and is kept.</comment>
        <translation>
            <numerusform>%1 Datei lässt sich nicht in den Papierkorb legen und bleibt.</numerusform>
            <numerusform>%1 Dateien lassen sich nicht in den Papierkorb legen und bleiben.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>No copy of %1 songs will be left.</source>
        <comment>No copy of 1 song will be left.</comment>
        <translation>
            <numerusform>Von %1 Song bleibt keine Kopie übrig.</numerusform>
            <numerusform>Von %1 Songs bleibt keine Kopie übrig.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 marked copies are the last of their recordings.</source>
        <comment>1 marked copy is the last of its recording.</comment>
        <translation>
            <numerusform>%1 markierte Kopie ist die letzte ihrer Aufnahme.</numerusform>
            <numerusform>%1 markierte Kopien sind die letzten ihrer Aufnahmen.</numerusform>
        </translation>
    </message>
    <message>
        <source>The library cannot be written:
%1.</source>
        <translation>Die Mediathek lässt sich nicht schreiben:
%1.</translation>
    </message>
    <message>
        <source>The library cannot be written.</source>
        <translation>Die Mediathek lässt sich nicht schreiben.</translation>
    </message>
    <message numerus="yes">
        <source>%1 tracks share their IDs with others, and stay.</source>
        <comment>1 track shares its ID with another one, and stays.</comment>
        <translation>
            <numerusform>%1 Titel teilt seine Kennung mit einem anderen und bleibt.</numerusform>
            <numerusform>%1 Titel teilen ihre Kennungen mit anderen und bleiben.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>DeleteCommand</name>
    <message numerus="yes">
        <source>no copy of %1 songs would be left; nothing was deleted (--allow-all-copies allows it)</source>
        <comment>no copy of 1 song would be left; nothing was deleted (--allow-all-copies allows it)</comment>
        <translation>
            <numerusform>von %1 Song bliebe keine Kopie übrig; es wurde nichts gelöscht (--allow-all-copies erlaubt es)</numerusform>
            <numerusform>von %1 Songs bliebe keine Kopie übrig; es wurde nichts gelöscht (--allow-all-copies erlaubt es)</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Deletion</name>
    <message>
        <source>Deleting...</source>
        <translation>Wird gelöscht...</translation>
    </message>
    <message>
        <source>Merging...</source>
        <translation>Wird zusammengeführt...</translation>
    </message>
</context>
<context>
    <name>DeletionSummary</name>
    <message numerus="yes">
        <source>%1 tracks deleted</source>
        <comment>1 track deleted</comment>
        <translation>
            <numerusform>%1 Titel gelöscht</numerusform>
            <numerusform>%1 Titel gelöscht</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%2 of %1 tracks deleted</source>
        <comment>%2 of 1 track deleted</comment>
        <translation>
            <numerusform>%2 von %1 Titel gelöscht</numerusform>
            <numerusform>%2 von %1 Titeln gelöscht</numerusform>
        </translation>
    </message>
    <message>
        <source>deleted</source>
        <translation>gelöscht</translation>
    </message>
    <message>
        <source>failed</source>
        <translation>fehlgeschlagen</translation>
    </message>
    <message>
        <source>not attempted</source>
        <translation>nicht versucht</translation>
    </message>
    <message>
        <source>file trashed</source>
        <translation>Datei im Papierkorb</translation>
    </message>
    <message>
        <source>file missing</source>
        <translation>Datei fehlte</translation>
    </message>
    <message>
        <source>file kept</source>
        <translation>Datei behalten</translation>
    </message>
    <message numerus="yes">
        <source>%1 files in the Trash</source>
        <comment>1 file in the Trash</comment>
        <translation>
            <numerusform>%1 Datei im Papierkorb</numerusform>
            <numerusform>%1 Dateien im Papierkorb</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 files kept</source>
        <comment>1 file kept</comment>
        <translation>
            <numerusform>%1 Datei behalten</numerusform>
            <numerusform>%1 Dateien behalten</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 files missing already</source>
        <comment>1 file missing already</comment>
        <translation>
            <numerusform>%1 Datei fehlte bereits</numerusform>
            <numerusform>%1 Dateien fehlten bereits</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 tracks could not be deleted</source>
        <comment>1 track could not be deleted</comment>
        <translation>
            <numerusform>%1 Titel ließ sich nicht löschen</numerusform>
            <numerusform>%1 Titel ließen sich nicht löschen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 tracks not attempted</source>
        <comment>1 track not attempted</comment>
        <translation>
            <numerusform>%1 Titel nicht versucht</numerusform>
            <numerusform>%1 Titel nicht versucht</numerusform>
        </translation>
    </message>
    <message>
        <source>Cancelled: %1</source>
        <translation>Abgebrochen: %1</translation>
    </message>
    <message>
        <source>Stopped: %1</source>
        <translation>Angehalten: %1</translation>
    </message>
    <message>
        <source>It ended early: %1</source>
        <translation>Es endete vorzeitig: %1</translation>
    </message>
</context>
<context>
    <name>Filter</name>
    <message>
        <source>All</source>
        <translation>Alle</translation>
    </message>
    <message>
        <source>Marked</source>
        <translation>Markiert</translation>
    </message>
    <message>
        <source>Missing</source>
        <translation>Fehlend</translation>
    </message>
    <message>
        <source>Losing every copy</source>
        <translation>Ohne bleibende Kopie</translation>
    </message>
</context>
<context>
    <name>FinishCommand</name>
    <message>
        <source>no deletion was interrupted; restore --list shows all</source>
        <translation>kein Löschvorgang wurde unterbrochen; restore --list zeigt alle</translation>
    </message>
</context>
<context>
    <name>FolderReading</name>
    <message>
        <source>there is no music in this folder</source>
        <translation>in diesem Ordner ist keine Musik</translation>
    </message>
    <message>
        <source>%1; its library is taken as it is</source>
        <translation>%1; ihre Mediathek wird genommen, wie sie ist</translation>
    </message>
</context>
<context>
    <name>InterruptedCleanup</name>
    <message numerus="yes">
        <source>%1 tracks</source>
        <comment>1 track</comment>
        <translation>
            <numerusform>%1 Titel</numerusform>
            <numerusform>%1 Titel</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 files</source>
        <comment>1 file</comment>
        <translation>
            <numerusform>%1 Datei</numerusform>
            <numerusform>%1 Dateien</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 and %2</source>
        <translation>%1 und %2</translation>
    </message>
    <message numerus="yes">
        <source>%1 playlist files</source>
        <comment>1 playlist file</comment>
        <translation>
            <numerusform>%1 Wiedergabelistendatei</numerusform>
            <numerusform>%1 Wiedergabelistendateien</numerusform>
        </translation>
    </message>
    <message>
        <source>no file is left to go to the Trash</source>
        <translation>bleibt keine Datei für den Papierkorb übrig</translation>
    </message>
    <message numerus="yes">
        <source>%1 files go to the Trash</source>
        <comment>1 file goes to the Trash</comment>
        <translation>
            <numerusform>kommt %1 Datei in den Papierkorb</numerusform>
            <numerusform>kommen %1 Dateien in den Papierkorb</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Keyboard</name>
    <message>
        <source>Space</source>
        <translation>Leertaste</translation>
    </message>
    <message>
        <source>Mark the selected rows, or unmark them where all are marked</source>
        <translation>Die ausgewählten Zeilen markieren, oder die Markierung aufheben, wo alle markiert sind</translation>
    </message>
    <message>
        <source>Up, Down</source>
        <translation>Auf, Ab</translation>
    </message>
    <message>
        <source>The row before, the next row; with Shift more rows</source>
        <translation>Die vorige, die nächste Zeile; mit Umschalt mehrere Zeilen</translation>
    </message>
    <message>
        <source>Home, End</source>
        <translation>Pos1, Ende</translation>
    </message>
    <message>
        <source>The first row, the last row</source>
        <translation>Die erste Zeile, die letzte Zeile</translation>
    </message>
    <message>
        <source>Ctrl+Up, Ctrl+Down</source>
        <translation>Strg+Auf, Strg+Ab</translation>
    </message>
    <message>
        <source>The first row of the group before, of the next group</source>
        <translation>Die erste Zeile der vorigen, der nächsten Gruppe</translation>
    </message>
    <message>
        <source>Esc</source>
        <translation>Esc</translation>
    </message>
    <message>
        <source>In the filter: all rows again</source>
        <translation>Im Filter: wieder alle Zeilen</translation>
    </message>
    <message>
        <source>Letters</source>
        <translation>Buchstaben</translation>
    </message>
    <message>
        <source>The next track whose name begins so</source>
        <translation>Der nächste Titel, dessen Name so beginnt</translation>
    </message>
    <message>
        <source>Tab</source>
        <translation>Tab</translation>
    </message>
    <message>
        <source>From control to control</source>
        <translation>Von Bedienelement zu Bedienelement</translation>
    </message>
    <message>
        <source>Cancel a search or a deletion, close a dialog</source>
        <translation>Eine Suche oder ein Löschen abbrechen, ein Fenster schließen</translation>
    </message>
</context>
<context>
    <name>LibrarySession</name>
    <message>
        <source>the library has none</source>
        <translation>die Mediathek hat keine</translation>
    </message>
    <message>
        <source>the library has</source>
        <translation>die Mediathek hat</translation>
    </message>
    <message>
        <source>the search ended without a result</source>
        <translation>die Suche endete ohne Ergebnis</translation>
    </message>
    <message>
        <source>the search could not be limited to the playlist &apos;%1&apos;</source>
        <translation>die Suche ließ sich nicht auf die Wiedergabeliste „%1“ beschränken</translation>
    </message>
    <message>
        <source>warning: %1</source>
        <translation>Warnung: %1</translation>
    </message>
    <message>
        <source>there is no playlist &apos;%1&apos;; %2</source>
        <translation>es gibt keine Wiedergabeliste „%1“; %2</translation>
    </message>
</context>
<context>
    <name>LibraryWarnings</name>
    <message>
        <source>--map %1=%2 changes nothing, as no path of the library begins so</source>
        <translation>--map %1=%2 ändert nichts, da kein Pfad der Mediathek so beginnt</translation>
    </message>
    <message>
        <source>--map %1=%2 changes nothing, as no path of the library begins so; its first is %3</source>
        <translation>--map %1=%2 ändert nichts, da kein Pfad der Mediathek so beginnt; ihr erster ist %3</translation>
    </message>
    <message>
        <source>none of the library&apos;s files is here; if they came from another machine, --map FROM=TO tells where they are now (the first is %1)</source>
        <translation>keine der Dateien der Mediathek ist hier; wenn sie von einem anderen Rechner kommen, sagt --map VON=NACH, wo sie jetzt sind (die erste ist %1)</translation>
    </message>
    <message numerus="yes">
        <source>none of the library&apos;s files is here; --map &quot;%2=%3&quot; finds %4 of the %1 files that were tried (the first is %5)</source>
        <comment>none of the library&apos;s files is here; --map &quot;%2=%3&quot; finds %4 of the 1 file that were tried (the first is %5)</comment>
        <translation>
            <numerusform>keine der Dateien der Mediathek ist hier; --map &quot;%2=%3&quot; findet %4 von %1 geprüften Datei (die erste ist %5)</numerusform>
            <numerusform>keine der Dateien der Mediathek ist hier; --map &quot;%2=%3&quot; findet %4 von %1 geprüften Dateien (die erste ist %5)</numerusform>
        </translation>
    </message>
    <message>
        <source>warning: the restore of %1 was interrupted, and</source>
        <translation>Warnung: Die Wiederherstellung vom %1 wurde unterbrochen;</translation>
    </message>
    <message>
        <source>warning: the deletion of %1 was interrupted, and</source>
        <translation>Warnung: Das Löschen vom %1 wurde unterbrochen;</translation>
    </message>
    <message>
        <source>%1 can be put back: %2</source>
        <translation>%1 lassen sich zurückholen: %2</translation>
    </message>
    <message>
        <source>nothing of it is left to put back</source>
        <translation>nichts davon lässt sich mehr zurückholen</translation>
    </message>
    <message>
        <source>, or it can be finished (%1): %2</source>
        <translation>, oder es lässt sich abschließen (dann %1): %2</translation>
    </message>
    <message>
        <source>; it can be finished (%1): %2</source>
        <translation>; es lässt sich abschließen (dann %1): %2</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message numerus="yes">
        <source>%1 songs</source>
        <comment>1 song</comment>
        <translation>
            <numerusform>%1 Song</numerusform>
            <numerusform>%1 Songs</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 tracks</source>
        <comment>1 track</comment>
        <translation>
            <numerusform>%1 Titel</numerusform>
            <numerusform>%1 Titel</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 playlists</source>
        <comment>1 playlist</comment>
        <translation>
            <numerusform>%1 Wiedergabeliste</numerusform>
            <numerusform>%1 Wiedergabelisten</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>MarkDialog</name>
    <message numerus="yes">
        <source>replaces %1 marks made by hand</source>
        <comment>replaces 1 mark made by hand</comment>
        <translation>
            <numerusform>ersetzt %1 von Hand gesetzte Markierung</numerusform>
            <numerusform>ersetzt %1 von Hand gesetzte Markierungen</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>MarkReason</name>
    <message>
        <source>none</source>
        <translation>keine</translation>
    </message>
    <message>
        <source>%1 bytes</source>
        <translation>%1 Byte</translation>
    </message>
    <message>
        <source>no difference that the rule can see: %1 against %2</source>
        <translation>kein Unterschied, den die Regel sieht: %1 gegen %2</translation>
    </message>
    <message>
        <source>%1 as the kept copy: %2</source>
        <translation>%1 wie die behaltene Kopie: %2</translation>
    </message>
    <message>
        <source>%1 than the kept copy: %2 against %3</source>
        <translation>%1 als die behaltene Kopie: %2 gegen %3</translation>
    </message>
    <message>
        <source>marked by hand</source>
        <translation>von Hand markiert</translation>
    </message>
    <message>
        <source>unmarked by hand</source>
        <translation>von Hand abgewählt</translation>
    </message>
    <message>
        <source>kept: no copy of its recording would be left</source>
        <translation>behalten: sonst bliebe keine Kopie dieser Aufnahme</translation>
    </message>
    <message>
        <source>lower bit rate</source>
        <translation>niedrigere Bitrate</translation>
    </message>
    <message>
        <source>same bit rate</source>
        <translation>gleiche Bitrate</translation>
    </message>
    <message>
        <source>higher bit rate</source>
        <translation>höhere Bitrate</translation>
    </message>
    <message>
        <source>shorter</source>
        <translation>kürzer</translation>
    </message>
    <message>
        <source>same time</source>
        <translation>gleiche Dauer</translation>
    </message>
    <message>
        <source>longer</source>
        <translation>länger</translation>
    </message>
    <message>
        <source>smaller</source>
        <translation>kleiner</translation>
    </message>
    <message>
        <source>same size</source>
        <translation>gleiche Größe</translation>
    </message>
    <message>
        <source>larger</source>
        <translation>größer</translation>
    </message>
    <message>
        <source>added later</source>
        <translation>später hinzugefügt</translation>
    </message>
    <message>
        <source>same date added</source>
        <translation>gleich hinzugefügt</translation>
    </message>
    <message>
        <source>added earlier</source>
        <translation>früher hinzugefügt</translation>
    </message>
    <message>
        <source>no artwork</source>
        <translation>ohne Cover</translation>
    </message>
    <message>
        <source>another copy with artwork is kept</source>
        <translation>eine andere Kopie mit Cover bleibt</translation>
    </message>
    <message>
        <source>has artwork</source>
        <translation>mit Cover</translation>
    </message>
    <message>
        <source>another copy without artwork is kept</source>
        <translation>eine andere Kopie ohne Cover bleibt</translation>
    </message>
    <message>
        <source>lower rating</source>
        <translation>niedrigere Wertung</translation>
    </message>
    <message>
        <source>same rating</source>
        <translation>gleiche Wertung</translation>
    </message>
    <message>
        <source>higher rating</source>
        <translation>höhere Wertung</translation>
    </message>
    <message>
        <source>played less</source>
        <translation>seltener gespielt</translation>
    </message>
    <message>
        <source>same play count</source>
        <translation>gleich oft gespielt</translation>
    </message>
    <message>
        <source>played more</source>
        <translation>öfter gespielt</translation>
    </message>
    <message>
        <source>of the kind</source>
        <translation>von der Art</translation>
    </message>
    <message>
        <source>another copy is kept</source>
        <translation>eine andere Kopie bleibt</translation>
    </message>
    <message>
        <source>in the folder</source>
        <translation>im Ordner</translation>
    </message>
    <message>
        <source>kept: the rule has nothing against it</source>
        <translation>behalten: die Regel hat nichts dagegen</translation>
    </message>
    <message>
        <source>kept: one copy stays</source>
        <translation>behalten: eine Kopie bleibt</translation>
    </message>
    <message>
        <source>kept: the other copies go by the rule</source>
        <translation>behalten: die anderen Kopien gehen nach der Regel</translation>
    </message>
    <message>
        <source>kept</source>
        <translation>behalten</translation>
    </message>
    <message>
        <source>file missing</source>
        <translation>Datei fehlt</translation>
    </message>
    <message>
        <source>kept: its sound could not be compared</source>
        <translation>behalten: ihr Klang ließ sich nicht vergleichen</translation>
    </message>
    <message>
        <source>kept: perhaps another recording than the copy below</source>
        <translation>behalten: vielleicht eine andere Aufnahme als die Kopie darunter</translation>
    </message>
    <message>
        <source>kept: another recording than the copy below</source>
        <translation>behalten: eine andere Aufnahme als die Kopie darunter</translation>
    </message>
    <message>
        <source>kept: perhaps another recording than the copy above</source>
        <translation>behalten: vielleicht eine andere Aufnahme als die Kopie darüber</translation>
    </message>
    <message>
        <source>kept: another recording than the copy above</source>
        <translation>behalten: eine andere Aufnahme als die Kopie darüber</translation>
    </message>
</context>
<context>
    <name>MarkRule</name>
    <message>
        <source>Highest</source>
        <translation>Höchste</translation>
    </message>
    <message>
        <source>Lowest</source>
        <translation>Niedrigste</translation>
    </message>
    <message>
        <source>Longest</source>
        <translation>Längste</translation>
    </message>
    <message>
        <source>Shortest</source>
        <translation>Kürzeste</translation>
    </message>
    <message>
        <source>Largest</source>
        <translation>Größte</translation>
    </message>
    <message>
        <source>Smallest</source>
        <translation>Kleinste</translation>
    </message>
    <message>
        <source>Earliest</source>
        <translation>Früheste</translation>
    </message>
    <message>
        <source>Latest</source>
        <translation>Späteste</translation>
    </message>
    <message>
        <source>With artwork</source>
        <translation>Mit Cover</translation>
    </message>
    <message>
        <source>Without artwork</source>
        <translation>Ohne Cover</translation>
    </message>
    <message>
        <source>Most played</source>
        <translation>Meistgespielte</translation>
    </message>
    <message>
        <source>Least played</source>
        <translation>Seltenst gespielte</translation>
    </message>
</context>
<context>
    <name>Marks</name>
    <message>
        <source>Mark by rule</source>
        <translation>Nach Regel markieren</translation>
    </message>
    <message>
        <source>Unmark all</source>
        <translation>Alle Markierungen aufheben</translation>
    </message>
    <message>
        <source>Mark all</source>
        <translation>Alle markieren</translation>
    </message>
    <message>
        <source>Mark selected</source>
        <translation>Auswahl markieren</translation>
    </message>
    <message>
        <source>Unmark selected</source>
        <translation>Markierung der Auswahl aufheben</translation>
    </message>
    <message>
        <source>Mark</source>
        <translation>Markieren</translation>
    </message>
    <message>
        <source>Unmark</source>
        <translation>Markierung aufheben</translation>
    </message>
</context>
<context>
    <name>Notices</name>
    <message numerus="yes">
        <source>%1 same</source>
        <comment>1 same</comment>
        <translation>
            <numerusform>%1 gleich</numerusform>
            <numerusform>%1 gleich</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 different</source>
        <comment>1 different</comment>
        <translation>
            <numerusform>%1 anders</numerusform>
            <numerusform>%1 anders</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 unsure</source>
        <comment>1 unsure</comment>
        <translation>
            <numerusform>%1 unsicher</numerusform>
            <numerusform>%1 unsicher</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 not readable</source>
        <comment>1 not readable</comment>
        <translation>
            <numerusform>%1 nicht lesbar</numerusform>
            <numerusform>%1 nicht lesbar</numerusform>
        </translation>
    </message>
    <message>
        <source>The file was not found</source>
        <translation>Die Datei wurde nicht gefunden</translation>
    </message>
    <message>
        <source>None of the %1 files were found</source>
        <translation>Keine der %1 Dateien wurde gefunden</translation>
    </message>
    <message numerus="yes">
        <source>Only %1 of the %2 files were found</source>
        <comment>Only 1 of the %2 files was found</comment>
        <translation>
            <numerusform>Nur %1 der %2 Dateien wurde gefunden</numerusform>
            <numerusform>Nur %1 der %2 Dateien wurden gefunden</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The sound of %1 files was compared</source>
        <comment>The sound of 1 file was compared</comment>
        <translation>
            <numerusform>Der Klang von %1 Datei wurde verglichen</numerusform>
            <numerusform>Der Klang von %1 Dateien wurde verglichen</numerusform>
        </translation>
    </message>
    <message>
        <source>The restore of %1 was interrupted</source>
        <translation>Die Wiederherstellung vom %1 wurde unterbrochen</translation>
    </message>
    <message>
        <source>The deletion of %1 was interrupted</source>
        <translation>Das Löschen vom %1 wurde unterbrochen</translation>
    </message>
    <message>
        <source>%1 can be put back.</source>
        <translation>%1 lassen sich zurückholen.</translation>
    </message>
    <message>
        <source>If you finish it, %1.</source>
        <translation>Wenn Sie es abschließen, %1.</translation>
    </message>
    <message>
        <source>Finishing the deletion</source>
        <translation>Das Löschen wird abgeschlossen</translation>
    </message>
    <message>
        <source>The deletion could not be finished</source>
        <translation>Das Löschen ließ sich nicht abschließen</translation>
    </message>
    <message>
        <source>No duplicates found</source>
        <translation>Keine Duplikate gefunden</translation>
    </message>
    <message>
        <source>If they came from another machine, tell where they are now.</source>
        <translation>Wenn sie von einem anderen Rechner kommen, geben Sie an, wo sie jetzt sind.</translation>
    </message>
    <message numerus="yes">
        <source>%1 tracks were searched.</source>
        <comment>1 track was searched.</comment>
        <translation>
            <numerusform>%1 Titel wurde durchsucht.</numerusform>
            <numerusform>%1 Titel wurden durchsucht.</numerusform>
        </translation>
    </message>
    <message>
        <source>Nothing of it is left to put back.</source>
        <translation>Davon lässt sich nichts mehr zurückholen.</translation>
    </message>
</context>
<context>
    <name>OutcomeReport</name>
    <message>
        <source>Would delete %1 of %2 tracks</source>
        <translation>Würde %1 von %2 Titeln löschen</translation>
    </message>
    <message>
        <source>Deleted %1 of %2 tracks</source>
        <translation>%1 von %2 Titeln gelöscht</translation>
    </message>
    <message>
        <source>and move files of %1 to the Trash</source>
        <translation>und die Dateien von %1 in den Papierkorb legen</translation>
    </message>
    <message>
        <source>files of %1 in the Trash</source>
        <translation>Dateien von %1 im Papierkorb</translation>
    </message>
    <message>
        <source>%1 could not be dealt with as asked</source>
        <translation>%1 ließen sich nicht wie gewünscht behandeln</translation>
    </message>
    <message>
        <source>%1 not dealt with as asked</source>
        <translation>%1 nicht wie gewünscht behandelt</translation>
    </message>
    <message>
        <source>Note: %1</source>
        <translation>Hinweis: %1</translation>
    </message>
    <message>
        <source>Backup: %1</source>
        <translation>Sicherung: %1</translation>
    </message>
    <message>
        <source>Record: %1</source>
        <translation>Protokoll: %1</translation>
    </message>
</context>
<context>
    <name>Progress</name>
    <message>
        <source>%L1 of %L2</source>
        <translation>%L1 von %L2</translation>
    </message>
</context>
<context>
    <name>RestoreCommand</name>
    <message>
        <source>there is no clean-up &apos;%1&apos;; restore --list shows those that are there</source>
        <translation>es gibt keine Bereinigung „%1“; restore --list zeigt die vorhandenen</translation>
    </message>
    <message>
        <source>there is no clean-up that could be restored; --list shows all</source>
        <translation>es gibt keine Bereinigung, die sich wiederherstellen ließe; --list zeigt alle</translation>
    </message>
</context>
<context>
    <name>RestoreDialog</name>
    <message>
        <source>Nothing was deleted from this library by Songsweep, or the records of it are no longer beside the library.</source>
        <translation>Songsweep hat aus dieser Mediathek nichts gelöscht, oder die Protokolle davon liegen nicht mehr neben ihr.</translation>
    </message>
    <message>
        <source>The deletions cannot be listed: %1.</source>
        <translation>Die Löschvorgänge lassen sich nicht auflisten: %1.</translation>
    </message>
    <message>
        <source>Nothing can be restored: %1.</source>
        <translation>Es lässt sich nichts wiederherstellen: %1.</translation>
    </message>
</context>
<context>
    <name>RestoreOutput</name>
    <message>
        <source>Track %1 by %2 (%3) would be restored</source>
        <translation>Titel %1 von %2 (%3) würde wiederhergestellt</translation>
    </message>
    <message>
        <source>Track %1 by %2 (%3) was restored</source>
        <translation>Titel %1 von %2 (%3) wurde wiederhergestellt</translation>
    </message>
    <message>
        <source>Track %1 by %2 (%3) is in the library already</source>
        <translation>Titel %1 von %2 (%3) ist schon in der Mediathek</translation>
    </message>
    <message>
        <source>Track %1 by %2 (%3) cannot be restored</source>
        <translation>Titel %1 von %2 (%3) lässt sich nicht wiederherstellen</translation>
    </message>
    <message>
        <source>Track %1 by %2 (%3) is left out</source>
        <translation>Titel %1 von %2 (%3) wird ausgelassen</translation>
    </message>
    <message>
        <source>Track %1 by %2 (%3) was not attempted</source>
        <translation>Titel %1 von %2 (%3) wurde nicht versucht</translation>
    </message>
    <message>
        <source>its file would be put back</source>
        <translation>seine Datei würde zurückgelegt</translation>
    </message>
    <message>
        <source>its file was put back</source>
        <translation>seine Datei wurde zurückgelegt</translation>
    </message>
    <message>
        <source>its file is there already</source>
        <translation>seine Datei ist schon da</translation>
    </message>
    <message>
        <source>its file was not attempted</source>
        <translation>seine Datei wurde nicht versucht</translation>
    </message>
    <message numerus="yes">
        <source>Would restore %2 of %1 tracks of &quot;%3&quot;</source>
        <comment>Would restore %2 of 1 track of &quot;%3&quot;</comment>
        <translation>
            <numerusform>Würde %2 von %1 Titel aus „%3“ wiederherstellen</numerusform>
            <numerusform>Würde %2 von %1 Titeln aus „%3“ wiederherstellen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Restored %2 of %1 tracks of &quot;%3&quot;</source>
        <comment>Restored %2 of 1 track of &quot;%3&quot;</comment>
        <translation>
            <numerusform>%2 von %1 Titel aus „%3“ wiederhergestellt</numerusform>
            <numerusform>%2 von %1 Titeln aus „%3“ wiederhergestellt</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 files put back</source>
        <comment>1 file put back</comment>
        <translation>
            <numerusform>%1 Datei zurückgelegt</numerusform>
            <numerusform>%1 Dateien zurückgelegt</numerusform>
        </translation>
    </message>
    <message>
        <source>The library as it was before: %1</source>
        <translation>Die Mediathek, wie sie vorher war: %1</translation>
    </message>
    <message>
        <source>What was done: %1</source>
        <translation>Was getan wurde: %1</translation>
    </message>
    <message numerus="yes">
        <source>%1 tracks not dealt with as asked</source>
        <comment>1 track not dealt with as asked</comment>
        <translation>
            <numerusform>%1 Titel nicht wie gewünscht behandelt</numerusform>
            <numerusform>%1 Titel nicht wie gewünscht behandelt</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 playlist files as they were</source>
        <comment>1 playlist file as it was</comment>
        <translation>
            <numerusform>%1 Wiedergabelistendatei wie zuvor</numerusform>
            <numerusform>%1 Wiedergabelistendateien wie zuvor</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>RestoreTexts</name>
    <message numerus="yes">
        <source>%1 tracks cannot come back.</source>
        <comment>1 track cannot come back.</comment>
        <translation>
            <numerusform>%1 Titel kann nicht zurückkommen.</numerusform>
            <numerusform>%1 Titel können nicht zurückkommen.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 tracks are left out, since their files are lost.</source>
        <comment>1 track is left out, since its file is lost.</comment>
        <translation>
            <numerusform>%1 Titel wird ausgelassen, da seine Datei verloren ist.</numerusform>
            <numerusform>%1 Titel werden ausgelassen, da ihre Dateien verloren sind.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 files are no longer in the Trash; their tracks are missing them.</source>
        <comment>1 file is no longer in the Trash; its track is missing it.</comment>
        <translation>
            <numerusform>%1 Datei ist nicht mehr im Papierkorb; sie fehlt ihrem Titel.</numerusform>
            <numerusform>%1 Dateien sind nicht mehr im Papierkorb; sie fehlen ihren Titeln.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 files stay in the Trash, since other files have their places.</source>
        <comment>1 file stays in the Trash, since another file has its place.</comment>
        <translation>
            <numerusform>%1 Datei bleibt im Papierkorb, da eine andere an ihrem Platz liegt.</numerusform>
            <numerusform>%1 Dateien bleiben im Papierkorb, da andere an ihren Plätzen liegen.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 files stay in the Trash.</source>
        <comment>1 file stays in the Trash.</comment>
        <translation>
            <numerusform>%1 Datei bleibt im Papierkorb.</numerusform>
            <numerusform>%1 Dateien bleiben im Papierkorb.</numerusform>
        </translation>
    </message>
    <message>
        <source>Restored</source>
        <translation>Wiederhergestellt</translation>
    </message>
    <message>
        <source>Backup missing</source>
        <translation>Sicherung fehlt</translation>
    </message>
    <message>
        <source>Interrupted</source>
        <translation>Unterbrochen</translation>
    </message>
    <message>
        <source>Cancelled</source>
        <translation>Abgebrochen</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Fehlgeschlagen</translation>
    </message>
    <message>
        <source>track restored</source>
        <translation>Titel wiederhergestellt</translation>
    </message>
    <message>
        <source>track there already</source>
        <translation>Titel schon da</translation>
    </message>
    <message>
        <source>track not restored</source>
        <translation>Titel nicht wiederhergestellt</translation>
    </message>
    <message>
        <source>track not attempted</source>
        <translation>Titel nicht versucht</translation>
    </message>
    <message>
        <source>track left out</source>
        <translation>Titel ausgelassen</translation>
    </message>
    <message>
        <source>file put back</source>
        <translation>Datei zurückgelegt</translation>
    </message>
    <message>
        <source>file there already</source>
        <translation>Datei schon da</translation>
    </message>
    <message>
        <source>file lost</source>
        <translation>Datei verloren</translation>
    </message>
    <message>
        <source>file in the Trash</source>
        <translation>Datei im Papierkorb</translation>
    </message>
    <message>
        <source>file not attempted</source>
        <translation>Datei nicht versucht</translation>
    </message>
    <message numerus="yes">
        <source>%1 tracks come back to the library and their playlists.</source>
        <comment>1 track comes back to the library and its playlists.</comment>
        <translation>
            <numerusform>%1 Titel kommt in die Mediathek und seine Wiedergabelisten zurück.</numerusform>
            <numerusform>%1 Titel kommen in die Mediathek und ihre Wiedergabelisten zurück.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 files (%2) come back from the Trash.</source>
        <comment>1 file (%2) comes back from the Trash.</comment>
        <translation>
            <numerusform>%1 Datei (%2) kommt aus dem Papierkorb zurück.</numerusform>
            <numerusform>%1 Dateien (%2) kommen aus dem Papierkorb zurück.</numerusform>
        </translation>
    </message>
    <message>
        <source>All of it is there already.</source>
        <translation>Es ist schon alles da.</translation>
    </message>
    <message>
        <source>The restore did not come to its end: %1.</source>
        <translation>Die Wiederherstellung kam nicht zum Ende: %1.</translation>
    </message>
    <message>
        <source>The restore was stopped; restore again to bring back the rest.</source>
        <translation>Die Wiederherstellung wurde angehalten; stellen Sie erneut wieder her, um den Rest zurückzuholen.</translation>
    </message>
    <message numerus="yes">
        <source>%1 tracks are back in the library.</source>
        <comment>1 track is back in the library.</comment>
        <translation>
            <numerusform>%1 Titel ist wieder in der Mediathek.</numerusform>
            <numerusform>%1 Titel sind wieder in der Mediathek.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 files (%2) are back in their places.</source>
        <comment>1 file (%2) is back in its place.</comment>
        <translation>
            <numerusform>%1 Datei (%2) ist wieder an ihrem Platz.</numerusform>
            <numerusform>%1 Dateien (%2) sind wieder an ihren Plätzen.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 tracks restored</source>
        <comment>1 track restored</comment>
        <translation>
            <numerusform>%1 Titel wiederhergestellt</numerusform>
            <numerusform>%1 Titel wiederhergestellt</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 files (%2) put back.</source>
        <comment>1 file (%2) put back.</comment>
        <translation>
            <numerusform>%1 Datei (%2) zurückgelegt.</numerusform>
            <numerusform>%1 Dateien (%2) zurückgelegt.</numerusform>
        </translation>
    </message>
    <message>
        <source>A new search shows it.</source>
        <translation>Eine neue Suche zeigt ihn.</translation>
    </message>
    <message>
        <source>A new search shows them.</source>
        <translation>Eine neue Suche zeigt sie.</translation>
    </message>
    <message numerus="yes">
        <source>%1 tracks are not as before.</source>
        <comment>1 track is not as before.</comment>
        <translation>
            <numerusform>%1 Titel ist nicht wie zuvor.</numerusform>
            <numerusform>%1 Titel sind nicht wie zuvor.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 playlist files get their lines back.</source>
        <comment>1 playlist file gets its lines back.</comment>
        <translation>
            <numerusform>%1 Wiedergabelistendatei bekommt ihre Zeilen zurück.</numerusform>
            <numerusform>%1 Wiedergabelistendateien bekommen ihre Zeilen zurück.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 playlist files have their lines back.</source>
        <comment>1 playlist file has its lines back.</comment>
        <translation>
            <numerusform>%1 Wiedergabelistendatei hat ihre Zeilen wieder.</numerusform>
            <numerusform>%1 Wiedergabelistendateien haben ihre Zeilen wieder.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ScanCommand</name>
    <message>
        <source>%1; --verbose tells which, and why</source>
        <translation>%1; --verbose sagt, welche und warum</translation>
    </message>
    <message numerus="yes">
        <source>%1 tracks</source>
        <comment>1 track</comment>
        <translation>
            <numerusform>%1 Titel</numerusform>
            <numerusform>%1 Titel</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 new</source>
        <comment>1 new</comment>
        <translation>
            <numerusform>%1 neu</numerusform>
            <numerusform>%1 neu</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 changed</source>
        <comment>1 changed</comment>
        <translation>
            <numerusform>%1 geändert</numerusform>
            <numerusform>%1 geändert</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 moved</source>
        <comment>1 moved</comment>
        <translation>
            <numerusform>%1 verschoben</numerusform>
            <numerusform>%1 verschoben</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 gone</source>
        <comment>1 gone</comment>
        <translation>
            <numerusform>%1 verschwunden</numerusform>
            <numerusform>%1 verschwunden</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ScanProgress</name>
    <message>
        <source>less than a minute left</source>
        <translation>noch weniger als eine Minute</translation>
    </message>
    <message>
        <source>Reading %1 of %2 file…</source>
        <translation>Datei %1 von %2 wird gelesen…</translation>
    </message>
    <message>
        <source>Reading %1 of %2 files…</source>
        <translation>Datei %1 von %2 wird gelesen…</translation>
    </message>
    <message numerus="yes">
        <source>%1 files could not be read</source>
        <comment>1 file could not be read</comment>
        <translation>
            <numerusform>%1 Datei war nicht lesbar</numerusform>
            <numerusform>%1 Dateien waren nicht lesbar</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>about %1 minutes left</source>
        <comment>about 1 minute left</comment>
        <translation>
            <numerusform>noch etwa %1 Minute</numerusform>
            <numerusform>noch etwa %1 Minuten</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>about %1 hours left</source>
        <comment>about 1 hour left</comment>
        <translation>
            <numerusform>noch etwa %1 Stunde</numerusform>
            <numerusform>noch etwa %1 Stunden</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Search</name>
    <message>
        <source>Can&apos;t access %1. If there is a dialog window (eg. update notification, song info, preferences) showing on %1, please close it first.</source>
        <translation>%1 ist nicht erreichbar. Wenn in %1 ein Dialogfenster offen ist (etwa ein Hinweis auf ein Update, Titelinformationen oder Einstellungen), schließen Sie es bitte zuerst.</translation>
    </message>
    <message>
        <source>the whole library was searched, not “%1”</source>
        <translation>die ganze Mediathek wurde durchsucht, nicht „%1“</translation>
    </message>
    <message>
        <source>Searching...</source>
        <translation>Suche läuft...</translation>
    </message>
    <message>
        <source>Processing...</source>
        <translation>Wird verarbeitet...</translation>
    </message>
    <message>
        <source>Checking missing tracks...</source>
        <translation>Fehlende Titel werden geprüft...</translation>
    </message>
</context>
<context>
    <name>SearchReport</name>
    <message>
        <source>%1 in %2</source>
        <translation>%1 in %2</translation>
    </message>
    <message numerus="yes">
        <source>%1 songs</source>
        <comment>1 song</comment>
        <translation>
            <numerusform>%1 Song</numerusform>
            <numerusform>%1 Songs</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 groups</source>
        <comment>1 group</comment>
        <translation>
            <numerusform>%1 Gruppe</numerusform>
            <numerusform>%1 Gruppen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 files missing</source>
        <comment>1 file missing</comment>
        <translation>
            <numerusform>%1 Datei fehlt</numerusform>
            <numerusform>%1 Dateien fehlen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 marked</source>
        <comment>1 marked</comment>
        <translation>
            <numerusform>%1 markiert</numerusform>
            <numerusform>%1 markiert</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>SearchSummary</name>
    <message>
        <source>name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>artist</source>
        <translation>Interpret</translation>
    </message>
    <message>
        <source>album</source>
        <translation>Album</translation>
    </message>
    <message>
        <source>time</source>
        <translation>Dauer</translation>
    </message>
    <message>
        <source>Whole library, not “%1”</source>
        <translation>Ganze Mediathek, nicht „%1“</translation>
    </message>
    <message>
        <source>everything</source>
        <translation>alle Titel</translation>
    </message>
    <message>
        <source>same %1, with small differences</source>
        <translation>gleich bis auf kleine Unterschiede: %1</translation>
    </message>
    <message>
        <source>same %1</source>
        <translation>gleich: %1</translation>
    </message>
</context>
<context>
    <name>SearchVerdict</name>
    <message>
        <source>%1 of %2 tracks were searched: %3</source>
        <translation>%1 von %2 Titeln wurden durchsucht: %3</translation>
    </message>
    <message>
        <source>the library file has no playlist to choose</source>
        <translation>die Mediatheksdatei hat keine Wiedergabeliste zur Auswahl</translation>
    </message>
    <message>
        <source>the library has no name by which it is found in its file</source>
        <translation>die Mediathek hat keinen Namen, unter dem sie in ihrer Datei zu finden ist</translation>
    </message>
    <message>
        <source>the library file has no playlist named “%1”</source>
        <translation>die Mediatheksdatei hat keine Wiedergabeliste namens „%1“</translation>
    </message>
    <message>
        <source>the library lists none</source>
        <translation>die Mediathek führt keinen auf</translation>
    </message>
    <message>
        <source>none that the library lists is a file to be searched</source>
        <translation>keiner, den die Mediathek aufführt, ist eine durchsuchbare Datei</translation>
    </message>
    <message>
        <source>the playlist “%1” lists none</source>
        <translation>die Wiedergabeliste „%1“ führt keinen auf</translation>
    </message>
    <message>
        <source>none that the playlist “%1” lists is a file to be searched</source>
        <translation>keiner, den die Wiedergabeliste „%1“ aufführt, ist eine durchsuchbare Datei</translation>
    </message>
    <message>
        <source>the search broke off: %1</source>
        <translation>die Suche brach ab: %1</translation>
    </message>
    <message>
        <source>the first playlist named “%1” in the library file is not the library</source>
        <translation>die erste Wiedergabeliste namens „%1“ in der Mediatheksdatei ist nicht die Mediathek</translation>
    </message>
    <message numerus="yes">
        <source>the library&apos;s own playlist leaves out %1 tracks</source>
        <comment>the library&apos;s own playlist leaves out 1 track</comment>
        <translation>
            <numerusform>die eigene Wiedergabeliste der Mediathek lässt %1 Titel aus</numerusform>
            <numerusform>die eigene Wiedergabeliste der Mediathek lässt %1 Titel aus</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 tracks could not be read: %2</source>
        <comment>1 track could not be read: %2</comment>
        <translation>
            <numerusform>%1 Titel war nicht lesbar: %2</numerusform>
            <numerusform>%1 Titel waren nicht lesbar: %2</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>SmallDifference</name>
    <message>
        <source>name differs: %1</source>
        <translation>anderer Name: %1</translation>
    </message>
    <message>
        <source>artist differs: %1</source>
        <translation>anderer Interpret: %1</translation>
    </message>
    <message>
        <source>album differs: %1</source>
        <translation>anderes Album: %1</translation>
    </message>
    <message>
        <source>without %1</source>
        <translation>ohne %1</translation>
    </message>
    <message>
        <source>%1, not %2</source>
        <translation>%1, nicht %2</translation>
    </message>
    <message>
        <source>%1 s longer</source>
        <translation>%1 s länger</translation>
    </message>
    <message>
        <source>%1 s shorter</source>
        <translation>%1 s kürzer</translation>
    </message>
</context>
<context>
    <name>SoundActions</name>
    <message>
        <source>Comparing sounds...</source>
        <translation>Klang wird verglichen...</translation>
    </message>
</context>
<context>
    <name>SoundDialog</name>
    <message numerus="yes">
        <source>%1 copies</source>
        <comment>1 copy</comment>
        <translation>
            <numerusform>%1 Kopie</numerusform>
            <numerusform>%1 Kopien</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>SoundOption</name>
    <message>
        <source>Comparing sounds</source>
        <translation>Klang wird verglichen</translation>
    </message>
    <message>
        <source>sounds cannot be compared: there is no %1</source>
        <translation>Klang lässt sich nicht vergleichen: es gibt kein %1</translation>
    </message>
</context>
<context>
    <name>Status</name>
    <message numerus="yes">
        <source>%1 songs</source>
        <comment>%1 songs</comment>
        <translation>
            <numerusform>%1 Song</numerusform>
            <numerusform>%1 Songs</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%2 of %1 marked</source>
        <comment>%2 of %1 marked</comment>
        <translation>
            <numerusform>%2 von %1 markiert</numerusform>
            <numerusform>%2 von %1 markiert</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Table</name>
    <message>
        <source>missing</source>
        <translation>fehlt</translation>
    </message>
    <message>
        <source>Marked</source>
        <translation>Markiert</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Datei</translation>
    </message>
    <message>
        <source>Differences</source>
        <translation>Unterschiede</translation>
    </message>
    <message>
        <source>Reason</source>
        <translation>Grund</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>Gruppe</translation>
    </message>
    <message>
        <source>Differs</source>
        <translation>Unterschied</translation>
    </message>
    <message>
        <source>Sound</source>
        <translation>Klang</translation>
    </message>
    <message>
        <source>Mark</source>
        <translation>Marke</translation>
    </message>
</context>
<context>
    <name>TimeLeft</name>
    <message numerus="yes">
        <source>about %1 minutes left</source>
        <comment>about 1 minute left</comment>
        <translation>
            <numerusform>noch etwa %1 Minute</numerusform>
            <numerusform>noch etwa %1 Minuten</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>about %1 seconds left</source>
        <comment>about 1 second left</comment>
        <translation>
            <numerusform>noch etwa %1 Sekunde</numerusform>
            <numerusform>noch etwa %1 Sekunden</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>songsweep::AboutDialog</name>
    <message>
        <source>About Songsweep</source>
        <translation>Über Songsweep</translation>
    </message>
    <message>
        <source>Icon of Songsweep</source>
        <translation>Symbol von Songsweep</translation>
    </message>
    <message>
        <source>Songsweep</source>
        <translation>Songsweep</translation>
    </message>
    <message>
        <source>Finds the songs you have twice.</source>
        <translation>Findet die Songs, die Sie doppelt haben.</translation>
    </message>
    <message>
        <source>&amp;Website</source>
        <translation>&amp;Website</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Hilfe</translation>
    </message>
    <message>
        <source>&amp;Contact</source>
        <translation>&amp;Kontakt</translation>
    </message>
</context>
<context>
    <name>songsweep::CopiesPanelView</name>
    <message>
        <source>Copies of the song</source>
        <translation>Kopien des Songs</translation>
    </message>
    <message>
        <source>Marked</source>
        <translation>Markiert</translation>
    </message>
    <message>
        <source>Difference</source>
        <translation>Unterschied</translation>
    </message>
    <message>
        <source>Sound</source>
        <translation>Klang</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Ordner</translation>
    </message>
    <message>
        <source>Playlists</source>
        <translation>Wiedergabelisten</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>Bild</translation>
    </message>
</context>
<context>
    <name>songsweep::DeleteConfirmation</name>
    <message>
        <source>Delete tracks</source>
        <translation>Titel löschen</translation>
    </message>
    <message>
        <source>Delete 3 tracks from iTunes?</source>
        <translation>3 Titel aus iTunes löschen?</translation>
    </message>
    <message>
        <source>They also leave every playlist. iTunes cannot undo this.</source>
        <translation>Sie verschwinden auch aus jeder Wiedergabeliste. iTunes kann das nicht rückgängig machen.</translation>
    </message>
    <message>
        <source>Move their &amp;files to the Trash too</source>
        <translation>Auch ihre &amp;Dateien in den Papierkorb legen</translation>
    </message>
    <message>
        <source>&amp;Options</source>
        <translation>&amp;Optionen</translation>
    </message>
    <message>
        <source>Trash &amp;shared files too</source>
        <translation>Auch &amp;gemeinsam genutzte Dateien</translation>
    </message>
    <message>
        <source>No copy of 2 songs will be left.</source>
        <translation>Von 2 Songs bleibt keine Kopie übrig.</translation>
    </message>
    <message>
        <source>Sho&amp;w them</source>
        <translation>&amp;Zeigen</translation>
    </message>
    <message>
        <source>Show the songs of which no copy will be left</source>
        <translation>Die Songs zeigen, von denen keine Kopie übrig bleibt</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>A&amp;bbrechen</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Löschen</translation>
    </message>
    <message>
        <source>Keep their &amp;places in playlists</source>
        <translation>Ihre &amp;Plätze in Wiedergabelisten behalten</translation>
    </message>
    <message>
        <source>&amp;Add their plays and ratings to the copy that stays</source>
        <translation>&amp;Wiedergaben und Wertungen der bleibenden Kopie hinzufügen</translation>
    </message>
    <message>
        <source>Fill &amp;in what the copy that stays lacks</source>
        <translation>&amp;Ergänzen, was der bleibenden Kopie fehlt</translation>
    </message>
</context>
<context>
    <name>songsweep::DetailsDialog</name>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Schließen</translation>
    </message>
    <message>
        <source>Co&amp;py</source>
        <translation>&amp;Kopieren</translation>
    </message>
</context>
<context>
    <name>songsweep::MainWindow</name>
    <message>
        <source>Songsweep</source>
        <translation>Songsweep</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Suchen</translation>
    </message>
    <message>
        <source>Find duplicates</source>
        <translation>Duplikate finden</translation>
    </message>
    <message>
        <source>Mark</source>
        <translation>Markieren</translation>
    </message>
    <message>
        <source>Mark copies by a rule</source>
        <translation>Kopien nach einer Regel markieren</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>Delete the marked tracks</source>
        <translation>Die markierten Titel löschen</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filtern</translation>
    </message>
    <message>
        <source>Duplicate tracks</source>
        <translation>Doppelte Titel</translation>
    </message>
    <message>
        <source>Search progress</source>
        <translation>Fortschritt der Suche</translation>
    </message>
    <message>
        <source>Cancel search</source>
        <translation>Suche abbrechen</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Datei</translation>
    </message>
    <message>
        <source>Open &amp;recent</source>
        <translation>Zuletzt &amp;verwendet</translation>
    </message>
    <message>
        <source>&amp;Mark</source>
        <translation>&amp;Markieren</translation>
    </message>
    <message>
        <source>&amp;Track</source>
        <translation>&amp;Titel</translation>
    </message>
    <message>
        <source>S&amp;ort by</source>
        <translation>S&amp;ortieren nach</translation>
    </message>
    <message>
        <source>&amp;Window</source>
        <translation>&amp;Fenster</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Hilfe</translation>
    </message>
    <message>
        <source>&amp;Open library...</source>
        <translation>Mediathek &amp;öffnen...</translation>
    </message>
    <message>
        <source>Choose &amp;music folder...</source>
        <translation>&amp;Musikordner wählen...</translation>
    </message>
    <message>
        <source>&amp;Search...</source>
        <translation>&amp;Suchen...</translation>
    </message>
    <message>
        <source>&amp;Delete marked tracks...</source>
        <translation>Markierte Titel &amp;löschen...</translation>
    </message>
    <message>
        <source>&amp;Restore deleted tracks...</source>
        <translation>Gelöschte Titel &amp;wiederherstellen...</translation>
    </message>
    <message>
        <source>&amp;Close window</source>
        <translation>Fenster s&amp;chließen</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Beenden</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Rückgängig</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Wiederholen</translation>
    </message>
    <message>
        <source>Mark by &amp;rule...</source>
        <translation>&amp;Nach Regel markieren...</translation>
    </message>
    <message>
        <source>Compare &amp;sound…</source>
        <translation>&amp;Klang vergleichen…</translation>
    </message>
    <message>
        <source>&amp;Mark selected</source>
        <translation>Auswahl &amp;markieren</translation>
    </message>
    <message>
        <source>&amp;Unmark selected</source>
        <translation>Markierung der Auswahl a&amp;ufheben</translation>
    </message>
    <message>
        <source>Mark &amp;all</source>
        <translation>&amp;Alle markieren</translation>
    </message>
    <message>
        <source>U&amp;nmark all</source>
        <translation>Alle Markierungen auf&amp;heben</translation>
    </message>
    <message>
        <source>&amp;Play</source>
        <translation>&amp;Abspielen</translation>
    </message>
    <message>
        <source>&amp;Show in file manager</source>
        <translation>&amp;Im Dateimanager zeigen</translation>
    </message>
    <message>
        <source>&amp;Filter</source>
        <translation>&amp;Filtern</translation>
    </message>
    <message>
        <source>&amp;Details</source>
        <translation>&amp;Details</translation>
    </message>
    <message>
        <source>&amp;Copy rows</source>
        <translation>&amp;Zeilen kopieren</translation>
    </message>
    <message>
        <source>&amp;Songsweep</source>
        <translation>&amp;Songsweep</translation>
    </message>
    <message>
        <source>Songsweep &amp;help</source>
        <translation>Songsweep-&amp;Hilfe</translation>
    </message>
    <message>
        <source>&amp;Export...</source>
        <translation>&amp;Exportieren...</translation>
    </message>
    <message>
        <source>&amp;User guide</source>
        <translation>Hand&amp;buch</translation>
    </message>
    <message>
        <source>&amp;Keyboard</source>
        <translation>&amp;Tastatur</translation>
    </message>
    <message>
        <source>&amp;Website</source>
        <translation>&amp;Website</translation>
    </message>
    <message>
        <source>&amp;Contact</source>
        <translation>&amp;Kontakt</translation>
    </message>
    <message>
        <source>&amp;About Songsweep</source>
        <translation>&amp;Über Songsweep</translation>
    </message>
    <message>
        <source>%L1 copies of %2</source>
        <translation>%L1 Kopien von %2</translation>
    </message>
    <message>
        <source>%L1 marked, %2</source>
        <translation>%L1 markiert, %2</translation>
    </message>
    <message>
        <source>%L1 of %L2 shown</source>
        <translation>%L1 von %L2 angezeigt</translation>
    </message>
    <message>
        <source>%1 “%2”</source>
        <translation>%1 „%2“</translation>
    </message>
    <message>
        <source>What is shown</source>
        <translation>Was angezeigt wird</translation>
    </message>
    <message>
        <source>%1 in %2</source>
        <translation>%1 in %2</translation>
    </message>
    <message>
        <source>%1, %2, saved %3</source>
        <translation>%1, %2, gesichert %3</translation>
    </message>
    <message>
        <source>Looked in %1</source>
        <translation>Gesucht in %1</translation>
    </message>
    <message>
        <source>Find the songs you have twice</source>
        <translation>Songs finden, die Sie doppelt haben</translation>
    </message>
    <message>
        <source>Nothing is deleted until you say so.</source>
        <translation>Ohne Ihre Bestätigung wird nichts gelöscht.</translation>
    </message>
    <message>
        <source>No iTunes library was found</source>
        <translation>Es wurde keine iTunes-Mediathek gefunden</translation>
    </message>
    <message>
        <source>Open its XML file, or drop it here.</source>
        <translation>Öffnen Sie ihre XML-Datei, oder legen Sie sie hier ab.</translation>
    </message>
    <message>
        <source>Reading the library...</source>
        <translation>Die Mediathek wird gelesen...</translation>
    </message>
    <message>
        <source>The library can&apos;t be read</source>
        <translation>Die Mediathek ist nicht lesbar</translation>
    </message>
    <message>
        <source>Songsweep reads your iTunes library and shows its duplicates in groups.</source>
        <translation>Songsweep liest Ihre iTunes-Mediathek und zeigt ihre Duplikate in Gruppen.</translation>
    </message>
    <message>
        <source>Choose m&amp;usic folder...</source>
        <translation>M&amp;usikordner wählen...</translation>
    </message>
    <message>
        <source>Open library</source>
        <translation>Mediathek öffnen</translation>
    </message>
    <message>
        <source>iTunes libraries (*.xml)</source>
        <translation>iTunes-Mediatheken (*.xml)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Alle Dateien (*)</translation>
    </message>
    <message>
        <source>Choose music folder</source>
        <translation>Musikordner wählen</translation>
    </message>
    <message>
        <source>Choose the music folder</source>
        <translation>Musikordner wählen</translation>
    </message>
    <message>
        <source>Export results</source>
        <translation>Ergebnisse exportieren</translation>
    </message>
    <message>
        <source>Table (*.csv)</source>
        <translation>Tabelle (*.csv)</translation>
    </message>
    <message>
        <source>JSON (*.json)</source>
        <translation>JSON (*.json)</translation>
    </message>
    <message>
        <source>Web page (*.html)</source>
        <translation>Webseite (*.html)</translation>
    </message>
    <message>
        <source>Duplicates.csv</source>
        <translation>Duplikate.csv</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Details</translation>
    </message>
    <message>
        <source>Show backup</source>
        <translation>Sicherung zeigen</translation>
    </message>
    <message>
        <source>Finish</source>
        <translation>Abschließen</translation>
    </message>
    <message>
        <source>Restore...</source>
        <translation>Wiederherstellen...</translation>
    </message>
    <message>
        <source>Choose the music folder...</source>
        <translation>Musikordner wählen...</translation>
    </message>
    <message>
        <source>Search with fewer fields...</source>
        <translation>Mit weniger Feldern suchen...</translation>
    </message>
    <message>
        <source>Show in Finder</source>
        <translation>Im Finder zeigen</translation>
    </message>
    <message>
        <source>Without iTunes Songsweep edits the library file; iTunes elsewhere keeps a database of its own.</source>
        <translation>Ohne iTunes bearbeitet Songsweep die Mediatheksdatei; iTunes auf anderen Rechnern hat eine eigene Datenbank.</translation>
    </message>
    <message>
        <source>Show in Trash</source>
        <translation>Im Papierkorb zeigen</translation>
    </message>
</context>
<context>
    <name>songsweep::MarkDialog</name>
    <message>
        <source>Mark copies</source>
        <translation>Kopien markieren</translation>
    </message>
    <message>
        <source>Keep in each group</source>
        <translation>In jeder Gruppe behalten</translation>
    </message>
    <message>
        <source>&amp;Bit rate</source>
        <translation>&amp;Bitrate</translation>
    </message>
    <message>
        <source>Keep by bit rate</source>
        <translation>Nach Bitrate behalten</translation>
    </message>
    <message>
        <source>Bit rate to keep</source>
        <translation>Bitrate, die bleibt</translation>
    </message>
    <message>
        <source>&amp;Time</source>
        <translation>&amp;Dauer</translation>
    </message>
    <message>
        <source>Keep by time</source>
        <translation>Nach Dauer behalten</translation>
    </message>
    <message>
        <source>Time to keep</source>
        <translation>Dauer, die bleibt</translation>
    </message>
    <message>
        <source>&amp;Size</source>
        <translation>&amp;Größe</translation>
    </message>
    <message>
        <source>Keep by size</source>
        <translation>Nach Größe behalten</translation>
    </message>
    <message>
        <source>Size to keep</source>
        <translation>Größe, die bleibt</translation>
    </message>
    <message>
        <source>&amp;Rating</source>
        <translation>&amp;Wertung</translation>
    </message>
    <message>
        <source>Keep by rating</source>
        <translation>Nach Wertung behalten</translation>
    </message>
    <message>
        <source>Rating to keep</source>
        <translation>Wertung, die bleibt</translation>
    </message>
    <message>
        <source>&amp;Play count</source>
        <translation>W&amp;iedergaben</translation>
    </message>
    <message>
        <source>Keep by play count</source>
        <translation>Nach Wiedergaben behalten</translation>
    </message>
    <message>
        <source>Play count to keep</source>
        <translation>Wiedergaben, die bleiben</translation>
    </message>
    <message>
        <source>Date &amp;added</source>
        <translation>&amp;Hinzugefügt</translation>
    </message>
    <message>
        <source>Keep by date added</source>
        <translation>Nach Hinzufügedatum behalten</translation>
    </message>
    <message>
        <source>Date added to keep</source>
        <translation>Hinzufügedatum, das bleibt</translation>
    </message>
    <message>
        <source>Art&amp;work</source>
        <translation>&amp;Cover</translation>
    </message>
    <message>
        <source>Keep by artwork</source>
        <translation>Nach Cover behalten</translation>
    </message>
    <message>
        <source>Artwork to keep</source>
        <translation>Cover, das bleibt</translation>
    </message>
    <message>
        <source>Or mark the copies</source>
        <translation>Oder die Kopien markieren</translation>
    </message>
    <message>
        <source>Of &amp;kind</source>
        <translation>Der A&amp;rt</translation>
    </message>
    <message>
        <source>Mark the copies of a kind</source>
        <translation>Die Kopien einer Art markieren</translation>
    </message>
    <message>
        <source>Kind to mark</source>
        <translation>Art, die markiert wird</translation>
    </message>
    <message>
        <source>In &amp;folder</source>
        <translation>Im &amp;Ordner</translation>
    </message>
    <message>
        <source>Mark the copies in a folder</source>
        <translation>Die Kopien in einem Ordner markieren</translation>
    </message>
    <message>
        <source>Folder to mark</source>
        <translation>Ordner, der markiert wird</translation>
    </message>
    <message>
        <source>C&amp;hoose...</source>
        <translation>Wäh&amp;len...</translation>
    </message>
    <message>
        <source>Choose a folder</source>
        <translation>Einen Ordner wählen</translation>
    </message>
    <message>
        <source>Mark &amp;every copy but one</source>
        <translation>&amp;Alle Kopien bis auf eine markieren</translation>
    </message>
    <message>
        <source>One copy of each song stays, a working one if there is one.</source>
        <translation>Von jedem Song bleibt eine Kopie, eine abspielbare, wenn es sie gibt.</translation>
    </message>
    <message>
        <source>Equal tags can be different recordings.</source>
        <translation>Gleiche Tags können verschiedene Aufnahmen sein.</translation>
    </message>
    <message>
        <source>Compare soun&amp;d…</source>
        <translation>&amp;Klang vergleichen…</translation>
    </message>
    <message>
        <source>No tracks to mark</source>
        <translation>Keine Titel zu markieren</translation>
    </message>
    <message>
        <source>No track matches.</source>
        <translation>Kein Titel passt.</translation>
    </message>
    <message>
        <source>Marked %L1 of %L2</source>
        <translation>%L1 von %L2 markiert</translation>
    </message>
    <message>
        <source>Would mark %L1 of %L2</source>
        <translation>Würde %L1 von %L2 markieren</translation>
    </message>
    <message>
        <source>One copy of each recording stays, a working one if there is one.</source>
        <translation>Von jeder Aufnahme bleibt eine Kopie, eine abspielbare, wenn es sie gibt.</translation>
    </message>
    <message>
        <source>Copies that tie all stay. No recording loses every copy.</source>
        <translation>Gleichwertige Kopien bleiben alle. Keine Aufnahme verliert alle Kopien.</translation>
    </message>
    <message>
        <source>A song can lose every copy. Missing files are marked too.</source>
        <translation>Ein Song kann alle Kopien verlieren. Fehlende Dateien werden mitmarkiert.</translation>
    </message>
    <message>
        <source>Copies that tie all stay. Missing files are marked too.</source>
        <translation>Gleichwertige Kopien bleiben alle. Fehlende Dateien werden mitmarkiert.</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Schließen</translation>
    </message>
    <message>
        <source>&amp;Mark</source>
        <translation>&amp;Markieren</translation>
    </message>
    <message>
        <source>Replaces all present marks</source>
        <translation>Ersetzt alle vorhandenen Markierungen</translation>
    </message>
    <message>
        <source>Select a folder</source>
        <translation>Ordner wählen</translation>
    </message>
    <message>
        <source>Select</source>
        <translation>Wählen</translation>
    </message>
    <message>
        <source>Keep of each recording</source>
        <translation>Von jeder Aufnahme behalten</translation>
    </message>
    <message>
        <source>Recordings were told apart by their sound.</source>
        <translation>Die Aufnahmen wurden am Klang unterschieden.</translation>
    </message>
    <message>
        <source>No folder chosen</source>
        <translation>Kein Ordner gewählt</translation>
    </message>
</context>
<context>
    <name>songsweep::MessagePageView</name>
    <message>
        <source>Open %1</source>
        <translation>%1 öffnen</translation>
    </message>
</context>
<context>
    <name>songsweep::NoticeBarView</name>
    <message>
        <source>Close message</source>
        <translation>Meldung schließen</translation>
    </message>
</context>
<context>
    <name>songsweep::ParametersDialog</name>
    <message>
        <source>Search for duplicates</source>
        <translation>Nach Duplikaten suchen</translation>
    </message>
    <message>
        <source>Tracks are duplicates when they have the same</source>
        <translation>Titel sind Duplikate, wenn sie Folgendes gemeinsam haben</translation>
    </message>
    <message>
        <source>&amp;Name</source>
        <translation>&amp;Name</translation>
    </message>
    <message>
        <source>Same name</source>
        <translation>Gleicher Name</translation>
    </message>
    <message>
        <source>&amp;Artist</source>
        <translation>&amp;Interpret</translation>
    </message>
    <message>
        <source>Same artist</source>
        <translation>Gleicher Interpret</translation>
    </message>
    <message>
        <source>A&amp;lbum</source>
        <translation>&amp;Album</translation>
    </message>
    <message>
        <source>Same album</source>
        <translation>Gleiches Album</translation>
    </message>
    <message>
        <source>&amp;Time</source>
        <translation>&amp;Dauer</translation>
    </message>
    <message>
        <source>Same time</source>
        <translation>Gleiche Dauer</translation>
    </message>
    <message>
        <source>Allow small &amp;differences</source>
        <translation>Kleine &amp;Unterschiede zulassen</translation>
    </message>
    <message>
        <source>Punctuation, accents, “(Remastered)”, a guest (“feat. …”), and two seconds do not count. Live recordings, remixes and other versions stay apart.</source>
        <translation>Satzzeichen, Akzente, „(Remastered)“, ein Gast („feat. …“) und zwei Sekunden zählen nicht. Konzertmitschnitte, Remixe und andere Fassungen bleiben getrennt.</translation>
    </message>
    <message>
        <source>Search &amp;in</source>
        <translation>Su&amp;chen in</translation>
    </message>
    <message>
        <source>Search in</source>
        <translation>Suchen in</translation>
    </message>
    <message>
        <source>Leave &amp;out tracks whose files are missing</source>
        <translation>Titel auslassen, deren Dateien &amp;fehlen</translation>
    </message>
    <message>
        <source>All tracks will form one group.</source>
        <translation>Alle Titel bilden eine Gruppe.</translation>
    </message>
    <message>
        <source>Reading the library...</source>
        <translation>Die Mediathek wird gelesen...</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>A&amp;bbrechen</translation>
    </message>
    <message>
        <source>&amp;Search</source>
        <translation>&amp;Suchen</translation>
    </message>
</context>
<context>
    <name>songsweep::ProgressSheet</name>
    <message>
        <source>Songsweep</source>
        <translation>Songsweep</translation>
    </message>
    <message>
        <source>Deleting...</source>
        <translation>Wird gelöscht...</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Fortschritt</translation>
    </message>
    <message>
        <source>Cancel reading</source>
        <translation>Lesen abbrechen</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>A&amp;bbrechen</translation>
    </message>
    <message>
        <source>Cancel deletion</source>
        <translation>Löschen abbrechen</translation>
    </message>
    <message>
        <source>Cancel comparing</source>
        <translation>Vergleich abbrechen</translation>
    </message>
</context>
<context>
    <name>songsweep::RestoreDialog</name>
    <message>
        <source>Restore deleted tracks</source>
        <translation>Gelöschte Titel wiederherstellen</translation>
    </message>
    <message>
        <source>Which deletion is to be undone?</source>
        <translation>Welcher Löschvorgang soll rückgängig gemacht werden?</translation>
    </message>
    <message>
        <source>Tracks come back to the library and their playlists, files to where they were.</source>
        <translation>Titel kommen in die Mediathek und ihre Wiedergabelisten zurück, Dateien dorthin, wo sie waren.</translation>
    </message>
    <message>
        <source>Deletions</source>
        <translation>Löschvorgänge</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Datum</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Status</translation>
    </message>
    <message>
        <source>Tracks</source>
        <translation>Titel</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Dateien</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Größe</translation>
    </message>
    <message>
        <source>&amp;Leave out tracks whose files are lost</source>
        <translation>Titel ausl&amp;assen, deren Dateien verloren sind</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Fortschritt</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>A&amp;bbrechen</translation>
    </message>
    <message>
        <source>&amp;Restore</source>
        <translation>&amp;Wiederherstellen</translation>
    </message>
    <message>
        <source>&amp;Details</source>
        <translation>&amp;Details</translation>
    </message>
    <message>
        <source>Looking for deletions...</source>
        <translation>Löschvorgänge werden gesucht...</translation>
    </message>
    <message>
        <source>Looking what can come back...</source>
        <translation>Es wird geprüft, was zurückkommen kann...</translation>
    </message>
    <message>
        <source>Restoring...</source>
        <translation>Wird wiederhergestellt...</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Schließen</translation>
    </message>
</context>
<context>
    <name>songsweep::SoundDialog</name>
    <message>
        <source>Compare sound</source>
        <translation>Klang vergleichen</translation>
    </message>
    <message>
        <source>Equal tags can be different recordings. The first minute of each file tells which copies of a song are the same one.</source>
        <translation>Gleiche Tags können verschiedene Aufnahmen sein. Die erste Minute jeder Datei verrät, welche Kopien eines Songs dieselbe sind.</translation>
    </message>
    <message>
        <source>&amp;All songs</source>
        <translation>&amp;Alle Songs</translation>
    </message>
    <message>
        <source>Selected &amp;songs</source>
        <translation>Aus&amp;gewählte Songs</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>A&amp;bbrechen</translation>
    </message>
    <message>
        <source>Co&amp;mpare</source>
        <translation>&amp;Vergleichen</translation>
    </message>
    <message>
        <source>&amp;Selected songs</source>
        <translation>Aus&amp;gewählte Songs</translation>
    </message>
</context>
<context>
    <name>songsweep::WindowActions</name>
    <message>
        <source>Keyboard</source>
        <translation>Tastatur</translation>
    </message>
    <message>
        <source>Restored tracks</source>
        <translation>Wiederhergestellte Titel</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Details</translation>
    </message>
</context>
</TS>
