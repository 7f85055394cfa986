<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE">
<context>
    <name>Captions</name>
    <message>
        <source>Validator</source>
        <translation>Münzprüfer</translation>
    </message>
    <message>
        <source>Channel 1 to 10</source>
        <translation>Kanal 1 bis 10</translation>
    </message>
    <message>
        <source>Channel 11 to 20</source>
        <translation>Kanal 11 bis 20</translation>
    </message>
    <message>
        <source>Channel 21 to 30</source>
        <translation>Kanal 21 bis 30</translation>
    </message>
    <message>
        <source>Channel 31 to 40</source>
        <translation>Kanal 31 bis 40</translation>
    </message>
    <message>
        <source>Channel 41 to 50</source>
        <translation>Kanal 41 bis 50</translation>
    </message>
    <message>
        <source>Channel 51 to 60</source>
        <translation>Kanal 51 bis 60</translation>
    </message>
    <message>
        <source>HFU low min</source>
        <translation>HFU tief min</translation>
    </message>
    <message>
        <source>HFU low max</source>
        <translation>HFU tief max</translation>
    </message>
    <message>
        <source>HFU high min</source>
        <translation>HFU hoch min</translation>
    </message>
    <message>
        <source>HFU high max</source>
        <translation>HFU hoch max</translation>
    </message>
    <message>
        <source>DIM min</source>
        <translation>DIM min</translation>
    </message>
    <message>
        <source>DIM max</source>
        <translation>DIM max</translation>
    </message>
    <message>
        <source>LF min</source>
        <translation>LF min</translation>
    </message>
    <message>
        <source>LF max</source>
        <translation>LF max</translation>
    </message>
    <message>
        <source>HFL low min</source>
        <translation>HFL tief min</translation>
    </message>
    <message>
        <source>HFL low max</source>
        <translation>HFL tief max</translation>
    </message>
    <message>
        <source>HFL high min</source>
        <translation>HFL hoch min</translation>
    </message>
    <message>
        <source>HFL high max</source>
        <translation>HFL hoch max</translation>
    </message>
    <message>
        <source>HFL amp min</source>
        <translation>HFL Amp min</translation>
    </message>
    <message>
        <source>HFL amp max</source>
        <translation>HFL Amp max</translation>
    </message>
    <message>
        <source>Enable</source>
        <translation>Freigabe</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Wert</translation>
    </message>
    <message>
        <source>Sub</source>
        <translation>Ersatz</translation>
    </message>
    <message>
        <source>Channel %d </source>
        <translation>Kanal %d </translation>
    </message>
    <message>
        <source>Identification</source>
        <translation>Kennung</translation>
    </message>
    <message>
        <source>Serial Number :</source>
        <translation>Seriennummer:</translation>
    </message>
    <message>
        <source>Version :</source>
        <translation>Version:</translation>
    </message>
    <message>
        <source>Firmware date :</source>
        <translation>Firmware-Datum:</translation>
    </message>
    <message>
        <source>Programming date :</source>
        <translation>Programmierdatum:</translation>
    </message>
    <message>
        <source>Production date :</source>
        <translation>Herstellungsdatum:</translation>
    </message>
    <message>
        <source>Identification :</source>
        <translation>Kennung:</translation>
    </message>
    <message>
        <source>Description :</source>
        <translation>Beschreibung:</translation>
    </message>
    <message>
        <source>Read validator</source>
        <translation>Münzprüfer lesen</translation>
    </message>
    <message>
        <source>Write validator</source>
        <translation>Münzprüfer schreiben</translation>
    </message>
    <message>
        <source>Clone</source>
        <translation>Klonen</translation>
    </message>
    <message>
        <source>Store in tables</source>
        <translation>In Tabellen speichern</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Open configuration file</source>
        <translation>Konfigurationsdatei öffnen</translation>
    </message>
    <message>
        <source>Save configuration file</source>
        <translation>Konfigurationsdatei speichern</translation>
    </message>
    <message>
        <source>Validator setting</source>
        <translation>Münzprüfer-Einstellung</translation>
    </message>
    <message>
        <source>Output</source>
        <translation>Ausgang</translation>
    </message>
    <message>
        <source>Test value (via serial)</source>
        <translation>Testwert (über seriell)</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Start</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Stopp</translation>
    </message>
    <message>
        <source>Channel :</source>
        <translation>Kanal:</translation>
    </message>
    <message>
        <source>Value :</source>
        <translation>Wert:</translation>
    </message>
    <message>
        <source>Prices</source>
        <translation>Preise</translation>
    </message>
    <message>
        <source>Value P1</source>
        <translation>Wert P1</translation>
    </message>
    <message>
        <source>Value P2</source>
        <translation>Wert P2</translation>
    </message>
    <message>
        <source>Value P3</source>
        <translation>Wert P3</translation>
    </message>
    <message>
        <source>Value P4</source>
        <translation>Wert P4</translation>
    </message>
    <message>
        <source>Value P5</source>
        <translation>Wert P5</translation>
    </message>
    <message>
        <source>Value P6</source>
        <translation>Wert P6</translation>
    </message>
    <message>
        <source>Base Value</source>
        <translation>Basiswert</translation>
    </message>
    <message>
        <source>Channel from  1 to 30 :</source>
        <translation>Kanäle von  1 bis 30:</translation>
    </message>
    <message>
        <source>Channel from 31 to 60 :</source>
        <translation>Kanäle von 31 bis 60:</translation>
    </message>
    <message>
        <source>Ratio :</source>
        <translation>Verhältnis:</translation>
    </message>
    <message>
        <source>Code</source>
        <translation>Code</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>BAD</source>
        <translation>FALSCH</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Typ</translation>
    </message>
    <message>
        <source>00 - Validator</source>
        <translation>00 - Münzprüfer</translation>
    </message>
    <message>
        <source>10 - Totalizer - 2 prices</source>
        <translation>10 - Summenzähler - 2 Preise</translation>
    </message>
    <message>
        <source>20 - Totalizer - video game</source>
        <translation>20 - Summenzähler - Videospiel</translation>
    </message>
    <message>
        <source>30 - Timer Totalizer</source>
        <translation>30 - Zeit-Summenzähler</translation>
    </message>
    <message>
        <source>40 - Totalizer - credit</source>
        <translation>40 - Summenzähler - Guthaben</translation>
    </message>
    <message>
        <source>50 - </source>
        <translation>50 - </translation>
    </message>
    <message>
        <source>60 - TimerTotalizer - credit</source>
        <translation>60 - Zeit-Summenzähler - Guthaben</translation>
    </message>
    <message>
        <source>70 - Totalizer - photocopy</source>
        <translation>70 - Summenzähler - Fotokopie</translation>
    </message>
    <message>
        <source>Outlet</source>
        <translation>Einsatz</translation>
    </message>
    <message>
        <source>Vending anti-jam</source>
        <translation>Verkauf Anti-Stau</translation>
    </message>
    <message>
        <source>Vending</source>
        <translation>Verkauf</translation>
    </message>
    <message>
        <source>Game fast</source>
        <translation>Spiel schnell</translation>
    </message>
    <message>
        <source>Game</source>
        <translation>Spiel</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Optionen</translation>
    </message>
    <message>
        <source>Option bits</source>
        <translation>Optionsbits</translation>
    </message>
    <message>
        <source>Separator</source>
        <translation>Separator</translation>
    </message>
    <message>
        <source>Normal output</source>
        <translation>Normaler Ausgang</translation>
    </message>
    <message>
        <source>Inverted output</source>
        <translation>Invertierter Ausgang</translation>
    </message>
    <message>
        <source>Display off</source>
        <translation>Anzeige aus</translation>
    </message>
    <message>
        <source>Binary output</source>
        <translation>Binärausgang</translation>
    </message>
    <message>
        <source>Standby mode</source>
        <translation>Standby-Modus</translation>
    </message>
    <message>
        <source>Confida</source>
        <translation>Confida</translation>
    </message>
    <message>
        <source>Dip inhibition</source>
        <translation>Dip-Sperre</translation>
    </message>
    <message>
        <source>Dip 4/2</source>
        <translation>Dip 4/2</translation>
    </message>
    <message>
        <source>Dow-counting display</source>
        <translation>Rückwärtszählanzeige</translation>
    </message>
    <message>
        <source>Multi pulse</source>
        <translation>Mehrfachimpuls</translation>
    </message>
    <message>
        <source>Jam inhibition</source>
        <translation>Sperre bei Stau</translation>
    </message>
    <message>
        <source>Reset high</source>
        <translation>Reset High-aktiv</translation>
    </message>
    <message>
        <source>Toggling counting</source>
        <translation>Wechselnde Zählung</translation>
    </message>
    <message>
        <source>Price 1 limit</source>
        <translation>Limit Preis 1</translation>
    </message>
    <message>
        <source>Price 2 limit</source>
        <translation>Limit Preis 2</translation>
    </message>
    <message>
        <source>Time in minutes</source>
        <translation>Zeit in Minuten</translation>
    </message>
    <message>
        <source>Limit</source>
        <translation>Limit</translation>
    </message>
    <message>
        <source>Ext Counter signal (3C)</source>
        <translation>Ext. Zählersignal (3C)</translation>
    </message>
    <message>
        <source>Ext Start (3R)</source>
        <translation>Ext. Start (3R)</translation>
    </message>
    <message>
        <source>External reset</source>
        <translation>Externer Reset</translation>
    </message>
    <message>
        <source>Rest</source>
        <translation>Rest</translation>
    </message>
    <message>
        <source>Cash counters / Limits</source>
        <translation>Kassenzähler / Grenzwerte</translation>
    </message>
    <message>
        <source>Counter 1 :</source>
        <translation>Zähler 1:</translation>
    </message>
    <message>
        <source>Counter 2 :</source>
        <translation>Zähler 2:</translation>
    </message>
    <message>
        <source>Actived</source>
        <translation>Aktiviert</translation>
    </message>
    <message>
        <source>Desactived</source>
        <translation>Deaktiviert</translation>
    </message>
    <message>
        <source>OFF</source>
        <translation>AUS</translation>
    </message>
    <message>
        <source>Erasable :</source>
        <translation>Löschbar:</translation>
    </message>
    <message>
        <source>Vend Limit1 : </source>
        <translation>Verkaufslimit 1: </translation>
    </message>
    <message>
        <source>Vend Limit 2 : </source>
        <translation>Verkaufslimit 2: </translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Zurücksetzen</translation>
    </message>
    <message>
        <source>Limit / P1 :</source>
        <translation>Limit / P1:</translation>
    </message>
    <message>
        <source>Value P1 :</source>
        <translation>Wert P1:</translation>
    </message>
    <message>
        <source>Service Width in min.</source>
        <translation>Servicedauer in Min.</translation>
    </message>
    <message>
        <source>Service Width in sec.</source>
        <translation>Servicedauer in Sek.</translation>
    </message>
    <message>
        <source>Minimum Reset Width in ms</source>
        <translation>Minimale Rücksetzdauer in ms</translation>
    </message>
    <message>
        <source>Reset Width in sec. :</source>
        <translation>Rücksetzdauer in Sek.:</translation>
    </message>
    <message>
        <source>Code %d, bit %d</source>
        <translation>Code %d, Bit %d</translation>
    </message>
    <message>
        <source>Coin learning</source>
        <translation>Münze anlernen</translation>
    </message>
    <message>
        <source>Reference calibration</source>
        <translation>Referenzkalibrierung</translation>
    </message>
    <message>
        <source>Channel control</source>
        <translation>Kanalkontrolle</translation>
    </message>
    <message>
        <source>Overlap check</source>
        <translation>Überschneidungsprüfung</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Kopieren</translation>
    </message>
    <message>
        <source>Source </source>
        <translation>Quelle </translation>
    </message>
    <message>
        <source>Destination </source>
        <translation>Ziel </translation>
    </message>
    <message>
        <source>Channel : </source>
        <translation>Kanal: </translation>
    </message>
    <message>
        <source>Clear channel :</source>
        <translation>Kanal löschen:</translation>
    </message>
    <message>
        <source>Only values :</source>
        <translation>Nur Werte:</translation>
    </message>
    <message>
        <source>&amp;Transfert</source>
        <translation>Ü&amp;bertragen</translation>
    </message>
    <message>
        <source>&amp;Exit</source>
        <translation>&amp;Beenden</translation>
    </message>
    <message>
        <source>Saved validators</source>
        <translation>Gespeicherte Münzprüfer</translation>
    </message>
    <message>
        <source>Filter :</source>
        <translation>Filter:</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>Ö&amp;ffnen</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Löschen</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Schließen</translation>
    </message>
    <message>
        <source>Values Table</source>
        <translation>Wertetabelle</translation>
    </message>
    <message>
        <source>Repair tables...</source>
        <translation>Tabellen reparieren...</translation>
    </message>
    <message>
        <source>Repair tables</source>
        <translation>Tabellen reparieren</translation>
    </message>
    <message>
        <source>Tables in %s :</source>
        <translation>Tabellen in %s :</translation>
    </message>
    <message>
        <source>&amp;Repair</source>
        <translation>&amp;Reparieren</translation>
    </message>
    <message>
        <source>Tarvik help</source>
        <translation>Tarvik-Hilfe</translation>
    </message>
    <message>
        <source>&amp;Contents</source>
        <translation>&amp;Inhalt</translation>
    </message>
    <message>
        <source>&amp;Previous</source>
        <translation>&amp;Zurück</translation>
    </message>
    <message>
        <source>&amp;Next</source>
        <translation>&amp;Weiter</translation>
    </message>
    <message>
        <source>(empty)</source>
        <translation>(leer)</translation>
    </message>
    <message>
        <source>on</source>
        <translation>ein</translation>
    </message>
    <message>
        <source>off</source>
        <translation>aus</translation>
    </message>
    <message>
        <source>enabled</source>
        <translation>freigegeben</translation>
    </message>
    <message>
        <source>disabled</source>
        <translation>gesperrt</translation>
    </message>
    <message>
        <source>Option &apos;%s&apos;</source>
        <translation>Option „%s“</translation>
    </message>
    <message>
        <source>Channels data</source>
        <translation>Kanaldaten</translation>
    </message>
    <message>
        <source>Values table :</source>
        <translation>Wertetabelle :</translation>
    </message>
    <message>
        <source>Prices table :</source>
        <translation>Preistabelle :</translation>
    </message>
    <message>
        <source>Configuration :</source>
        <translation>Konfiguration :</translation>
    </message>
    <message>
        <source>Enable table :</source>
        <translation>Freigabetabelle :</translation>
    </message>
    <message>
        <source>Changes</source>
        <translation>Änderungen</translation>
    </message>
    <message>
        <source>Print...</source>
        <translation>Drucken...</translation>
    </message>
    <message>
        <source>Save as PDF...</source>
        <translation>Als PDF speichern...</translation>
    </message>
    <message>
        <source>Configuration sheet</source>
        <translation>Konfigurationsblatt</translation>
    </message>
    <message>
        <source>Channels in use</source>
        <translation>Belegte Kanäle</translation>
    </message>
    <message>
        <source>Channel</source>
        <translation>Kanal</translation>
    </message>
    <message>
        <source>No channel in use</source>
        <translation>Kein Kanal belegt</translation>
    </message>
    <message>
        <source>Overlapping channels:</source>
        <translation>Überlappende Kanäle:</translation>
    </message>
    <message>
        <source>Reference channel %d</source>
        <translation>Referenzkanal %d</translation>
    </message>
    <message>
        <source>No option switched on</source>
        <translation>Keine Option eingeschaltet</translation>
    </message>
    <message>
        <source>Windows chart</source>
        <translation>Fensterdiagramm</translation>
    </message>
    <message>
        <source>Printed on %s</source>
        <translation>Gedruckt am %s</translation>
    </message>
    <message>
        <source>Page %d of %d</source>
        <translation>Seite %d von %d</translation>
    </message>
    <message>
        <source>No changes since the configuration was last read, opened or written.</source>
        <translation>Keine Änderungen seit dem letzten Lesen, Öffnen oder Schreiben der Konfiguration.</translation>
    </message>
    <message>
        <source>Channel windows</source>
        <translation>Fenster der Kanäle</translation>
    </message>
    <message>
        <source>sent</source>
        <translation>gesendet</translation>
    </message>
    <message>
        <source>refused by the validator</source>
        <translation>vom Münzprüfer abgelehnt</translation>
    </message>
    <message>
        <source>Validator&apos;s own block</source>
        <translation>Eigener Block des Münzprüfers</translation>
    </message>
    <message>
        <source>%s (channels %s)</source>
        <translation>%s (Kanäle %s)</translation>
    </message>
    <message>
        <source>%s (%s of %s parts)</source>
        <translation>%s (%s von %s Teilen)</translation>
    </message>
    <message>
        <source>the learned windows</source>
        <translation>die gelernten Fenster</translation>
    </message>
    <message>
        <source>its former windows</source>
        <translation>seine bisherigen Fenster</translation>
    </message>
    <message>
        <source>windows that are not known</source>
        <translation>unbekannte Fenster</translation>
    </message>
    <message>
        <source>the value %s</source>
        <translation>den Wert %s</translation>
    </message>
    <message>
        <source>no value</source>
        <translation>keinen Wert</translation>
    </message>
    <message>
        <source>its former value</source>
        <translation>seinen bisherigen Wert</translation>
    </message>
    <message>
        <source>a value that is not known</source>
        <translation>einen unbekannten Wert</translation>
    </message>
    <message>
        <source>its former enable bit</source>
        <translation>sein bisheriges Freigabebit</translation>
    </message>
    <message>
        <source>an enable bit that is not known</source>
        <translation>ein unbekanntes Freigabebit</translation>
    </message>
    <message>
        <source>An amount in steps of %s, at most %s; empty: not set</source>
        <translation>Ein Betrag in Schritten von %s, höchstens %s; leer: nicht gesetzt</translation>
    </message>
    <message>
        <source>An amount in steps of %s, at most %s; -P1- or -P2- pays price 1 or 2; empty: no value</source>
        <translation>Ein Betrag in Schritten von %s, höchstens %s; -P1- oder -P2- zahlt Preis 1 oder 2; leer: kein Wert</translation>
    </message>
    <message>
        <source>No base value is set: give the base value first</source>
        <translation>Kein Basiswert gesetzt: zuerst den Basiswert angeben</translation>
    </message>
    <message>
        <source>A number from 0 to 254; empty: not set</source>
        <translation>Eine Zahl von 0 bis 254; leer: nicht gesetzt</translation>
    </message>
    <message>
        <source>In tens, from 0 to 2540 (a last digit is dropped); empty: not set</source>
        <translation>In Zehnern, von 0 bis 2540 (eine letzte Ziffer entfällt); leer: nicht gesetzt</translation>
    </message>
    <message>
        <source>Milliseconds in steps of 10, at most 630; empty: not set</source>
        <translation>Millisekunden in Schritten von 10, höchstens 630; leer: nicht gesetzt</translation>
    </message>
    <message>
        <source>Since read from validator %s at %s</source>
        <translation>Seit dem Lesen des Münzprüfers %s um %s</translation>
    </message>
    <message>
        <source>Since written to validator %s at %s</source>
        <translation>Seit dem Schreiben in den Münzprüfer %s um %s</translation>
    </message>
    <message>
        <source>Since opened from %s (the validator was not read)</source>
        <translation>Seit dem Öffnen von %s (der Münzprüfer wurde nicht gelesen)</translation>
    </message>
    <message>
        <source>Since opened from file %s (the validator was not read)</source>
        <translation>Seit dem Öffnen der Datei %s (der Münzprüfer wurde nicht gelesen)</translation>
    </message>
    <message>
        <source>Since the editor opened (the validator was not read)</source>
        <translation>Seit dem Öffnen des Editors (der Münzprüfer wurde nicht gelesen)</translation>
    </message>
    <message>
        <source>Write again</source>
        <translation>Erneut schreiben</translation>
    </message>
    <message>
        <source>Put back as it was</source>
        <translation>Wiederherstellen wie vorher</translation>
    </message>
    <message>
        <source>Go on</source>
        <translation>Fortfahren</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Write changes</source>
        <translation>Änderungen schreiben</translation>
    </message>
    <message>
        <source>Batch...</source>
        <translation>Serie...</translation>
    </message>
    <message>
        <source>Batch</source>
        <translation>Serie</translation>
    </message>
    <message>
        <source>Source</source>
        <translation>Quelle</translation>
    </message>
    <message>
        <source>The editor&apos;s configuration</source>
        <translation>Die Konfiguration des Editors</translation>
    </message>
    <message>
        <source>A configuration file</source>
        <translation>Eine Konfigurationsdatei</translation>
    </message>
    <message>
        <source>A saved validator</source>
        <translation>Ein gespeicherter Münzprüfer</translation>
    </message>
    <message>
        <source>Browse...</source>
        <translation>Durchsuchen...</translation>
    </message>
    <message>
        <source>What to write</source>
        <translation>Was geschrieben wird</translation>
    </message>
    <message>
        <source>Full write (every block, as Write)</source>
        <translation>Vollständig schreiben (alle Blöcke, wie Schreiben)</translation>
    </message>
    <message>
        <source>How many (0: until Stop) :</source>
        <translation>Wie viele (0: bis Anhalten) :</translation>
    </message>
    <message>
        <source>Write a validator again when it comes back</source>
        <translation>Einen wiederkehrenden Münzprüfer erneut schreiben</translation>
    </message>
    <message>
        <source>A sound for each result</source>
        <translation>Ein Ton für jedes Ergebnis</translation>
    </message>
    <message>
        <source>A configuration sheet for each (PDF, beside the log)</source>
        <translation>Ein Konfigurationsblatt für jeden (PDF, neben dem Protokoll)</translation>
    </message>
    <message>
        <source>Verified: %d</source>
        <translation>Geprüft: %d</translation>
    </message>
    <message>
        <source>Failed: %d</source>
        <translation>Fehlgeschlagen: %d</translation>
    </message>
    <message>
        <source>Skipped: %d</source>
        <translation>Übersprungen: %d</translation>
    </message>
    <message>
        <source>Log: %s</source>
        <translation>Protokoll: %s</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Zeit</translation>
    </message>
    <message>
        <source>Serial number</source>
        <translation>Seriennummer</translation>
    </message>
    <message>
        <source>Family</source>
        <translation>Familie</translation>
    </message>
    <message>
        <source>Result</source>
        <translation>Ergebnis</translation>
    </message>
    <message>
        <source>Seconds</source>
        <translation>Sekunden</translation>
    </message>
    <message>
        <source>Detail</source>
        <translation>Einzelheiten</translation>
    </message>
    <message>
        <source>Verified</source>
        <translation>Geprüft</translation>
    </message>
    <message>
        <source>Differs</source>
        <translation>Abweichend</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Fehlgeschlagen</translation>
    </message>
    <message>
        <source>Already done</source>
        <translation>Bereits erledigt</translation>
    </message>
    <message>
        <source>Other family</source>
        <translation>Andere Familie</translation>
    </message>
    <message>
        <source>Validators done</source>
        <translation>Bearbeitete Münzprüfer</translation>
    </message>
    <message>
        <source>History of validator %d</source>
        <translation>Verlauf des Münzprüfers %d</translation>
    </message>
    <message>
        <source>What</source>
        <translation>Vorgang</translation>
    </message>
    <message>
        <source>Program</source>
        <translation>Programm</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>Wiederherstellen</translation>
    </message>
    <message>
        <source>Read</source>
        <translation>Lesen</translation>
    </message>
    <message>
        <source>Write</source>
        <translation>Schreiben</translation>
    </message>
    <message>
        <source>Changes write</source>
        <translation>Schreiben der Änderungen</translation>
    </message>
    <message>
        <source>Batch write</source>
        <translation>Serienschreiben</translation>
    </message>
    <message>
        <source>Channel learned</source>
        <translation>Kanal eingelernt</translation>
    </message>
    <message>
        <source>Calibration</source>
        <translation>Kalibrierung</translation>
    </message>
    <message>
        <source>Read backup</source>
        <translation>Lesesicherung</translation>
    </message>
    <message>
        <source>Saved in the tables</source>
        <translation>In den Tabellen gespeichert</translation>
    </message>
    <message>
        <source>verified</source>
        <translation>geprüft</translation>
    </message>
    <message>
        <source>mismatch</source>
        <translation>abweichend</translation>
    </message>
    <message>
        <source>failed</source>
        <translation>fehlgeschlagen</translation>
    </message>
    <message>
        <source>First configuration known</source>
        <translation>Erste bekannte Konfiguration</translation>
    </message>
    <message>
        <source>No change</source>
        <translation>Keine Änderung</translation>
    </message>
    <message>
        <source>Configuration not known</source>
        <translation>Konfiguration unbekannt</translation>
    </message>
    <message>
        <source>Changes of event %d since the one before</source>
        <translation>Änderungen von Ereignis %d seit dem vorigen</translation>
    </message>
    <message>
        <source>From event %d to event %d</source>
        <translation>Von Ereignis %d zu Ereignis %d</translation>
    </message>
    <message>
        <source>No event is kept for this validator</source>
        <translation>Für diesen Münzprüfer ist kein Ereignis gespeichert</translation>
    </message>
    <message>
        <source>History...</source>
        <translation>Verlauf...</translation>
    </message>
    <message>
        <source>Data source...</source>
        <translation>Datenquelle...</translation>
    </message>
    <message>
        <source>Data source</source>
        <translation>Datenquelle</translation>
    </message>
    <message>
        <source>Data &amp;directory</source>
        <translation>Daten&amp;verzeichnis</translation>
    </message>
    <message>
        <source>&amp;Server (PostgreSQL)</source>
        <translation>&amp;Server (PostgreSQL)</translation>
    </message>
    <message>
        <source>Directory:</source>
        <translation>Verzeichnis:</translation>
    </message>
    <message>
        <source>Address (postgresql://...):</source>
        <translation>Adresse (postgresql://...):</translation>
    </message>
    <message>
        <source>&amp;Test connection</source>
        <translation>Verbindung &amp;testen</translation>
    </message>
    <message>
        <source>Connected to %s.</source>
        <translation>Verbunden mit %s.</translation>
    </message>
</context>
<context>
    <name>Messages</name>
    <message>
        <source>Internal or Comunication Error</source>
        <translation>Interner Fehler oder Kommunikationsfehler</translation>
    </message>
    <message>
        <source>Comunication Error !</source>
        <translation>Kommunikationsfehler !</translation>
    </message>
    <message>
        <source>Reading Error fron validator</source>
        <translation>Lesefehler vom Münzprüfer</translation>
    </message>
    <message>
        <source>Comunication Port COM%d isn&apos;t free or Setting error.</source>
        <translation>Der Kommunikationsanschluss COM%d ist nicht frei oder falsch eingestellt.</translation>
    </message>
    <message>
        <source>This user may not open the serial port. Add the user to the dialout group (sudo usermod -aG dialout $USER), then log out and log in again.</source>
        <translation>Dieser Benutzer darf die serielle Schnittstelle nicht öffnen. Fügen Sie den Benutzer der Gruppe dialout hinzu (sudo usermod -aG dialout $USER), melden Sie sich dann ab und wieder an.</translation>
    </message>
    <message>
        <source>Select port !!!</source>
        <translation>Bitte einen Anschluss wählen !!!</translation>
    </message>
    <message>
        <source>Connect validator </source>
        <translation>Münzprüfer anschließen </translation>
    </message>
    <message>
        <source>Validator reading in progress....</source>
        <translation>Münzprüfer wird gelesen....</translation>
    </message>
    <message>
        <source>Saving in progress.....</source>
        <translation>Speichern läuft.....</translation>
    </message>
    <message>
        <source>Finished operation!</source>
        <translation>Vorgang abgeschlossen!</translation>
    </message>
    <message>
        <source>Fault during save operation !</source>
        <translation>Fehler beim Speichern !</translation>
    </message>
    <message>
        <source>Operation cancelled</source>
        <translation>Vorgang abgebrochen</translation>
    </message>
    <message>
        <source>Invalid code table !</source>
        <translation>Ungültige Codetabelle !</translation>
    </message>
    <message>
        <source>Incorrect version of validator</source>
        <translation>Falsche Version des Münzprüfers</translation>
    </message>
    <message>
        <source>Save on validator?</source>
        <translation>Im Münzprüfer speichern?</translation>
    </message>
    <message>
        <source>By Mini-Pgm</source>
        <translation>Durch Mini-Pgm</translation>
    </message>
    <message>
        <source>#NA</source>
        <translation>#NV</translation>
    </message>
    <message>
        <source>Value must be between 0 and 255</source>
        <translation>Der Wert muss zwischen 0 und 255 liegen</translation>
    </message>
    <message>
        <source>Value over the maximum, it will be correct</source>
        <translation>Wert über dem Maximum, er wird korrigiert</translation>
    </message>
    <message>
        <source>Value under the minimum, it will be correct.</source>
        <translation>Wert unter dem Minimum, er wird korrigiert.</translation>
    </message>
    <message>
        <source>&apos;%s&apos; is not a valid integer value</source>
        <translation>&apos;%s&apos; ist kein gültiger Ganzzahlwert</translation>
    </message>
    <message>
        <source>Value over %d ms, it will be adjusted!</source>
        <translation>Wert über %d ms, er wird angepasst!</translation>
    </message>
    <message>
        <source>Wrong way! Please the counter must be desactived if the base value is clear</source>
        <translation>Falsch! Der Zähler muss deaktiviert sein, wenn der Basiswert leer ist</translation>
    </message>
    <message>
        <source>Modifing this value will take effect on channels from 1 to 30 !</source>
        <translation>Eine Änderung dieses Wertes wirkt sich auf die Kanäle 1 bis 30 aus !</translation>
    </message>
    <message>
        <source>Modifing this value will take effect on channels from 31 to 60 !</source>
        <translation>Eine Änderung dieses Wertes wirkt sich auf die Kanäle 31 bis 60 aus !</translation>
    </message>
    <message>
        <source>The value of channels %d and %d is incompatible for the function multi-pulse (max %d pulses)</source>
        <translation>Der Wert der Kanäle %d und %d ist mit der Mehrfachimpuls-Funktion nicht vereinbar (höchstens %d Impulse)</translation>
    </message>
    <message>
        <source>Impossible displacement, the channel of origin and the one of destination coincides</source>
        <translation>Verschieben unmöglich, Ursprungs- und Zielkanal sind identisch</translation>
    </message>
    <message>
        <source>Identification field must be filled</source>
        <translation>Das Feld Kennung muss ausgefüllt sein</translation>
    </message>
    <message>
        <source>%s exist! Overwrite ?</source>
        <translation>%s existiert! Überschreiben ?</translation>
    </message>
    <message>
        <source>File %s saved</source>
        <translation>Datei %s gespeichert</translation>
    </message>
    <message>
        <source>The validity of data of this validator is not guaranteed by BRUNFELDGroup!</source>
        <translation>Die Gültigkeit der Daten dieses Münzprüfers wird von BRUNFELDGroup nicht garantiert!</translation>
    </message>
    <message>
        <source>Select number of channel !</source>
        <translation>Bitte die Kanalnummer wählen !</translation>
    </message>
    <message>
        <source>Number of coins is less than %d. Proceed?</source>
        <translation>Die Anzahl der Münzen ist kleiner als %d. Fortfahren?</translation>
    </message>
    <message>
        <source>Modify another channel ?</source>
        <translation>Einen anderen Kanal ändern ?</translation>
    </message>
    <message>
        <source>Calibrate another channel ?</source>
        <translation>Einen anderen Kanal kalibrieren ?</translation>
    </message>
    <message>
        <source>Values directly saved into validator</source>
        <translation>Werte direkt im Münzprüfer gespeichert</translation>
    </message>
    <message>
        <source>The value matchs the channel %d. Load it ?</source>
        <translation>Der Wert entspricht Kanal %d. Laden ?</translation>
    </message>
    <message>
        <source>No matched data !</source>
        <translation>Keine passenden Daten !</translation>
    </message>
    <message>
        <source>Door open, no data will be transfered ;</source>
        <translation>Tür offen, es werden keine Daten übertragen ;</translation>
    </message>
    <message>
        <source>Prepare the golden tokens.</source>
        <translation>Die goldenen Jetons bereitlegen.</translation>
    </message>
    <message>
        <source>Prepare the silver tokens.</source>
        <translation>Die silbernen Jetons bereitlegen.</translation>
    </message>
    <message>
        <source>Insert the golden tokens. (5 pieces)</source>
        <translation>Die goldenen Jetons einwerfen. (5 Stück)</translation>
    </message>
    <message>
        <source>Insert the silver tokens. (5 pieces)</source>
        <translation>Die silbernen Jetons einwerfen. (5 Stück)</translation>
    </message>
    <message>
        <source>Reference Channel saved !</source>
        <translation>Referenzkanal gespeichert !</translation>
    </message>
    <message>
        <source>Programming Error !</source>
        <translation>Programmierfehler !</translation>
    </message>
    <message>
        <source>Channel %d is empty! No data to control.</source>
        <translation>Kanal %d ist leer! Keine Daten zu prüfen.</translation>
    </message>
    <message>
        <source>No overlapping !</source>
        <translation>Keine Überschneidung !</translation>
    </message>
    <message>
        <source>Table of values transferred in the validator!</source>
        <translation>Wertetabelle in den Münzprüfer übertragen!</translation>
    </message>
    <message>
        <source>All data transfered !</source>
        <translation>Alle Daten übertragen !</translation>
    </message>
    <message>
        <source>This option will be activated to the next starting of the program</source>
        <translation>Diese Option wird beim nächsten Programmstart wirksam</translation>
    </message>
    <message>
        <source>Upgrade over...</source>
        <translation>Aktualisierung beendet...</translation>
    </message>
    <message>
        <source>Operation cancelled by operator</source>
        <translation>Vorgang vom Bediener abgebrochen</translation>
    </message>
    <message>
        <source>Updating... Please Wait !</source>
        <translation>Aktualisierung... Bitte warten !</translation>
    </message>
    <message>
        <source>Don&apos;t Stop or disconnect !!!</source>
        <translation>Nicht abbrechen oder trennen !!!</translation>
    </message>
    <message>
        <source>Please connect the mini-programer.</source>
        <translation>Bitte den Mini-Programmer anschließen.</translation>
    </message>
    <message>
        <source>The user guide %s is not installed.</source>
        <translation>Das Benutzerhandbuch %s ist nicht installiert.</translation>
    </message>
    <message>
        <source>Channel %d of the validator differs from the one of this configuration: the windows may not suit this validator. Continue?</source>
        <translation>Kanal %d des Münzprüfers weicht von dem dieser Konfiguration ab: Die Fenster passen möglicherweise nicht zu diesem Münzprüfer. Fortfahren?</translation>
    </message>
    <message>
        <source>%s is missing</source>
        <translation>%s fehlt</translation>
    </message>
    <message>
        <source>%s cannot be opened: %s</source>
        <translation>%s kann nicht geöffnet werden: %s</translation>
    </message>
    <message>
        <source>%s cannot be written: %s</source>
        <translation>%s kann nicht geschrieben werden: %s</translation>
    </message>
    <message>
        <source>%s is not a dBase table of level 3, 4, 5 or 7</source>
        <translation>%s ist keine dBase-Tabelle der Stufe 3, 4, 5 oder 7</translation>
    </message>
    <message>
        <source>%s has a damaged header: its header length, record length and field widths do not add up</source>
        <translation>%s hat einen beschädigten Kopf: Kopflänge, Satzlänge und Feldbreiten passen nicht zusammen</translation>
    </message>
    <message>
        <source>%s has a damaged header: field %s is not valid</source>
        <translation>%s hat einen beschädigten Kopf: Feld %s ist ungültig</translation>
    </message>
    <message>
        <source>%s is truncated: it holds %s of its %s records</source>
        <translation>%s ist abgeschnitten: es enthält %s von seinen %s Sätzen</translation>
    </message>
    <message>
        <source>%s has no field %s</source>
        <translation>%s hat kein Feld %s</translation>
    </message>
    <message>
        <source>%s: field %s is of type %s where %s is expected</source>
        <translation>%s: Feld %s hat den Typ %s, erwartet wird %s</translation>
    </message>
    <message>
        <source>%s cannot be changed: the file or its directory is read-only</source>
        <translation>%s kann nicht geändert werden: Die Datei oder ihr Verzeichnis ist schreibgeschützt</translation>
    </message>
    <message>
        <source>%s cannot be changed: its index tag %s (%s) is not one this program can keep up to date</source>
        <translation>%s kann nicht geändert werden: Sein Indexschlüssel %s (%s) kann von diesem Programm nicht aktuell gehalten werden</translation>
    </message>
    <message>
        <source>%s cannot be changed: its language driver %s sorts keys in an order this program cannot keep</source>
        <translation>%s kann nicht geändert werden: Sein Sprachtreiber %s sortiert Schlüssel in einer Reihenfolge, die dieses Programm nicht einhalten kann</translation>
    </message>
    <message>
        <source>The value %s does not fit field %s of %s</source>
        <translation>Der Wert %s passt nicht in das Feld %s von %s</translation>
    </message>
    <message>
        <source>The index %s was not usable (%s) and has been rebuilt from %s</source>
        <translation>Der Index %s war nicht verwendbar (%s) und wurde aus %s neu aufgebaut</translation>
    </message>
    <message>
        <source>The index %s is not usable (%s) and cannot be rebuilt now</source>
        <translation>Der Index %s ist nicht verwendbar (%s) und kann jetzt nicht neu aufgebaut werden</translation>
    </message>
    <message>
        <source>it is missing</source>
        <translation>er fehlt</translation>
    </message>
    <message>
        <source>its header is damaged</source>
        <translation>sein Kopf ist beschädigt</translation>
    </message>
    <message>
        <source>its pages are damaged</source>
        <translation>seine Seiten sind beschädigt</translation>
    </message>
    <message>
        <source>its keys are out of order</source>
        <translation>seine Schlüssel sind nicht in Reihenfolge</translation>
    </message>
    <message>
        <source>its entries do not match the records</source>
        <translation>seine Einträge passen nicht zu den Sätzen</translation>
    </message>
    <message>
        <source>tag %s is missing or does not match its field</source>
        <translation>Schlüssel %s fehlt oder passt nicht zu seinem Feld</translation>
    </message>
    <message>
        <source>its language driver differs from the table&apos;s</source>
        <translation>sein Sprachtreiber weicht von dem der Tabelle ab</translation>
    </message>
    <message>
        <source>The data directory %s has been created with empty tables</source>
        <translation>Das Datenverzeichnis %s wurde mit leeren Tabellen angelegt</translation>
    </message>
    <message>
        <source>Empty tables have been created in %s: %s</source>
        <translation>In %s wurden leere Tabellen angelegt: %s</translation>
    </message>
    <message>
        <source>No validator %s is stored</source>
        <translation>Kein Münzprüfer %s gespeichert</translation>
    </message>
    <message>
        <source>The settings could not be read; the defaults are used until a setting is changed.</source>
        <translation>Die Einstellungen konnten nicht gelesen werden; bis zur Änderung einer Einstellung gelten die Standardwerte.</translation>
    </message>
    <message>
        <source>The file %s could not be read.</source>
        <translation>Die Datei %s konnte nicht gelesen werden.</translation>
    </message>
    <message>
        <source>The sheet could not be written to %s: %s. Nothing else was changed.</source>
        <translation>Das Blatt konnte nicht nach %s geschrieben werden: %s. Sonst wurde nichts geändert.</translation>
    </message>
    <message>
        <source>The sheet could not be printed.</source>
        <translation>Das Blatt konnte nicht gedruckt werden.</translation>
    </message>
    <message>
        <source>%s was changed by another program; open it again before changing it</source>
        <translation>%s wurde von einem anderen Programm geändert; öffnen Sie es erneut, bevor Sie es ändern</translation>
    </message>
    <message>
        <source>%s: waited %s s for %s holding the lock; nothing written</source>
        <translation>%s: %s s auf %s gewartet, das die Sperre hält; nichts wurde geschrieben</translation>
    </message>
    <message>
        <source>another program</source>
        <translation>ein anderes Programm</translation>
    </message>
    <message>
        <source>%s has been changed by another program since it was shown. Delete it anyway ?</source>
        <translation>%s wurde seit der Anzeige von einem anderen Programm geändert. Trotzdem löschen?</translation>
    </message>
    <message>
        <source>The data directory %s cannot be created</source>
        <translation>Das Datenverzeichnis %s kann nicht angelegt werden</translation>
    </message>
    <message>
        <source>The backup of this read could not be written: %s</source>
        <translation>Die Sicherung dieses Lesevorgangs konnte nicht geschrieben werden: %s</translation>
    </message>
    <message>
        <source>The tables of the data directory are not open.</source>
        <translation>Die Tabellen des Datenverzeichnisses sind nicht geöffnet.</translation>
    </message>
    <message>
        <source>The file holds a %s validator but a %s validator is connected: nothing was written.</source>
        <translation>Die Datei enthält einen Münzprüfer %s, angeschlossen ist aber ein Münzprüfer %s: Es wurde nichts geschrieben.</translation>
    </message>
    <message>
        <source>%d Overlapping</source>
        <translation>%d Überschneidungen</translation>
    </message>
    <message>
        <source>%d superposition(s)</source>
        <translation>%d Überlagerung(en)</translation>
    </message>
    <message>
        <source>%s has no row for channels %s: they open empty.</source>
        <translation>%s hat keine Zeile für die Kanäle %s: sie werden leer geöffnet.</translation>
    </message>
    <message>
        <source>%s has more than one row for channels %s: the first row of each is used.</source>
        <translation>%s hat mehr als eine Zeile für die Kanäle %s: jeweils die erste wird verwendet.</translation>
    </message>
    <message>
        <source>Delete %s and its channels from the tables?</source>
        <translation>%s und seine Kanäle aus den Tabellen löschen?</translation>
    </message>
    <message>
        <source>No value table %s is stored</source>
        <translation>Keine Wertetabelle %s gespeichert</translation>
    </message>
    <message>
        <source>Delete record?</source>
        <translation>Datensatz löschen?</translation>
    </message>
    <message>
        <source>%s is truncated inside its header: none of its records can be read</source>
        <translation>%s ist in seinem Kopf abgeschnitten: keiner seiner Sätze kann gelesen werden</translation>
    </message>
    <message>
        <source>%s. It is opened read-only with the records that can be read; repair the tables to change it.</source>
        <translation>%s. Es wird schreibgeschützt mit den lesbaren Sätzen geöffnet; reparieren Sie die Tabellen, um es zu ändern.</translation>
    </message>
    <message>
        <source>%s is damaged and cannot be changed until the tables are repaired</source>
        <translation>%s ist beschädigt und kann erst geändert werden, wenn die Tabellen repariert sind</translation>
    </message>
    <message>
        <source>%s. Nothing of it can be read; the file is left as it is.</source>
        <translation>%s. Nichts davon kann gelesen werden; die Datei bleibt, wie sie ist.</translation>
    </message>
    <message>
        <source>%s is not open: nothing can be read from it or stored in it</source>
        <translation>%s ist nicht geöffnet: nichts kann daraus gelesen oder darin gespeichert werden</translation>
    </message>
    <message>
        <source>%s is sound and was left untouched</source>
        <translation>%s ist in Ordnung und blieb unverändert</translation>
    </message>
    <message>
        <source>%s repaired: %s records kept, %s could not be read; the damaged files are kept in %s</source>
        <translation>%s repariert: %s Sätze behalten, %s nicht lesbar; die beschädigten Dateien liegen in %s</translation>
    </message>
    <message>
        <source>%s: its index was rebuilt from the table; the old files are kept in %s</source>
        <translation>%s: sein Index wurde aus der Tabelle neu aufgebaut; die alten Dateien liegen in %s</translation>
    </message>
    <message>
        <source>%s could not be repaired: %s</source>
        <translation>%s konnte nicht repariert werden: %s</translation>
    </message>
    <message>
        <source>The index %s is not usable (%s)</source>
        <translation>Der Index %s ist nicht verwendbar (%s)</translation>
    </message>
    <message>
        <source>Verifying...</source>
        <translation>Überprüfung...</translation>
    </message>
    <message>
        <source>Verified: the validator holds the configuration.</source>
        <translation>Überprüft: der Münzprüfer enthält die Konfiguration.</translation>
    </message>
    <message>
        <source>The validator does not hold what was written:</source>
        <translation>Der Münzprüfer enthält nicht, was geschrieben wurde:</translation>
    </message>
    <message>
        <source>Verification failed: the validator could not be read back.</source>
        <translation>Überprüfung fehlgeschlagen: der Münzprüfer konnte nicht zurückgelesen werden.</translation>
    </message>
    <message>
        <source>... and %d more.</source>
        <translation>... und %d weitere.</translation>
    </message>
    <message>
        <source>No space left on the disk: nothing was written</source>
        <translation>Kein Platz mehr auf dem Datenträger: es wurde nichts geschrieben</translation>
    </message>
    <message>
        <source>The disk quota is used up: nothing was written</source>
        <translation>Das Speicherkontingent ist erschöpft: es wurde nichts geschrieben</translation>
    </message>
    <message>
        <source>The disk is read-only: nothing was written</source>
        <translation>Der Datenträger ist schreibgeschützt: es wurde nichts geschrieben</translation>
    </message>
    <message>
        <source>Writing in this folder is not allowed: nothing was written</source>
        <translation>In diesem Ordner darf nicht geschrieben werden: es wurde nichts geschrieben</translation>
    </message>
    <message>
        <source>The folder does not exist: nothing was written</source>
        <translation>Der Ordner existiert nicht: es wurde nichts geschrieben</translation>
    </message>
    <message>
        <source>The disk reported an error (%s): nothing was written</source>
        <translation>Der Datenträger meldete einen Fehler (%s): es wurde nichts geschrieben</translation>
    </message>
    <message>
        <source>&quot;%s&quot; cannot be stored in %s: its code page has no %s. Nothing was written.</source>
        <translation>„%s“ kann nicht in %s gespeichert werden: seine Codepage kennt %s nicht. Es wurde nichts geschrieben.</translation>
    </message>
    <message>
        <source>&quot;%s&quot; is too long for %s: it holds at most %s characters. Nothing was written.</source>
        <translation>„%s“ ist zu lang für %s: es fasst höchstens %s Zeichen. Es wurde nichts geschrieben.</translation>
    </message>
    <message>
        <source>%s counts %s records in its header, but its index and its length prove %s</source>
        <translation>%s zählt %s Datensätze in seinem Kopf, aber sein Index und seine Länge belegen %s</translation>
    </message>
    <message>
        <source>the rebuilt table could not be read back as written</source>
        <translation>die neu aufgebaute Tabelle konnte nicht so zurückgelesen werden, wie sie geschrieben wurde</translation>
    </message>
    <message>
        <source>The settings file %s could not be read; it has been kept as %s. The defaults are used, with the tables in %s.</source>
        <translation>Die Einstellungsdatei %s konnte nicht gelesen werden; sie wurde als %s aufbewahrt. Es gelten die Standardwerte, mit den Tabellen in %s.</translation>
    </message>
    <message>
        <source>The settings file %s could not be read. The defaults are used, with the tables in %s.</source>
        <translation>Die Einstellungsdatei %s konnte nicht gelesen werden. Es gelten die Standardwerte, mit den Tabellen in %s.</translation>
    </message>
    <message>
        <source>No coin profile %s is stored</source>
        <translation>Kein Münzprofil %s gespeichert</translation>
    </message>
    <message>
        <source>An amount cannot be negative: %s was not stored.</source>
        <translation>Ein Betrag kann nicht negativ sein: %s wurde nicht gespeichert.</translation>
    </message>
    <message>
        <source>The validator now holds a partly written configuration (written: %s); nothing already written was undone. Write it again before use.</source>
        <translation>Der Münzprüfer enthält jetzt eine teilweise geschriebene Konfiguration (geschrieben: %s); nichts bereits Geschriebenes wurde rückgängig gemacht. Vor dem Einsatz erneut schreiben.</translation>
    </message>
    <message>
        <source>Nothing was written: the validator holds what it held before.</source>
        <translation>Es wurde nichts geschrieben: der Münzprüfer enthält, was er vorher enthielt.</translation>
    </message>
    <message>
        <source>The validator refused: %s.</source>
        <translation>Der Münzprüfer hat abgelehnt: %s.</translation>
    </message>
    <message>
        <source>No answer came after sending %s: the validator may or may not hold it.</source>
        <translation>Keine Antwort nach dem Senden von %s: der Münzprüfer enthält es vielleicht, vielleicht auch nicht.</translation>
    </message>
    <message>
        <source>Channel %d was not saved into the validator.</source>
        <translation>Kanal %d wurde nicht im Münzprüfer gespeichert.</translation>
    </message>
    <message>
        <source>Channel %d of the validator now holds %s.</source>
        <translation>Kanal %d des Münzprüfers enthält jetzt %s.</translation>
    </message>
    <message>
        <source>%s is empty: it is not a firmware file. Nothing was sent.</source>
        <translation>%s ist leer: Es ist keine Firmware-Datei. Es wurde nichts gesendet.</translation>
    </message>
    <message>
        <source>%s is not a Motorola S-record firmware file: line %d %s. Nothing was sent.</source>
        <translation>%s ist keine Motorola-S-Record-Firmware-Datei: Zeile %d %s. Es wurde nichts gesendet.</translation>
    </message>
    <message>
        <source>does not begin with S0 to S9</source>
        <translation>beginnt nicht mit S0 bis S9</translation>
    </message>
    <message>
        <source>holds a character that is not a hexadecimal digit</source>
        <translation>enthält ein Zeichen, das keine Hexadezimalziffer ist</translation>
    </message>
    <message>
        <source>has a byte count that does not match its length</source>
        <translation>hat eine Byteanzahl, die nicht zu ihrer Länge passt</translation>
    </message>
    <message>
        <source>has a wrong checksum</source>
        <translation>hat eine falsche Prüfsumme</translation>
    </message>
    <message>
        <source>The mini-programmer must be in its upgrade mode before the file is sent. Send %s now?</source>
        <translation>Der Mini-Programmer muss im Aktualisierungsmodus sein, bevor die Datei gesendet wird. %s jetzt senden?</translation>
    </message>
    <message>
        <source>%s holds %d bytes: sent byte by byte at 9600 baud, it takes hours. Send it all the same?</source>
        <translation>%s enthält %d Bytes: Byte für Byte mit 9600 Baud gesendet dauert das Stunden. Trotzdem senden?</translation>
    </message>
    <message>
        <source>The port was lost during the transfer: %d of %d bytes left the port: the upgrade is not complete.</source>
        <translation>Der Port ging während der Übertragung verloren: %d von %d Bytes haben den Port verlassen: Die Aktualisierung ist nicht vollständig.</translation>
    </message>
    <message>
        <source>%s is locked by %s: waiting at most %s s</source>
        <translation>%s ist von %s gesperrt: es wird höchstens %s s gewartet</translation>
    </message>
    <message>
        <source>%s: waited %s s for %s holding the lock; nothing read</source>
        <translation>%s: %s s auf %s gewartet, das die Sperre hält; nichts wurde gelesen</translation>
    </message>
    <message>
        <source>%s is not a file (a folder, a pipe or a device): it is not opened</source>
        <translation>%s ist keine Datei (ein Ordner, eine Pipe oder ein Gerät): sie wird nicht geöffnet</translation>
    </message>
    <message>
        <source>The data directory %s cannot be read: %s</source>
        <translation>Das Datenverzeichnis %s kann nicht gelesen werden: %s</translation>
    </message>
    <message>
        <source>%s holds %s channel rows of no stored validator: %s</source>
        <translation>%s enthält %s Kanalzeilen ohne gespeicherten Münzprüfer: %s</translation>
    </message>
    <message>
        <source>%s holds validators without channel rows: %s; they are kept and open with every channel empty</source>
        <translation>%s enthält Münzprüfer ohne Kanalzeilen: %s; sie bleiben erhalten und öffnen sich mit allen Kanälen leer</translation>
    </message>
    <message>
        <source>%s: %s channel rows of no stored validator removed (copies in %s)</source>
        <translation>%s: %s Kanalzeilen ohne gespeicherten Münzprüfer entfernt (Kopien in %s)</translation>
    </message>
    <message>
        <source>Coin ignored: choose a channel first</source>
        <translation>Münze ignoriert: zuerst einen Kanal wählen</translation>
    </message>
    <message>
        <source>Matched: %s</source>
        <translation>Erkannt: %s</translation>
    </message>
    <message>
        <source>Overlap with %s</source>
        <translation>Überschneidung mit %s</translation>
    </message>
    <message>
        <source>The validator&apos;s own configuration could not be read before cloning: nothing was cloned.</source>
        <translation>Die eigene Konfiguration des Münzprüfers konnte vor dem Klonen nicht gelesen werden: nichts wurde geklont.</translation>
    </message>
    <message>
        <source>The validator&apos;s own configuration could not be kept before cloning: %s. Clone all the same?</source>
        <translation>Die eigene Konfiguration des Münzprüfers konnte vor dem Klonen nicht gesichert werden: %s. Trotzdem klonen?</translation>
    </message>
    <message>
        <source>The validator&apos;s own configuration was kept in %s.</source>
        <translation>Die eigene Konfiguration des Münzprüfers wurde in %s gesichert.</translation>
    </message>
    <message>
        <source>Windows corrected for this validator&apos;s sensors: %s.</source>
        <translation>Fenster für die Sensoren dieses Münzprüfers korrigiert: %s.</translation>
    </message>
    <message>
        <source>Windows copied as they are: the source or this validator has no reference channel to correct them by.</source>
        <translation>Fenster unverändert kopiert: die Quelle oder dieser Münzprüfer hat keinen Referenzkanal, um sie zu korrigieren.</translation>
    </message>
    <message>
        <source>Verifying... do not unplug the validator</source>
        <translation>Überprüfung... den Münzprüfer nicht abziehen</translation>
    </message>
    <message>
        <source>The validator does not have %d changes this editor holds (see Changes). Store in the tables all the same?</source>
        <translation>Der Münzprüfer hat %d Änderungen dieses Editors nicht (siehe Änderungen). Trotzdem in den Tabellen speichern?</translation>
    </message>
    <message>
        <source>The validator does not have %d changes this editor holds (see Changes); opening replaces them in the editor. Open all the same?</source>
        <translation>Der Münzprüfer hat %d Änderungen dieses Editors nicht (siehe Änderungen); das Öffnen ersetzt sie im Editor. Trotzdem öffnen?</translation>
    </message>
    <message>
        <source>What the validator holds is the configuration of a %s validator with %s channels, the one to write is of a %s validator with %s channels: nothing was written.</source>
        <translation>Der Münzprüfer enthält die Konfiguration eines Münzprüfers %s mit %s Kanälen, die zu schreibende die eines Münzprüfers %s mit %s Kanälen: Es wurde nichts geschrieben.</translation>
    </message>
    <message>
        <source>This validator (serial %s) is not the one read (serial %s): nothing was written.</source>
        <translation>Dieser Münzprüfer (Seriennummer %s) ist nicht der gelesene (Seriennummer %s): Es wurde nichts geschrieben.</translation>
    </message>
    <message>
        <source>This validator (serial %s) has %s firmware, the one read (serial %s) had %s: nothing was written.</source>
        <translation>Dieser Münzprüfer (Seriennummer %s) hat die Firmware %s, der gelesene (Seriennummer %s) hatte %s: Es wurde nichts geschrieben.</translation>
    </message>
    <message>
        <source>Validator %s was programmed (%s) after what it holds was read: it was written elsewhere since. Read it again; nothing was written.</source>
        <translation>Der Münzprüfer %s wurde (%s) programmiert, nachdem sein Inhalt gelesen wurde: Er wurde seitdem anderswo beschrieben. Lesen Sie ihn erneut; es wurde nichts geschrieben.</translation>
    </message>
    <message>
        <source>The validator already holds this configuration: nothing was written.</source>
        <translation>Der Münzprüfer enthält diese Konfiguration bereits: Es wurde nichts geschrieben.</translation>
    </message>
    <message>
        <source>What validator %s holds is not known (it was not read here): only the whole configuration can be written.</source>
        <translation>Der Inhalt des Münzprüfers %s ist nicht bekannt (er wurde hier nicht gelesen): Nur die ganze Konfiguration kann geschrieben werden.</translation>
    </message>
    <message>
        <source>Plug the next validator</source>
        <translation>Den nächsten Münzprüfer anschließen</translation>
    </message>
    <message>
        <source>Validator found: reading its identification...</source>
        <translation>Münzprüfer gefunden: seine Kennung wird gelesen...</translation>
    </message>
    <message>
        <source>Writing %s...</source>
        <translation>%s wird geschrieben...</translation>
    </message>
    <message>
        <source>Verifying %s...</source>
        <translation>%s wird geprüft...</translation>
    </message>
    <message>
        <source>%s verified: unplug it</source>
        <translation>%s geprüft: abziehen</translation>
    </message>
    <message>
        <source>%s does not hold what was written: unplug it</source>
        <translation>%s enthält nicht, was geschrieben wurde: abziehen</translation>
    </message>
    <message>
        <source>%s failed: unplug it</source>
        <translation>%s fehlgeschlagen: abziehen</translation>
    </message>
    <message>
        <source>%s was already done: unplug it</source>
        <translation>%s war bereits erledigt: abziehen</translation>
    </message>
    <message>
        <source>%s is of another family: unplug it</source>
        <translation>%s gehört zu einer anderen Familie: abziehen</translation>
    </message>
    <message>
        <source>Batch finished: %d verified, %d failed, %d skipped.</source>
        <translation>Serie beendet: %d geprüft, %d fehlgeschlagen, %d übersprungen.</translation>
    </message>
    <message>
        <source>No validator was plugged for %d s: the batch stopped.</source>
        <translation>Seit %d s wurde kein Münzprüfer angeschlossen: die Serie wurde angehalten.</translation>
    </message>
    <message>
        <source>The batch log could not be written (%s): the batch stopped.</source>
        <translation>Das Protokoll der Serie konnte nicht geschrieben werden (%s): die Serie wurde angehalten.</translation>
    </message>
    <message>
        <source>Already verified in this batch at %s: not written again.</source>
        <translation>In dieser Serie bereits um %s geprüft: nicht erneut geschrieben.</translation>
    </message>
    <message>
        <source>A %s validator, the configuration is for %s: nothing was written.</source>
        <translation>Ein Münzprüfer %s, die Konfiguration ist für %s: nichts wurde geschrieben.</translation>
    </message>
    <message>
        <source>Its own configuration could not be read: nothing was written.</source>
        <translation>Seine eigene Konfiguration konnte nicht gelesen werden: nichts wurde geschrieben.</translation>
    </message>
    <message>
        <source>Its own configuration could not be kept (%s): nothing was written.</source>
        <translation>Seine eigene Konfiguration konnte nicht aufbewahrt werden (%s): nichts wurde geschrieben.</translation>
    </message>
    <message>
        <source>It no longer answered before the write: nothing was written.</source>
        <translation>Er antwortete vor dem Schreiben nicht mehr: nichts wurde geschrieben.</translation>
    </message>
    <message>
        <source>Written, but it could not be read back to verify it.</source>
        <translation>Geschrieben, aber er konnte zur Prüfung nicht zurückgelesen werden.</translation>
    </message>
    <message>
        <source>No validator is stored as %s.</source>
        <translation>Kein Münzprüfer ist als %s gespeichert.</translation>
    </message>
    <message>
        <source>Choose at least one group to write, or the full write.</source>
        <translation>Mindestens eine Gruppe zum Schreiben wählen, oder das vollständige Schreiben.</translation>
    </message>
    <message>
        <source>How many validators: a number from 0 to 9999.</source>
        <translation>Wie viele Münzprüfer: eine Zahl von 0 bis 9999.</translation>
    </message>
    <message>
        <source>Choose the configuration to write.</source>
        <translation>Die zu schreibende Konfiguration wählen.</translation>
    </message>
    <message>
        <source>The configuration sheet could not be written: %s</source>
        <translation>Das Konfigurationsblatt konnte nicht geschrieben werden: %s</translation>
    </message>
    <message>
        <source>The history could not be kept: %s</source>
        <translation>Der Verlauf konnte nicht gespeichert werden: %s</translation>
    </message>
    <message>
        <source>No history is known for the serial number %s</source>
        <translation>Für die Seriennummer %s ist kein Verlauf bekannt</translation>
    </message>
    <message>
        <source>This event holds no configuration to put back</source>
        <translation>Dieses Ereignis enthält keine Konfiguration zum Wiederherstellen</translation>
    </message>
    <message>
        <source>Put the validator back as it was on %s? This changes:
%s</source>
        <translation>Den Münzprüfer auf den Stand vom %s zurücksetzen? Das ändert:
%s</translation>
    </message>
    <message>
        <source>The validator already holds the configuration of %s</source>
        <translation>Der Münzprüfer enthält bereits die Konfiguration vom %s</translation>
    </message>
    <message>
        <source>The history could not be read: %s</source>
        <translation>Der Verlauf konnte nicht gelesen werden: %s</translation>
    </message>
    <message>
        <source>The validator connected has the serial number %s, not %s: nothing was written</source>
        <translation>Der angeschlossene Münzprüfer hat die Seriennummer %s, nicht %s: nichts wurde geschrieben</translation>
    </message>
    <message>
        <source>No history notes the validator saved as %s: its history is known once it is saved after a read or a write</source>
        <translation>Kein Verlauf nennt den als %s gespeicherten Münzprüfer: sein Verlauf ist bekannt, sobald er nach einem Lesen oder Schreiben gespeichert wird</translation>
    </message>
    <message>
        <source>The server %s cannot be reached: nothing was stored.</source>
        <translation>Der Server %s ist nicht erreichbar: Es wurde nichts gespeichert.</translation>
    </message>
    <message>
        <source>The server %s cannot be reached.</source>
        <translation>Der Server %s ist nicht erreichbar.</translation>
    </message>
    <message>
        <source>The tables on the server %s were made by a later version (%d); this program knows version %d and changes nothing.</source>
        <translation>Die Tabellen auf dem Server %s wurden von einer neueren Version (%d) angelegt; dieses Programm kennt Version %d und ändert nichts.</translation>
    </message>
    <message>
        <source>The password is not kept in the settings: put it in ~/.pgpass or PGPASSWORD.</source>
        <translation>Das Passwort wird nicht in den Einstellungen gespeichert: Tragen Sie es in ~/.pgpass oder PGPASSWORD ein.</translation>
    </message>
</context>
<context>
    <name>SimulatorPanel</name>
    <message>
        <source>Virtual validator</source>
        <translation>Virtueller Münzprüfer</translation>
    </message>
    <message>
        <source>Validator</source>
        <translation>Münzprüfer</translation>
    </message>
    <message>
        <source>Family :</source>
        <translation>Familie :</translation>
    </message>
    <message>
        <source>Serial number :</source>
        <translation>Seriennummer :</translation>
    </message>
    <message>
        <source>Fit a new validator</source>
        <translation>Neuen Münzprüfer einsetzen</translation>
    </message>
    <message>
        <source>Coins</source>
        <translation>Münzen</translation>
    </message>
    <message>
        <source>Insert</source>
        <translation>Einwerfen</translation>
    </message>
    <message>
        <source>Door open</source>
        <translation>Tür offen</translation>
    </message>
    <message>
        <source>Cable plugged in</source>
        <translation>Kabel eingesteckt</translation>
    </message>
    <message>
        <source>Mini-programmer (firmware upgrade)</source>
        <translation>Mini-Programmer (Firmware-Aktualisierung)</translation>
    </message>
    <message>
        <source>Coins waiting : %1</source>
        <translation>Wartende Münzen : %1</translation>
    </message>
    <message>
        <source>Ask for firmware (code 11)</source>
        <translation>Firmware anfordern (Code 11)</translation>
    </message>
    <message>
        <source>Test mode</source>
        <translation>Testmodus</translation>
    </message>
    <message>
        <source>Golden token</source>
        <translation>Goldener Jeton</translation>
    </message>
    <message>
        <source>Silver token</source>
        <translation>Silberner Jeton</translation>
    </message>
    <message>
        <source>Line</source>
        <translation>Leitung</translation>
    </message>
    <message>
        <source>9600 baud pacing</source>
        <translation>Takt von 9600 Baud</translation>
    </message>
    <message>
        <source>Count echo after (ms) :</source>
        <translation>Zählecho nach (ms) :</translation>
    </message>
    <message>
        <source>Reply after (ms) :</source>
        <translation>Antwort nach (ms) :</translation>
    </message>
    <message>
        <source>Adapter bursts every (ms) :</source>
        <translation>Adapterpakete alle (ms) :</translation>
    </message>
    <message>
        <source>Pause in replies after byte, for (ms) :</source>
        <translation>Pause in Antworten nach Byte, für (ms) :</translation>
    </message>
    <message>
        <source>Random seed :</source>
        <translation>Zufallsstartwert :</translation>
    </message>
    <message>
        <source>Count echo after at most (ms)</source>
        <translation>Zählecho nach höchstens (ms)</translation>
    </message>
    <message>
        <source>Reply after at most (ms)</source>
        <translation>Antwort nach höchstens (ms)</translation>
    </message>
    <message>
        <source>Pause in replies (ms)</source>
        <translation>Pause in Antworten (ms)</translation>
    </message>
    <message>
        <source>Unplug</source>
        <translation>Abziehen</translation>
    </message>
    <message>
        <source>Plug in this serial</source>
        <translation>Diese Seriennummer anschließen</translation>
    </message>
</context>
<context>
    <name>TCloningChk</name>
    <message>
        <source>Cloning</source>
        <translation>Klonen</translation>
    </message>
    <message>
        <source>Please! Be sure that validator is connected.</source>
        <translation>Bitte! Sicherstellen, dass der Münzprüfer angeschlossen ist.</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Optionen</translation>
    </message>
    <message>
        <source>Channels data</source>
        <translation>Kanaldaten</translation>
    </message>
    <message>
        <source>Values table :</source>
        <translation>Wertetabelle :</translation>
    </message>
    <message>
        <source>Prices table :</source>
        <translation>Preistabelle :</translation>
    </message>
    <message>
        <source>Configuration :</source>
        <translation>Konfiguration :</translation>
    </message>
    <message>
        <source>Enable table :</source>
        <translation>Freigabetabelle :</translation>
    </message>
    <message>
        <source>&amp;OK</source>
        <translation>&amp;OK</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Abbrechen</translation>
    </message>
</context>
<context>
    <name>TCommunication</name>
    <message>
        <source>Communication</source>
        <translation>Kommunikation</translation>
    </message>
    <message>
        <source>Port selection</source>
        <translation>Anschlussauswahl</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>Anschluss</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>&amp;Exit</source>
        <translation>&amp;Beenden</translation>
    </message>
</context>
<context>
    <name>TConnectForm</name>
    <message>
        <source>Mini-programmer</source>
        <translation>Mini-Programmer</translation>
    </message>
</context>
<context>
    <name>TFormAvertissementDif</name>
    <message>
        <source>Warning</source>
        <translation>Warnung</translation>
    </message>
    <message>
        <source>&amp;Continue</source>
        <translation>&amp;Weiter</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Abbrechen</translation>
    </message>
</context>
<context>
    <name>TFormCAdjust</name>
    <message>
        <source>Channel to adjust</source>
        <translation>Anzupassender Kanal</translation>
    </message>
    <message>
        <source>&amp;Channel :</source>
        <translation>&amp;Kanal :</translation>
    </message>
    <message>
        <source>0 = searching for nearest</source>
        <translation>0 = nächstgelegenen suchen</translation>
    </message>
    <message>
        <source>&amp;Automatic adjustment :</source>
        <translation>&amp;Automatische Anpassung :</translation>
    </message>
    <message>
        <source>&amp;OK</source>
        <translation>&amp;OK</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Abbrechen</translation>
    </message>
</context>
<context>
    <name>TFormCondotto</name>
    <message>
        <source>Output</source>
        <translation>Ausgang</translation>
    </message>
    <message>
        <source>Game</source>
        <translation>Spiel</translation>
    </message>
    <message>
        <source>Vending</source>
        <translation>Verkauf</translation>
    </message>
    <message>
        <source>&amp;OK</source>
        <translation>&amp;OK</translation>
    </message>
</context>
<context>
    <name>TFormMain</name>
    <message>
        <source>&amp;Parameters</source>
        <translation>&amp;Parameter</translation>
    </message>
    <message>
        <source>&amp;Sound</source>
        <translation>&amp;Ton</translation>
    </message>
    <message>
        <source>&amp;Auto adjust</source>
        <translation>&amp;Automatischer Abgleich</translation>
    </message>
    <message>
        <source>&amp;Direct write</source>
        <translation>&amp;Direktes Schreiben</translation>
    </message>
    <message>
        <source>&amp;Langage</source>
        <translation>&amp;Sprache</translation>
    </message>
    <message>
        <source>&amp;Local</source>
        <translation>&amp;Lokal</translation>
    </message>
    <message>
        <source>Firmware upgrade...</source>
        <translation>Firmware-Aktualisierung...</translation>
    </message>
    <message>
        <source>&amp;Back</source>
        <translation>&amp;Zurück</translation>
    </message>
    <message>
        <source>&amp;Exit</source>
        <translation>&amp;Beenden</translation>
    </message>
    <message>
        <source>&amp;Verify after write</source>
        <translation>Nach dem Schreiben &amp;prüfen</translation>
    </message>
    <message>
        <source>Reads the validator back after each write and lists what it does not hold</source>
        <translation>Liest den Münzprüfer nach jedem Schreiben zurück und listet auf, was er nicht enthält</translation>
    </message>
    <message>
        <source>Port &amp;time-out...</source>
        <translation>Port-&amp;Zeitlimit...</translation>
    </message>
    <message>
        <source>How long to wait for the validator&apos;s first byte: raise it for Bluetooth or radio serial adapters</source>
        <translation>Wie lange auf das erste Byte des Prüfers gewartet wird: für Bluetooth- oder Funk-Seriell-Adapter erhöhen</translation>
    </message>
    <message>
        <source>Port time-out</source>
        <translation>Port-Zeitlimit</translation>
    </message>
    <message>
        <source>Wait for a count echo or a reply&apos;s first byte, in milliseconds (%1 by default):</source>
        <translation>Wartezeit auf das Echo der Anzahl oder das erste Byte einer Antwort, in Millisekunden (Vorgabe %1):</translation>
    </message>
    <message>
        <source>&amp;Back up before cloning</source>
        <translation>Vor dem Klonen si&amp;chern</translation>
    </message>
    <message>
        <source>Reads the validator a clone writes to and keeps its own configuration among the backups first</source>
        <translation>Liest den Münzprüfer, auf den ein Klon schreibt, und sichert zuerst dessen eigene Konfiguration bei den Sicherungen</translation>
    </message>
    <message>
        <source>Only for calibration: leaving a window, value, substitute or enable box of a channel writes that channel&apos;s change to the validator at once and checks it</source>
        <translation>Nur zur Kalibrierung: Das Verlassen eines Fenster-, Wert-, Ersatz- oder Freigabefelds eines Kanals schreibt dessen Änderung sofort in den Münzprüfer und prüft sie</translation>
    </message>
    <message>
        <source>Only for calibration</source>
        <translation>Nur für die Kalibrierung</translation>
    </message>
</context>
<context>
    <name>TFormProfilC</name>
    <message>
        <source>Coin Profile</source>
        <translation>Münzprofil</translation>
    </message>
    <message>
        <source>&amp;Name :</source>
        <translation>&amp;Name :</translation>
    </message>
    <message>
        <source>&amp;Description :</source>
        <translation>&amp;Beschreibung :</translation>
    </message>
    <message>
        <source>Substitution channel :</source>
        <translation>Ersatzkanal :</translation>
    </message>
    <message>
        <source>&amp;Enable</source>
        <translation>&amp;Aktivieren</translation>
    </message>
    <message>
        <source>&amp;Value : </source>
        <translation>&amp;Wert : </translation>
    </message>
    <message>
        <source>&amp;P1</source>
        <translation>&amp;P1</translation>
    </message>
    <message>
        <source>P2</source>
        <translation>P2</translation>
    </message>
    <message>
        <source>Tolerances</source>
        <translation>Toleranzen</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Beschreibung</translation>
    </message>
    <message>
        <source>Values</source>
        <translation>Werte</translation>
    </message>
    <message>
        <source>Items</source>
        <translation>Einträge</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>Ö&amp;ffnen</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Speichern</translation>
    </message>
    <message>
        <source>&amp;Exit</source>
        <translation>B&amp;eenden</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>Abb&amp;rechen</translation>
    </message>
    <message>
        <source>HFU low min.</source>
        <translation>HFU niedrig min.</translation>
    </message>
    <message>
        <source>HFU low max.</source>
        <translation>HFU niedrig max.</translation>
    </message>
    <message>
        <source>HFU high min.</source>
        <translation>HFU hoch min.</translation>
    </message>
    <message>
        <source>Hfu high max.</source>
        <translation>Hfu hoch max.</translation>
    </message>
    <message>
        <source>Dimension min.</source>
        <translation>Abmessung min.</translation>
    </message>
    <message>
        <source>Dimension max.</source>
        <translation>Abmessung max.</translation>
    </message>
    <message>
        <source>LF min.</source>
        <translation>LF min.</translation>
    </message>
    <message>
        <source>LF max.</source>
        <translation>LF max.</translation>
    </message>
    <message>
        <source>HFL low min.</source>
        <translation>HFL niedrig min.</translation>
    </message>
    <message>
        <source>HFL low max.</source>
        <translation>HFL niedrig max.</translation>
    </message>
    <message>
        <source>HFL high min.</source>
        <translation>HFL hoch min.</translation>
    </message>
    <message>
        <source>HFL high max.</source>
        <translation>HFL hoch max.</translation>
    </message>
    <message>
        <source>HFL amp min.</source>
        <translation>HFL Amp. min.</translation>
    </message>
    <message>
        <source>HFL amp max.</source>
        <translation>HFL Amp. max.</translation>
    </message>
    <message>
        <source>Record navigator</source>
        <translation>Datensatznavigation</translation>
    </message>
    <message>
        <source>First record</source>
        <translation>Erster Datensatz</translation>
    </message>
    <message>
        <source>Prior record</source>
        <translation>Vorheriger Datensatz</translation>
    </message>
    <message>
        <source>Next record</source>
        <translation>Nächster Datensatz</translation>
    </message>
    <message>
        <source>Last record</source>
        <translation>Letzter Datensatz</translation>
    </message>
    <message>
        <source>Delete record</source>
        <translation>Datensatz löschen</translation>
    </message>
</context>
<context>
    <name>TFormProgCoin</name>
    <message>
        <source>Channels control</source>
        <translation>Kanalkontrolle</translation>
    </message>
    <message>
        <source>&amp;Channel to control :</source>
        <translation>&amp;Zu prüfender Kanal :</translation>
    </message>
    <message>
        <source>Channel to calibra&amp;te :</source>
        <translation>Zu kalibrierender &amp;Kanal :</translation>
    </message>
    <message>
        <source>Su&amp;bstitution  Channel :</source>
        <translation>Er&amp;satzkanal :</translation>
    </message>
    <message>
        <source>&amp;Value : </source>
        <translation>&amp;Wert : </translation>
    </message>
    <message>
        <source>P1</source>
        <translation>P1</translation>
    </message>
    <message>
        <source>P2</source>
        <translation>P2</translation>
    </message>
    <message>
        <source>E&amp;nable :</source>
        <translation>Frei&amp;gegeben :</translation>
    </message>
    <message>
        <source>Profile :</source>
        <translation>Profil :</translation>
    </message>
    <message>
        <source>Description :</source>
        <translation>Beschreibung :</translation>
    </message>
    <message>
        <source>Se&amp;lect...</source>
        <translation>Aus&amp;wählen...</translation>
    </message>
    <message>
        <source>Response level :</source>
        <translation>Antwortstufe :</translation>
    </message>
    <message>
        <source>Number of coins : </source>
        <translation>Anzahl Münzen : </translation>
    </message>
    <message>
        <source>Tolerance a&amp;uto :</source>
        <translation>Toleranz a&amp;uto :</translation>
    </message>
    <message>
        <source>&amp;OK</source>
        <translation>&amp;OK</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Speichern</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Abbrechen</translation>
    </message>
    <message>
        <source>Loa&amp;d</source>
        <translation>&amp;Laden</translation>
    </message>
    <message>
        <source>&amp;Clear</source>
        <translation>&amp;Löschen</translation>
    </message>
    <message>
        <source>&amp;Export...</source>
        <translation>&amp;Exportieren...</translation>
    </message>
    <message>
        <source>&amp;Import...</source>
        <translation>&amp;Importieren...</translation>
    </message>
    <message>
        <source>&amp;Matched channel...</source>
        <translation>&amp;Passender Kanal...</translation>
    </message>
    <message>
        <source>Anal&amp;yse</source>
        <translation>Anal&amp;yse</translation>
    </message>
    <message>
        <source>HFU low</source>
        <translation>HFU niedrig</translation>
    </message>
    <message>
        <source>HFU high</source>
        <translation>HFU hoch</translation>
    </message>
    <message>
        <source>DIM</source>
        <translation>DIM</translation>
    </message>
    <message>
        <source>LF</source>
        <translation>LF</translation>
    </message>
    <message>
        <source>HFL low</source>
        <translation>HFL niedrig</translation>
    </message>
    <message>
        <source>HFL high</source>
        <translation>HFL hoch</translation>
    </message>
    <message>
        <source>AMP</source>
        <translation>AMP</translation>
    </message>
    <message>
        <source>%1 minimum: the lowest reading the channel takes</source>
        <translation>%1 Minimum: der niedrigste Messwert, den der Kanal annimmt</translation>
    </message>
    <message>
        <source>%1 maximum: the highest reading the channel takes</source>
        <translation>%1 Maximum: der höchste Messwert, den der Kanal annimmt</translation>
    </message>
    <message>
        <source>%1: the reading of the last coin</source>
        <translation>%1: der Messwert der letzten Münze</translation>
    </message>
    <message>
        <source>%1: the width of the window (maximum - minimum)</source>
        <translation>%1: die Breite des Fensters (Maximum - Minimum)</translation>
    </message>
    <message>
        <source>%1: the last reading minus the minimum (below 0: under the window)</source>
        <translation>%1: der letzte Messwert minus das Minimum (unter 0: unter dem Fenster)</translation>
    </message>
    <message>
        <source>%1: the last reading minus the maximum (above 0: over the window)</source>
        <translation>%1: der letzte Messwert minus das Maximum (über 0: über dem Fenster)</translation>
    </message>
    <message>
        <source>%1: the last reading, and the window as a band</source>
        <translation>%1: der letzte Messwert, und das Fenster als Band</translation>
    </message>
    <message>
        <source>The first stored channel whose windows hold the last coin</source>
        <translation>Der erste gespeicherte Kanal, dessen Fenster die letzte Münze enthalten</translation>
    </message>
    <message>
        <source>Coins counted for the chosen channel</source>
        <translation>Für den gewählten Kanal gezählte Münzen</translation>
    </message>
</context>
<context>
    <name>TFormRefChannel</name>
    <message>
        <source>Reference Channel</source>
        <translation>Referenzkanal</translation>
    </message>
    <message>
        <source>Reference channel is empty</source>
        <translation>Der Referenzkanal ist leer</translation>
    </message>
    <message>
        <source>Use the reference set of tokens.</source>
        <translation>Den Referenzsatz Jetons verwenden.</translation>
    </message>
    <message>
        <source>- Insert 5 golden tokens.</source>
        <translation>- 5 goldene Jetons einwerfen.</translation>
    </message>
    <message>
        <source>- Ok</source>
        <translation>- Ok</translation>
    </message>
    <message>
        <source>- Insert 5 silver tokens.</source>
        <translation>- 5 silberne Jetons einwerfen.</translation>
    </message>
    <message>
        <source>&amp;OK</source>
        <translation>&amp;OK</translation>
    </message>
</context>
<context>
    <name>TFormSuperposition</name>
    <message>
        <source>Overlapped channels list</source>
        <translation>Liste der sich überschneidenden Kanäle</translation>
    </message>
    <message>
        <source>&amp;OK</source>
        <translation>&amp;OK</translation>
    </message>
</context>
<context>
    <name>TFormValue</name>
    <message>
        <source>Values Table</source>
        <translation>Wertetabelle</translation>
    </message>
    <message>
        <source>Base Value</source>
        <translation>Basiswert</translation>
    </message>
    <message>
        <source>Channels 1 to </source>
        <translation>Kanäle 1 bis </translation>
    </message>
    <message>
        <source>Channels 31 to 60 : </source>
        <translation>Kanäle 31 bis 60 : </translation>
    </message>
    <message>
        <source>Ratio : </source>
        <translation>Verhältnis : </translation>
    </message>
    <message>
        <source>Name : </source>
        <translation>Name : </translation>
    </message>
    <message>
        <source>Description : </source>
        <translation>Beschreibung : </translation>
    </message>
    <message>
        <source>Channels</source>
        <translation>Kanäle</translation>
    </message>
    <message>
        <source>Table name</source>
        <translation>Tabellenname</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Beschreibung</translation>
    </message>
    <message>
        <source>Channel values</source>
        <translation>Kanalwerte</translation>
    </message>
    <message>
        <source>Stored value tables</source>
        <translation>Gespeicherte Wertetabellen</translation>
    </message>
    <message>
        <source>Record navigator</source>
        <translation>Datensatznavigation</translation>
    </message>
    <message>
        <source>&amp;Load</source>
        <translation>&amp;Laden</translation>
    </message>
    <message>
        <source>Load value table from validator</source>
        <translation>Wertetabelle aus dem Münzprüfer laden</translation>
    </message>
    <message>
        <source>&amp;Transfert</source>
        <translation>Über&amp;tragen</translation>
    </message>
    <message>
        <source>Transfert de la table des valeurs dans le monnayeur</source>
        <translation>Wertetabelle in den Münzprüfer übertragen</translation>
    </message>
    <message>
        <source>&amp;Apply</source>
        <translation>&amp;Anwenden</translation>
    </message>
    <message>
        <source>Aplly the value table</source>
        <translation>Wertetabelle übernehmen</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Speichern</translation>
    </message>
    <message>
        <source>Save a record</source>
        <translation>Datensatz speichern</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>Ö&amp;ffnen</translation>
    </message>
    <message>
        <source>Open a record</source>
        <translation>Datensatz öffnen</translation>
    </message>
    <message>
        <source>&amp;Reset</source>
        <translation>&amp;Zurücksetzen</translation>
    </message>
    <message>
        <source>Reseting value table</source>
        <translation>Wertetabelle zurücksetzen</translation>
    </message>
    <message>
        <source>&amp;Exit</source>
        <translation>&amp;Beenden</translation>
    </message>
    <message>
        <source>First record</source>
        <translation>Erster Datensatz</translation>
    </message>
    <message>
        <source>Prior record</source>
        <translation>Vorheriger Datensatz</translation>
    </message>
    <message>
        <source>Next record</source>
        <translation>Nächster Datensatz</translation>
    </message>
    <message>
        <source>Last record</source>
        <translation>Letzter Datensatz</translation>
    </message>
    <message>
        <source>Delete record</source>
        <translation>Datensatz löschen</translation>
    </message>
</context>
<context>
    <name>TMajFirmware</name>
    <message>
        <source>Fichier Firmware VK2</source>
        <translation>VK2-Firmware-Datei</translation>
    </message>
    <message>
        <source>Firmware upgrade</source>
        <translation>Firmware-Aktualisierung</translation>
    </message>
    <message>
        <source>Upgrade</source>
        <translation>Aktualisierung</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
</context>
<context>
    <name>TTarvikAnalyse</name>
    <message>
        <source>Analyse</source>
        <translation>Analyse</translation>
    </message>
    <message>
        <source>&amp;OK</source>
        <translation>&amp;OK</translation>
    </message>
</context>
<context>
    <name>TTarvikFormInit</name>
    <message>
        <source>Validator setting</source>
        <translation>Münzprüfer-Einstellung</translation>
    </message>
    <message>
        <source>Serial Number :</source>
        <translation>Seriennummer :</translation>
    </message>
    <message>
        <source>Outlet</source>
        <translation>Einsatz</translation>
    </message>
    <message>
        <source>Game Fast</source>
        <translation>Spiel schnell</translation>
    </message>
    <message>
        <source>Game</source>
        <translation>Spiel</translation>
    </message>
    <message>
        <source>Vending anti-jam</source>
        <translation>Verkauf Anti-Stau</translation>
    </message>
    <message>
        <source>Vending</source>
        <translation>Verkauf</translation>
    </message>
    <message>
        <source>Resetable counter :</source>
        <translation>Rücksetzbarer Zähler :</translation>
    </message>
    <message>
        <source>&amp;OK</source>
        <translation>&amp;OK</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Abbrechen</translation>
    </message>
</context>
<context>
    <name>TTarvikTolerance</name>
    <message>
        <source>Tolerances</source>
        <translation>Toleranzen</translation>
    </message>
    <message>
        <source>Items</source>
        <translation>Einträge</translation>
    </message>
    <message>
        <source>Values</source>
        <translation>Werte</translation>
    </message>
    <message>
        <source>HFU low min.</source>
        <translation>HFU niedrig min.</translation>
    </message>
    <message>
        <source>HFU low max.</source>
        <translation>HFU niedrig max.</translation>
    </message>
    <message>
        <source>HFU high min.</source>
        <translation>HFU hoch min.</translation>
    </message>
    <message>
        <source>HFU high max.</source>
        <translation>HFU hoch max.</translation>
    </message>
    <message>
        <source>Dimension min.</source>
        <translation>Abmessung min.</translation>
    </message>
    <message>
        <source>Dimension max.</source>
        <translation>Abmessung max.</translation>
    </message>
    <message>
        <source>LF min.</source>
        <translation>LF min.</translation>
    </message>
    <message>
        <source>LF max.</source>
        <translation>LF max.</translation>
    </message>
    <message>
        <source>HFL low min.</source>
        <translation>HFL niedrig min.</translation>
    </message>
    <message>
        <source>HFL low max.</source>
        <translation>HFL niedrig max.</translation>
    </message>
    <message>
        <source>HFL high min.</source>
        <translation>HFL hoch min.</translation>
    </message>
    <message>
        <source>HFL high max.</source>
        <translation>HFL hoch max.</translation>
    </message>
    <message>
        <source>HFL amp min.</source>
        <translation>HFL Amp. min.</translation>
    </message>
    <message>
        <source>HFL amp max.</source>
        <translation>HFL Amp. max.</translation>
    </message>
    <message>
        <source>&amp;OK</source>
        <translation>&amp;OK</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Abbrechen</translation>
    </message>
</context>
</TS>
