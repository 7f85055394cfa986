<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it_IT">
<context>
    <name>Captions</name>
    <message>
        <source>Validator</source>
        <translation>Gettoniera</translation>
    </message>
    <message>
        <source>Channel 1 to 10</source>
        <translation>Canale da 1 a 10</translation>
    </message>
    <message>
        <source>Channel 11 to 20</source>
        <translation>Canale da 11 a 20</translation>
    </message>
    <message>
        <source>Channel 21 to 30</source>
        <translation>Canale da 21 a 30</translation>
    </message>
    <message>
        <source>Channel 31 to 40</source>
        <translation>Canale da 31 a 40</translation>
    </message>
    <message>
        <source>Channel 41 to 50</source>
        <translation>Canale da 41 a 50</translation>
    </message>
    <message>
        <source>Channel 51 to 60</source>
        <translation>Canale da 51 a 60</translation>
    </message>
    <message>
        <source>HFU low min</source>
        <translation>HFU basso min</translation>
    </message>
    <message>
        <source>HFU low max</source>
        <translation>HFU basso max</translation>
    </message>
    <message>
        <source>HFU high min</source>
        <translation>HFU alto min</translation>
    </message>
    <message>
        <source>HFU high max</source>
        <translation>HFU alto max</translation>
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
        <translation>HFL basso min</translation>
    </message>
    <message>
        <source>HFL low max</source>
        <translation>HFL basso max</translation>
    </message>
    <message>
        <source>HFL high min</source>
        <translation>HFL alto min</translation>
    </message>
    <message>
        <source>HFL high max</source>
        <translation>HFL alto max</translation>
    </message>
    <message>
        <source>HFL amp min</source>
        <translation>HFL amp min</translation>
    </message>
    <message>
        <source>HFL amp max</source>
        <translation>HFL amp max</translation>
    </message>
    <message>
        <source>Enable</source>
        <translation>Abilitato</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Valore</translation>
    </message>
    <message>
        <source>Sub</source>
        <translation>Sost.</translation>
    </message>
    <message>
        <source>Channel %d </source>
        <translation>Canale %d </translation>
    </message>
    <message>
        <source>Identification</source>
        <translation>Identificazione</translation>
    </message>
    <message>
        <source>Serial Number :</source>
        <translation>Numero di serie:</translation>
    </message>
    <message>
        <source>Version :</source>
        <translation>Versione:</translation>
    </message>
    <message>
        <source>Firmware date :</source>
        <translation>Data firmware:</translation>
    </message>
    <message>
        <source>Programming date :</source>
        <translation>Data di programmazione:</translation>
    </message>
    <message>
        <source>Production date :</source>
        <translation>Data di produzione:</translation>
    </message>
    <message>
        <source>Identification :</source>
        <translation>Identificazione:</translation>
    </message>
    <message>
        <source>Description :</source>
        <translation>Descrizione:</translation>
    </message>
    <message>
        <source>Read validator</source>
        <translation>Leggi gettoniera</translation>
    </message>
    <message>
        <source>Write validator</source>
        <translation>Scrivi gettoniera</translation>
    </message>
    <message>
        <source>Clone</source>
        <translation>Clona</translation>
    </message>
    <message>
        <source>Store in tables</source>
        <translation>Salva nelle tabelle</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Chiudi</translation>
    </message>
    <message>
        <source>Open configuration file</source>
        <translation>Apri file di configurazione</translation>
    </message>
    <message>
        <source>Save configuration file</source>
        <translation>Salva file di configurazione</translation>
    </message>
    <message>
        <source>Validator setting</source>
        <translation>Impostazione gettoniera</translation>
    </message>
    <message>
        <source>Output</source>
        <translation>Uscita</translation>
    </message>
    <message>
        <source>Test value (via serial)</source>
        <translation>Valore di prova (via seriale)</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Avvia</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Ferma</translation>
    </message>
    <message>
        <source>Channel :</source>
        <translation>Canale:</translation>
    </message>
    <message>
        <source>Value :</source>
        <translation>Valore:</translation>
    </message>
    <message>
        <source>Prices</source>
        <translation>Prezzi</translation>
    </message>
    <message>
        <source>Value P1</source>
        <translation>Valore P1</translation>
    </message>
    <message>
        <source>Value P2</source>
        <translation>Valore P2</translation>
    </message>
    <message>
        <source>Value P3</source>
        <translation>Valore P3</translation>
    </message>
    <message>
        <source>Value P4</source>
        <translation>Valore P4</translation>
    </message>
    <message>
        <source>Value P5</source>
        <translation>Valore P5</translation>
    </message>
    <message>
        <source>Value P6</source>
        <translation>Valore P6</translation>
    </message>
    <message>
        <source>Base Value</source>
        <translation>Valore base</translation>
    </message>
    <message>
        <source>Channel from  1 to 30 :</source>
        <translation>Canali da  1 a 30:</translation>
    </message>
    <message>
        <source>Channel from 31 to 60 :</source>
        <translation>Canali da 31 a 60:</translation>
    </message>
    <message>
        <source>Ratio :</source>
        <translation>Rapporto:</translation>
    </message>
    <message>
        <source>Code</source>
        <translation>Codice</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>BAD</source>
        <translation>ERRATO</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Tipo</translation>
    </message>
    <message>
        <source>00 - Validator</source>
        <translation>00 - Gettoniera</translation>
    </message>
    <message>
        <source>10 - Totalizer - 2 prices</source>
        <translation>10 - Totalizzatore - 2 prezzi</translation>
    </message>
    <message>
        <source>20 - Totalizer - video game</source>
        <translation>20 - Totalizzatore - videogioco</translation>
    </message>
    <message>
        <source>30 - Timer Totalizer</source>
        <translation>30 - Totalizzatore a tempo</translation>
    </message>
    <message>
        <source>40 - Totalizer - credit</source>
        <translation>40 - Totalizzatore - credito</translation>
    </message>
    <message>
        <source>50 - </source>
        <translation>50 - </translation>
    </message>
    <message>
        <source>60 - TimerTotalizer - credit</source>
        <translation>60 - Totalizzatore a tempo - credito</translation>
    </message>
    <message>
        <source>70 - Totalizer - photocopy</source>
        <translation>70 - Totalizzatore - fotocopie</translation>
    </message>
    <message>
        <source>Outlet</source>
        <translation>Utilizzo</translation>
    </message>
    <message>
        <source>Vending anti-jam</source>
        <translation>Vendita anti-inceppamento</translation>
    </message>
    <message>
        <source>Vending</source>
        <translation>Vendita</translation>
    </message>
    <message>
        <source>Game fast</source>
        <translation>Gioco veloce</translation>
    </message>
    <message>
        <source>Game</source>
        <translation>Gioco</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Opzioni</translation>
    </message>
    <message>
        <source>Option bits</source>
        <translation>Bit opzioni</translation>
    </message>
    <message>
        <source>Separator</source>
        <translation>Separatore</translation>
    </message>
    <message>
        <source>Normal output</source>
        <translation>Uscita normale</translation>
    </message>
    <message>
        <source>Inverted output</source>
        <translation>Uscita invertita</translation>
    </message>
    <message>
        <source>Display off</source>
        <translation>Display spento</translation>
    </message>
    <message>
        <source>Binary output</source>
        <translation>Uscita binaria</translation>
    </message>
    <message>
        <source>Standby mode</source>
        <translation>Modalità standby</translation>
    </message>
    <message>
        <source>Confida</source>
        <translation>Confida</translation>
    </message>
    <message>
        <source>Dip inhibition</source>
        <translation>Inibizione Dip</translation>
    </message>
    <message>
        <source>Dip 4/2</source>
        <translation>Dip 4/2</translation>
    </message>
    <message>
        <source>Dow-counting display</source>
        <translation>Visualizzazione a scalare</translation>
    </message>
    <message>
        <source>Multi pulse</source>
        <translation>Multi-impulso</translation>
    </message>
    <message>
        <source>Jam inhibition</source>
        <translation>Inibizione inceppamento</translation>
    </message>
    <message>
        <source>Reset high</source>
        <translation>Reset livello alto</translation>
    </message>
    <message>
        <source>Toggling counting</source>
        <translation>Conteggio alternato</translation>
    </message>
    <message>
        <source>Price 1 limit</source>
        <translation>Limite prezzo 1</translation>
    </message>
    <message>
        <source>Price 2 limit</source>
        <translation>Limite prezzo 2</translation>
    </message>
    <message>
        <source>Time in minutes</source>
        <translation>Tempo in minuti</translation>
    </message>
    <message>
        <source>Limit</source>
        <translation>Limite</translation>
    </message>
    <message>
        <source>Ext Counter signal (3C)</source>
        <translation>Segnale contatore est. (3C)</translation>
    </message>
    <message>
        <source>Ext Start (3R)</source>
        <translation>Avvio est. (3R)</translation>
    </message>
    <message>
        <source>External reset</source>
        <translation>Reset esterno</translation>
    </message>
    <message>
        <source>Rest</source>
        <translation>Resto</translation>
    </message>
    <message>
        <source>Cash counters / Limits</source>
        <translation>Contatori cassa / Limiti</translation>
    </message>
    <message>
        <source>Counter 1 :</source>
        <translation>Contatore 1:</translation>
    </message>
    <message>
        <source>Counter 2 :</source>
        <translation>Contatore 2:</translation>
    </message>
    <message>
        <source>Actived</source>
        <translation>Attivato</translation>
    </message>
    <message>
        <source>Desactived</source>
        <translation>Disattivato</translation>
    </message>
    <message>
        <source>OFF</source>
        <translation>OFF</translation>
    </message>
    <message>
        <source>Erasable :</source>
        <translation>Azzerabile:</translation>
    </message>
    <message>
        <source>Vend Limit1 : </source>
        <translation>Limite vendita 1: </translation>
    </message>
    <message>
        <source>Vend Limit 2 : </source>
        <translation>Limite vendita 2: </translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Azzera</translation>
    </message>
    <message>
        <source>Limit / P1 :</source>
        <translation>Limite / P1:</translation>
    </message>
    <message>
        <source>Value P1 :</source>
        <translation>Valore P1:</translation>
    </message>
    <message>
        <source>Service Width in min.</source>
        <translation>Durata servizio in min.</translation>
    </message>
    <message>
        <source>Service Width in sec.</source>
        <translation>Durata servizio in sec.</translation>
    </message>
    <message>
        <source>Minimum Reset Width in ms</source>
        <translation>Durata minima azzeramento in ms</translation>
    </message>
    <message>
        <source>Reset Width in sec. :</source>
        <translation>Durata azzeramento in sec.:</translation>
    </message>
    <message>
        <source>Code %d, bit %d</source>
        <translation>Codice %d, bit %d</translation>
    </message>
    <message>
        <source>Coin learning</source>
        <translation>Apprendimento moneta</translation>
    </message>
    <message>
        <source>Reference calibration</source>
        <translation>Calibrazione di riferimento</translation>
    </message>
    <message>
        <source>Channel control</source>
        <translation>Controllo canale</translation>
    </message>
    <message>
        <source>Overlap check</source>
        <translation>Controllo sovrapposizioni</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copia</translation>
    </message>
    <message>
        <source>Source </source>
        <translation>Origine </translation>
    </message>
    <message>
        <source>Destination </source>
        <translation>Destinazione </translation>
    </message>
    <message>
        <source>Channel : </source>
        <translation>Canale: </translation>
    </message>
    <message>
        <source>Clear channel :</source>
        <translation>Cancella canale:</translation>
    </message>
    <message>
        <source>Only values :</source>
        <translation>Solo valori:</translation>
    </message>
    <message>
        <source>&amp;Transfert</source>
        <translation>&amp;Trasferisci</translation>
    </message>
    <message>
        <source>&amp;Exit</source>
        <translation>&amp;Esci</translation>
    </message>
    <message>
        <source>Saved validators</source>
        <translation>Gettoniere salvate</translation>
    </message>
    <message>
        <source>Filter :</source>
        <translation>Filtro:</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>&amp;Apri</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Elimina</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Chiudi</translation>
    </message>
    <message>
        <source>Values Table</source>
        <translation>Tabella valori</translation>
    </message>
    <message>
        <source>Repair tables...</source>
        <translation>Ripara tabelle...</translation>
    </message>
    <message>
        <source>Repair tables</source>
        <translation>Ripara tabelle</translation>
    </message>
    <message>
        <source>Tables in %s :</source>
        <translation>Tabelle in %s :</translation>
    </message>
    <message>
        <source>&amp;Repair</source>
        <translation>&amp;Ripara</translation>
    </message>
    <message>
        <source>Tarvik help</source>
        <translation>Guida di Tarvik</translation>
    </message>
    <message>
        <source>&amp;Contents</source>
        <translation>&amp;Indice</translation>
    </message>
    <message>
        <source>&amp;Previous</source>
        <translation>&amp;Precedente</translation>
    </message>
    <message>
        <source>&amp;Next</source>
        <translation>&amp;Successivo</translation>
    </message>
    <message>
        <source>(empty)</source>
        <translation>(vuoto)</translation>
    </message>
    <message>
        <source>on</source>
        <translation>attivo</translation>
    </message>
    <message>
        <source>off</source>
        <translation>disattivo</translation>
    </message>
    <message>
        <source>enabled</source>
        <translation>abilitato</translation>
    </message>
    <message>
        <source>disabled</source>
        <translation>disabilitato</translation>
    </message>
    <message>
        <source>Option &apos;%s&apos;</source>
        <translation>Opzione &apos;%s&apos;</translation>
    </message>
    <message>
        <source>Channels data</source>
        <translation>Dati dei canali</translation>
    </message>
    <message>
        <source>Values table :</source>
        <translation>Tabella dei valori :</translation>
    </message>
    <message>
        <source>Prices table :</source>
        <translation>Tabella dei prezzi :</translation>
    </message>
    <message>
        <source>Configuration :</source>
        <translation>Configurazione :</translation>
    </message>
    <message>
        <source>Enable table :</source>
        <translation>Tabella di abilitazione :</translation>
    </message>
    <message>
        <source>Changes</source>
        <translation>Modifiche</translation>
    </message>
    <message>
        <source>Print...</source>
        <translation>Stampa...</translation>
    </message>
    <message>
        <source>Save as PDF...</source>
        <translation>Salva come PDF...</translation>
    </message>
    <message>
        <source>Configuration sheet</source>
        <translation>Scheda di configurazione</translation>
    </message>
    <message>
        <source>Channels in use</source>
        <translation>Canali in uso</translation>
    </message>
    <message>
        <source>Channel</source>
        <translation>Canale</translation>
    </message>
    <message>
        <source>No channel in use</source>
        <translation>Nessun canale in uso</translation>
    </message>
    <message>
        <source>Overlapping channels:</source>
        <translation>Canali sovrapposti:</translation>
    </message>
    <message>
        <source>Reference channel %d</source>
        <translation>Canale di riferimento %d</translation>
    </message>
    <message>
        <source>No option switched on</source>
        <translation>Nessuna opzione attivata</translation>
    </message>
    <message>
        <source>Windows chart</source>
        <translation>Grafico delle finestre</translation>
    </message>
    <message>
        <source>Printed on %s</source>
        <translation>Stampato il %s</translation>
    </message>
    <message>
        <source>Page %d of %d</source>
        <translation>Pagina %d di %d</translation>
    </message>
    <message>
        <source>No changes since the configuration was last read, opened or written.</source>
        <translation>Nessuna modifica dall&apos;ultima lettura, apertura o scrittura della configurazione.</translation>
    </message>
    <message>
        <source>Channel windows</source>
        <translation>Finestre dei canali</translation>
    </message>
    <message>
        <source>sent</source>
        <translation>inviato</translation>
    </message>
    <message>
        <source>refused by the validator</source>
        <translation>rifiutato dalla gettoniera</translation>
    </message>
    <message>
        <source>Validator&apos;s own block</source>
        <translation>Blocco proprio della gettoniera</translation>
    </message>
    <message>
        <source>%s (channels %s)</source>
        <translation>%s (canali %s)</translation>
    </message>
    <message>
        <source>%s (%s of %s parts)</source>
        <translation>%s (%s parti su %s)</translation>
    </message>
    <message>
        <source>the learned windows</source>
        <translation>le finestre apprese</translation>
    </message>
    <message>
        <source>its former windows</source>
        <translation>le sue finestre precedenti</translation>
    </message>
    <message>
        <source>windows that are not known</source>
        <translation>finestre sconosciute</translation>
    </message>
    <message>
        <source>the value %s</source>
        <translation>il valore %s</translation>
    </message>
    <message>
        <source>no value</source>
        <translation>nessun valore</translation>
    </message>
    <message>
        <source>its former value</source>
        <translation>il suo valore precedente</translation>
    </message>
    <message>
        <source>a value that is not known</source>
        <translation>un valore sconosciuto</translation>
    </message>
    <message>
        <source>its former enable bit</source>
        <translation>il suo bit di abilitazione precedente</translation>
    </message>
    <message>
        <source>an enable bit that is not known</source>
        <translation>un bit di abilitazione sconosciuto</translation>
    </message>
    <message>
        <source>An amount in steps of %s, at most %s; empty: not set</source>
        <translation>Un importo a passi di %s, al massimo %s; vuoto: non impostato</translation>
    </message>
    <message>
        <source>An amount in steps of %s, at most %s; -P1- or -P2- pays price 1 or 2; empty: no value</source>
        <translation>Un importo a passi di %s, al massimo %s; -P1- o -P2- paga il prezzo 1 o 2; vuoto: nessun valore</translation>
    </message>
    <message>
        <source>No base value is set: give the base value first</source>
        <translation>Nessun valore base impostato: indicare prima il valore base</translation>
    </message>
    <message>
        <source>A number from 0 to 254; empty: not set</source>
        <translation>Un numero da 0 a 254; vuoto: non impostato</translation>
    </message>
    <message>
        <source>In tens, from 0 to 2540 (a last digit is dropped); empty: not set</source>
        <translation>A decine, da 0 a 2540 (l&apos;ultima cifra viene scartata); vuoto: non impostato</translation>
    </message>
    <message>
        <source>Milliseconds in steps of 10, at most 630; empty: not set</source>
        <translation>Millisecondi a passi di 10, al massimo 630; vuoto: non impostato</translation>
    </message>
    <message>
        <source>Since read from validator %s at %s</source>
        <translation>Dalla lettura della gettoniera %s alle %s</translation>
    </message>
    <message>
        <source>Since written to validator %s at %s</source>
        <translation>Dalla scrittura nella gettoniera %s alle %s</translation>
    </message>
    <message>
        <source>Since opened from %s (the validator was not read)</source>
        <translation>Dall&apos;apertura di %s (la gettoniera non è stata letta)</translation>
    </message>
    <message>
        <source>Since opened from file %s (the validator was not read)</source>
        <translation>Dall&apos;apertura del file %s (la gettoniera non è stata letta)</translation>
    </message>
    <message>
        <source>Since the editor opened (the validator was not read)</source>
        <translation>Dall&apos;apertura dell&apos;editor (la gettoniera non è stata letta)</translation>
    </message>
    <message>
        <source>Write again</source>
        <translation>Scrivi di nuovo</translation>
    </message>
    <message>
        <source>Put back as it was</source>
        <translation>Ripristina com&apos;era</translation>
    </message>
    <message>
        <source>Go on</source>
        <translation>Continua</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
    <message>
        <source>Write changes</source>
        <translation>Scrivi le modifiche</translation>
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
        <translation>Origine</translation>
    </message>
    <message>
        <source>The editor&apos;s configuration</source>
        <translation>La configurazione dell&apos;editor</translation>
    </message>
    <message>
        <source>A configuration file</source>
        <translation>Un file di configurazione</translation>
    </message>
    <message>
        <source>A saved validator</source>
        <translation>Una gettoniera salvata</translation>
    </message>
    <message>
        <source>Browse...</source>
        <translation>Sfoglia...</translation>
    </message>
    <message>
        <source>What to write</source>
        <translation>Cosa scrivere</translation>
    </message>
    <message>
        <source>Full write (every block, as Write)</source>
        <translation>Scrittura completa (tutti i blocchi, come Scrivi)</translation>
    </message>
    <message>
        <source>How many (0: until Stop) :</source>
        <translation>Quante (0: fino a Ferma) :</translation>
    </message>
    <message>
        <source>Write a validator again when it comes back</source>
        <translation>Riscrivere una gettoniera che ritorna</translation>
    </message>
    <message>
        <source>A sound for each result</source>
        <translation>Un suono per ogni risultato</translation>
    </message>
    <message>
        <source>A configuration sheet for each (PDF, beside the log)</source>
        <translation>Una scheda di configurazione per ciascuna (PDF, accanto al registro)</translation>
    </message>
    <message>
        <source>Verified: %d</source>
        <translation>Verificate: %d</translation>
    </message>
    <message>
        <source>Failed: %d</source>
        <translation>Fallite: %d</translation>
    </message>
    <message>
        <source>Skipped: %d</source>
        <translation>Saltate: %d</translation>
    </message>
    <message>
        <source>Log: %s</source>
        <translation>Registro: %s</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Ora</translation>
    </message>
    <message>
        <source>Serial number</source>
        <translation>Numero di serie</translation>
    </message>
    <message>
        <source>Family</source>
        <translation>Famiglia</translation>
    </message>
    <message>
        <source>Result</source>
        <translation>Risultato</translation>
    </message>
    <message>
        <source>Seconds</source>
        <translation>Secondi</translation>
    </message>
    <message>
        <source>Detail</source>
        <translation>Dettaglio</translation>
    </message>
    <message>
        <source>Verified</source>
        <translation>Verificata</translation>
    </message>
    <message>
        <source>Differs</source>
        <translation>Differisce</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Fallita</translation>
    </message>
    <message>
        <source>Already done</source>
        <translation>Già fatta</translation>
    </message>
    <message>
        <source>Other family</source>
        <translation>Altra famiglia</translation>
    </message>
    <message>
        <source>Validators done</source>
        <translation>Gettoniere trattate</translation>
    </message>
    <message>
        <source>History of validator %d</source>
        <translation>Storico della gettoniera %d</translation>
    </message>
    <message>
        <source>What</source>
        <translation>Operazione</translation>
    </message>
    <message>
        <source>Program</source>
        <translation>Programma</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>Ripristina</translation>
    </message>
    <message>
        <source>Read</source>
        <translation>Lettura</translation>
    </message>
    <message>
        <source>Write</source>
        <translation>Scrittura</translation>
    </message>
    <message>
        <source>Changes write</source>
        <translation>Scrittura delle modifiche</translation>
    </message>
    <message>
        <source>Batch write</source>
        <translation>Scrittura in serie</translation>
    </message>
    <message>
        <source>Channel learned</source>
        <translation>Canale appreso</translation>
    </message>
    <message>
        <source>Calibration</source>
        <translation>Calibrazione</translation>
    </message>
    <message>
        <source>Read backup</source>
        <translation>Copia di lettura</translation>
    </message>
    <message>
        <source>Saved in the tables</source>
        <translation>Salvata nelle tabelle</translation>
    </message>
    <message>
        <source>verified</source>
        <translation>verificato</translation>
    </message>
    <message>
        <source>mismatch</source>
        <translation>diverso</translation>
    </message>
    <message>
        <source>failed</source>
        <translation>fallito</translation>
    </message>
    <message>
        <source>First configuration known</source>
        <translation>Prima configurazione nota</translation>
    </message>
    <message>
        <source>No change</source>
        <translation>Nessuna modifica</translation>
    </message>
    <message>
        <source>Configuration not known</source>
        <translation>Configurazione non nota</translation>
    </message>
    <message>
        <source>Changes of event %d since the one before</source>
        <translation>Modifiche dell&apos;evento %d rispetto al precedente</translation>
    </message>
    <message>
        <source>From event %d to event %d</source>
        <translation>Dall&apos;evento %d all&apos;evento %d</translation>
    </message>
    <message>
        <source>No event is kept for this validator</source>
        <translation>Nessun evento è conservato per questa gettoniera</translation>
    </message>
    <message>
        <source>History...</source>
        <translation>Storico...</translation>
    </message>
    <message>
        <source>Data source...</source>
        <translation>Origine dei dati...</translation>
    </message>
    <message>
        <source>Data source</source>
        <translation>Origine dei dati</translation>
    </message>
    <message>
        <source>Data &amp;directory</source>
        <translation>&amp;Cartella dei dati</translation>
    </message>
    <message>
        <source>&amp;Server (PostgreSQL)</source>
        <translation>&amp;Server (PostgreSQL)</translation>
    </message>
    <message>
        <source>Directory:</source>
        <translation>Cartella:</translation>
    </message>
    <message>
        <source>Address (postgresql://...):</source>
        <translation>Indirizzo (postgresql://...):</translation>
    </message>
    <message>
        <source>&amp;Test connection</source>
        <translation>&amp;Prova la connessione</translation>
    </message>
    <message>
        <source>Connected to %s.</source>
        <translation>Connesso a %s.</translation>
    </message>
</context>
<context>
    <name>Messages</name>
    <message>
        <source>Internal or Comunication Error</source>
        <translation>Errore interno o di comunicazione</translation>
    </message>
    <message>
        <source>Comunication Error !</source>
        <translation>Errore di comunicazione !</translation>
    </message>
    <message>
        <source>Reading Error fron validator</source>
        <translation>Errore di lettura dalla gettoniera</translation>
    </message>
    <message>
        <source>Comunication Port COM%d isn&apos;t free or Setting error.</source>
        <translation>La porta di comunicazione COM%d non è libera o è impostata in modo errato.</translation>
    </message>
    <message>
        <source>This user may not open the serial port. Add the user to the dialout group (sudo usermod -aG dialout $USER), then log out and log in again.</source>
        <translation>Questo utente non ha il permesso di aprire la porta seriale. Aggiungere l&apos;utente al gruppo dialout (sudo usermod -aG dialout $USER), poi chiudere la sessione e accedere di nuovo.</translation>
    </message>
    <message>
        <source>Select port !!!</source>
        <translation>Selezionare una porta !!!</translation>
    </message>
    <message>
        <source>Connect validator </source>
        <translation>Collegare la gettoniera </translation>
    </message>
    <message>
        <source>Validator reading in progress....</source>
        <translation>Lettura della gettoniera in corso....</translation>
    </message>
    <message>
        <source>Saving in progress.....</source>
        <translation>Salvataggio in corso.....</translation>
    </message>
    <message>
        <source>Finished operation!</source>
        <translation>Operazione terminata!</translation>
    </message>
    <message>
        <source>Fault during save operation !</source>
        <translation>Errore durante il salvataggio !</translation>
    </message>
    <message>
        <source>Operation cancelled</source>
        <translation>Operazione annullata</translation>
    </message>
    <message>
        <source>Invalid code table !</source>
        <translation>Tabella dei codici non valida !</translation>
    </message>
    <message>
        <source>Incorrect version of validator</source>
        <translation>Versione della gettoniera non corretta</translation>
    </message>
    <message>
        <source>Save on validator?</source>
        <translation>Salvare nella gettoniera?</translation>
    </message>
    <message>
        <source>By Mini-Pgm</source>
        <translation>Da Mini-Pgm</translation>
    </message>
    <message>
        <source>#NA</source>
        <translation>#ND</translation>
    </message>
    <message>
        <source>Value must be between 0 and 255</source>
        <translation>Il valore deve essere compreso tra 0 e 255</translation>
    </message>
    <message>
        <source>Value over the maximum, it will be correct</source>
        <translation>Valore superiore al massimo, sarà corretto</translation>
    </message>
    <message>
        <source>Value under the minimum, it will be correct.</source>
        <translation>Valore inferiore al minimo, sarà corretto.</translation>
    </message>
    <message>
        <source>&apos;%s&apos; is not a valid integer value</source>
        <translation>&apos;%s&apos; non è un valore intero valido</translation>
    </message>
    <message>
        <source>Value over %d ms, it will be adjusted!</source>
        <translation>Valore superiore a %d ms, sarà adattato!</translation>
    </message>
    <message>
        <source>Wrong way! Please the counter must be desactived if the base value is clear</source>
        <translation>Impossibile! Il contatore deve essere disattivato se il valore base è vuoto</translation>
    </message>
    <message>
        <source>Modifing this value will take effect on channels from 1 to 30 !</source>
        <translation>La modifica di questo valore ha effetto sui canali da 1 a 30 !</translation>
    </message>
    <message>
        <source>Modifing this value will take effect on channels from 31 to 60 !</source>
        <translation>La modifica di questo valore ha effetto sui canali da 31 a 60 !</translation>
    </message>
    <message>
        <source>The value of channels %d and %d is incompatible for the function multi-pulse (max %d pulses)</source>
        <translation>Il valore dei canali %d e %d è incompatibile con la funzione multi-impulso (massimo %d impulsi)</translation>
    </message>
    <message>
        <source>Impossible displacement, the channel of origin and the one of destination coincides</source>
        <translation>Spostamento impossibile, il canale di origine e quello di destinazione coincidono</translation>
    </message>
    <message>
        <source>Identification field must be filled</source>
        <translation>Il campo Identificazione deve essere compilato</translation>
    </message>
    <message>
        <source>%s exist! Overwrite ?</source>
        <translation>%s esiste! Sovrascrivere ?</translation>
    </message>
    <message>
        <source>File %s saved</source>
        <translation>File %s salvato</translation>
    </message>
    <message>
        <source>The validity of data of this validator is not guaranteed by BRUNFELDGroup!</source>
        <translation>La validità dei dati di questa gettoniera non è garantita da BRUNFELDGroup!</translation>
    </message>
    <message>
        <source>Select number of channel !</source>
        <translation>Selezionare il numero del canale !</translation>
    </message>
    <message>
        <source>Number of coins is less than %d. Proceed?</source>
        <translation>Il numero di monete è inferiore a %d. Procedere?</translation>
    </message>
    <message>
        <source>Modify another channel ?</source>
        <translation>Modificare un altro canale ?</translation>
    </message>
    <message>
        <source>Calibrate another channel ?</source>
        <translation>Calibrare un altro canale ?</translation>
    </message>
    <message>
        <source>Values directly saved into validator</source>
        <translation>Valori salvati direttamente nella gettoniera</translation>
    </message>
    <message>
        <source>The value matchs the channel %d. Load it ?</source>
        <translation>Il valore corrisponde al canale %d. Caricarlo ?</translation>
    </message>
    <message>
        <source>No matched data !</source>
        <translation>Nessun dato corrispondente !</translation>
    </message>
    <message>
        <source>Door open, no data will be transfered ;</source>
        <translation>Sportello aperto, nessun dato sarà trasferito ;</translation>
    </message>
    <message>
        <source>Prepare the golden tokens.</source>
        <translation>Preparare i gettoni dorati.</translation>
    </message>
    <message>
        <source>Prepare the silver tokens.</source>
        <translation>Preparare i gettoni argentati.</translation>
    </message>
    <message>
        <source>Insert the golden tokens. (5 pieces)</source>
        <translation>Inserire i gettoni dorati. (5 pezzi)</translation>
    </message>
    <message>
        <source>Insert the silver tokens. (5 pieces)</source>
        <translation>Inserire i gettoni argentati. (5 pezzi)</translation>
    </message>
    <message>
        <source>Reference Channel saved !</source>
        <translation>Canale di riferimento salvato !</translation>
    </message>
    <message>
        <source>Programming Error !</source>
        <translation>Errore di programmazione !</translation>
    </message>
    <message>
        <source>Channel %d is empty! No data to control.</source>
        <translation>Il canale %d è vuoto! Nessun dato da controllare.</translation>
    </message>
    <message>
        <source>No overlapping !</source>
        <translation>Nessuna sovrapposizione !</translation>
    </message>
    <message>
        <source>Table of values transferred in the validator!</source>
        <translation>Tabella dei valori trasferita nella gettoniera!</translation>
    </message>
    <message>
        <source>All data transfered !</source>
        <translation>Tutti i dati sono stati trasferiti !</translation>
    </message>
    <message>
        <source>This option will be activated to the next starting of the program</source>
        <translation>Questa opzione sarà attivata al prossimo avvio del programma</translation>
    </message>
    <message>
        <source>Upgrade over...</source>
        <translation>Aggiornamento terminato...</translation>
    </message>
    <message>
        <source>Operation cancelled by operator</source>
        <translation>Operazione annullata dall&apos;operatore</translation>
    </message>
    <message>
        <source>Updating... Please Wait !</source>
        <translation>Aggiornamento in corso... Attendere !</translation>
    </message>
    <message>
        <source>Don&apos;t Stop or disconnect !!!</source>
        <translation>Non interrompere né scollegare !!!</translation>
    </message>
    <message>
        <source>Please connect the mini-programer.</source>
        <translation>Collegare il mini-programmatore.</translation>
    </message>
    <message>
        <source>The user guide %s is not installed.</source>
        <translation>La guida dell&apos;utente %s non è installata.</translation>
    </message>
    <message>
        <source>Channel %d of the validator differs from the one of this configuration: the windows may not suit this validator. Continue?</source>
        <translation>Il canale %d della gettoniera differisce da quello di questa configurazione: le finestre potrebbero non essere adatte a questa gettoniera. Continuare?</translation>
    </message>
    <message>
        <source>%s is missing</source>
        <translation>%s manca</translation>
    </message>
    <message>
        <source>%s cannot be opened: %s</source>
        <translation>%s non può essere aperto: %s</translation>
    </message>
    <message>
        <source>%s cannot be written: %s</source>
        <translation>%s non può essere scritto: %s</translation>
    </message>
    <message>
        <source>%s is not a dBase table of level 3, 4, 5 or 7</source>
        <translation>%s non è una tabella dBase di livello 3, 4, 5 o 7</translation>
    </message>
    <message>
        <source>%s has a damaged header: its header length, record length and field widths do not add up</source>
        <translation>%s ha un&apos;intestazione danneggiata: lunghezza dell&apos;intestazione, lunghezza del record e larghezze dei campi non corrispondono</translation>
    </message>
    <message>
        <source>%s has a damaged header: field %s is not valid</source>
        <translation>%s ha un&apos;intestazione danneggiata: il campo %s non è valido</translation>
    </message>
    <message>
        <source>%s is truncated: it holds %s of its %s records</source>
        <translation>%s è troncato: contiene %s dei suoi %s record</translation>
    </message>
    <message>
        <source>%s has no field %s</source>
        <translation>%s non ha il campo %s</translation>
    </message>
    <message>
        <source>%s: field %s is of type %s where %s is expected</source>
        <translation>%s: il campo %s è di tipo %s mentre è atteso %s</translation>
    </message>
    <message>
        <source>%s cannot be changed: the file or its directory is read-only</source>
        <translation>%s non può essere modificato: il file o la sua cartella è in sola lettura</translation>
    </message>
    <message>
        <source>%s cannot be changed: its index tag %s (%s) is not one this program can keep up to date</source>
        <translation>%s non può essere modificato: il suo tag di indice %s (%s) non può essere aggiornato da questo programma</translation>
    </message>
    <message>
        <source>%s cannot be changed: its language driver %s sorts keys in an order this program cannot keep</source>
        <translation>%s non può essere modificato: il suo driver di lingua %s ordina le chiavi in un ordine che questo programma non può mantenere</translation>
    </message>
    <message>
        <source>The value %s does not fit field %s of %s</source>
        <translation>Il valore %s non entra nel campo %s di %s</translation>
    </message>
    <message>
        <source>The index %s was not usable (%s) and has been rebuilt from %s</source>
        <translation>L&apos;indice %s non era utilizzabile (%s) ed è stato ricostruito da %s</translation>
    </message>
    <message>
        <source>The index %s is not usable (%s) and cannot be rebuilt now</source>
        <translation>L&apos;indice %s non è utilizzabile (%s) e non può essere ricostruito ora</translation>
    </message>
    <message>
        <source>it is missing</source>
        <translation>manca</translation>
    </message>
    <message>
        <source>its header is damaged</source>
        <translation>la sua intestazione è danneggiata</translation>
    </message>
    <message>
        <source>its pages are damaged</source>
        <translation>le sue pagine sono danneggiate</translation>
    </message>
    <message>
        <source>its keys are out of order</source>
        <translation>le sue chiavi non sono in ordine</translation>
    </message>
    <message>
        <source>its entries do not match the records</source>
        <translation>le sue voci non corrispondono ai record</translation>
    </message>
    <message>
        <source>tag %s is missing or does not match its field</source>
        <translation>il tag %s manca o non corrisponde al suo campo</translation>
    </message>
    <message>
        <source>its language driver differs from the table&apos;s</source>
        <translation>il suo driver di lingua differisce da quello della tabella</translation>
    </message>
    <message>
        <source>The data directory %s has been created with empty tables</source>
        <translation>La cartella dati %s è stata creata con tabelle vuote</translation>
    </message>
    <message>
        <source>Empty tables have been created in %s: %s</source>
        <translation>Sono state create tabelle vuote in %s: %s</translation>
    </message>
    <message>
        <source>No validator %s is stored</source>
        <translation>Nessuna gettoniera %s è memorizzata</translation>
    </message>
    <message>
        <source>The settings could not be read; the defaults are used until a setting is changed.</source>
        <translation>Non è stato possibile leggere le impostazioni; si usano i valori predefiniti finché non si modifica un&apos;impostazione.</translation>
    </message>
    <message>
        <source>The file %s could not be read.</source>
        <translation>Non è stato possibile leggere il file %s.</translation>
    </message>
    <message>
        <source>The sheet could not be written to %s: %s. Nothing else was changed.</source>
        <translation>Non è stato possibile scrivere la scheda in %s: %s. Nient&apos;altro è stato modificato.</translation>
    </message>
    <message>
        <source>The sheet could not be printed.</source>
        <translation>Non è stato possibile stampare la scheda.</translation>
    </message>
    <message>
        <source>%s was changed by another program; open it again before changing it</source>
        <translation>%s è stato modificato da un altro programma; aprirlo di nuovo prima di modificarlo</translation>
    </message>
    <message>
        <source>%s: waited %s s for %s holding the lock; nothing written</source>
        <translation>%s: attesi %s s per %s che detiene il blocco; non è stato scritto nulla</translation>
    </message>
    <message>
        <source>another program</source>
        <translation>un altro programma</translation>
    </message>
    <message>
        <source>%s has been changed by another program since it was shown. Delete it anyway ?</source>
        <translation>%s è stato modificato da un altro programma da quando è stato mostrato. Eliminarlo comunque?</translation>
    </message>
    <message>
        <source>The data directory %s cannot be created</source>
        <translation>La cartella dati %s non può essere creata</translation>
    </message>
    <message>
        <source>The backup of this read could not be written: %s</source>
        <translation>Non è stato possibile scrivere il backup di questa lettura: %s</translation>
    </message>
    <message>
        <source>The tables of the data directory are not open.</source>
        <translation>Le tabelle della cartella dati non sono aperte.</translation>
    </message>
    <message>
        <source>The file holds a %s validator but a %s validator is connected: nothing was written.</source>
        <translation>Il file contiene una gettoniera %s ma è collegata una gettoniera %s: non è stato scritto nulla.</translation>
    </message>
    <message>
        <source>%d Overlapping</source>
        <translation>%d sovrapposizioni</translation>
    </message>
    <message>
        <source>%d superposition(s)</source>
        <translation>%d sovrapposizione/i</translation>
    </message>
    <message>
        <source>%s has no row for channels %s: they open empty.</source>
        <translation>%s non ha righe per i canali %s: si aprono vuoti.</translation>
    </message>
    <message>
        <source>%s has more than one row for channels %s: the first row of each is used.</source>
        <translation>%s ha più di una riga per i canali %s: si usa la prima di ciascuno.</translation>
    </message>
    <message>
        <source>Delete %s and its channels from the tables?</source>
        <translation>Eliminare %s e i suoi canali dalle tabelle?</translation>
    </message>
    <message>
        <source>No value table %s is stored</source>
        <translation>Nessuna tabella dei valori %s è salvata</translation>
    </message>
    <message>
        <source>Delete record?</source>
        <translation>Eliminare il record?</translation>
    </message>
    <message>
        <source>%s is truncated inside its header: none of its records can be read</source>
        <translation>%s è troncato nella sua intestazione: nessuno dei suoi record può essere letto</translation>
    </message>
    <message>
        <source>%s. It is opened read-only with the records that can be read; repair the tables to change it.</source>
        <translation>%s. È aperto in sola lettura con i record leggibili; riparare le tabelle per modificarlo.</translation>
    </message>
    <message>
        <source>%s is damaged and cannot be changed until the tables are repaired</source>
        <translation>%s è danneggiato e non può essere modificato finché le tabelle non sono riparate</translation>
    </message>
    <message>
        <source>%s. Nothing of it can be read; the file is left as it is.</source>
        <translation>%s. Non se ne può leggere nulla; il file viene lasciato com&apos;è.</translation>
    </message>
    <message>
        <source>%s is not open: nothing can be read from it or stored in it</source>
        <translation>%s non è aperto: non vi si può leggere né salvare nulla</translation>
    </message>
    <message>
        <source>%s is sound and was left untouched</source>
        <translation>%s è integro ed è stato lasciato intatto</translation>
    </message>
    <message>
        <source>%s repaired: %s records kept, %s could not be read; the damaged files are kept in %s</source>
        <translation>%s riparato: %s record conservati, %s illeggibili; i file danneggiati sono conservati in %s</translation>
    </message>
    <message>
        <source>%s: its index was rebuilt from the table; the old files are kept in %s</source>
        <translation>%s: il suo indice è stato ricostruito dalla tabella; i vecchi file sono conservati in %s</translation>
    </message>
    <message>
        <source>%s could not be repaired: %s</source>
        <translation>%s non ha potuto essere riparato: %s</translation>
    </message>
    <message>
        <source>The index %s is not usable (%s)</source>
        <translation>L&apos;indice %s non è utilizzabile (%s)</translation>
    </message>
    <message>
        <source>Verifying...</source>
        <translation>Verifica in corso...</translation>
    </message>
    <message>
        <source>Verified: the validator holds the configuration.</source>
        <translation>Verificato: la gettoniera contiene la configurazione.</translation>
    </message>
    <message>
        <source>The validator does not hold what was written:</source>
        <translation>La gettoniera non contiene ciò che è stato scritto:</translation>
    </message>
    <message>
        <source>Verification failed: the validator could not be read back.</source>
        <translation>Verifica non riuscita: impossibile rileggere la gettoniera.</translation>
    </message>
    <message>
        <source>... and %d more.</source>
        <translation>... e altre %d.</translation>
    </message>
    <message>
        <source>No space left on the disk: nothing was written</source>
        <translation>Spazio esaurito sul disco: non è stato scritto nulla</translation>
    </message>
    <message>
        <source>The disk quota is used up: nothing was written</source>
        <translation>La quota del disco è esaurita: non è stato scritto nulla</translation>
    </message>
    <message>
        <source>The disk is read-only: nothing was written</source>
        <translation>Il disco è di sola lettura: non è stato scritto nulla</translation>
    </message>
    <message>
        <source>Writing in this folder is not allowed: nothing was written</source>
        <translation>La scrittura in questa cartella non è consentita: non è stato scritto nulla</translation>
    </message>
    <message>
        <source>The folder does not exist: nothing was written</source>
        <translation>La cartella non esiste: non è stato scritto nulla</translation>
    </message>
    <message>
        <source>The disk reported an error (%s): nothing was written</source>
        <translation>Il disco ha segnalato un errore (%s): non è stato scritto nulla</translation>
    </message>
    <message>
        <source>&quot;%s&quot; cannot be stored in %s: its code page has no %s. Nothing was written.</source>
        <translation>«%s» non può essere memorizzato in %s: la sua tabella codici non ha %s. Non è stato scritto nulla.</translation>
    </message>
    <message>
        <source>&quot;%s&quot; is too long for %s: it holds at most %s characters. Nothing was written.</source>
        <translation>«%s» è troppo lungo per %s: contiene al massimo %s caratteri. Non è stato scritto nulla.</translation>
    </message>
    <message>
        <source>%s counts %s records in its header, but its index and its length prove %s</source>
        <translation>%s conta %s record nella sua intestazione, ma il suo indice e la sua lunghezza ne provano %s</translation>
    </message>
    <message>
        <source>the rebuilt table could not be read back as written</source>
        <translation>la tabella ricostruita non ha potuto essere riletta come è stata scritta</translation>
    </message>
    <message>
        <source>The settings file %s could not be read; it has been kept as %s. The defaults are used, with the tables in %s.</source>
        <translation>Il file delle impostazioni %s non può essere letto; è stato conservato come %s. Si usano i valori predefiniti, con le tabelle in %s.</translation>
    </message>
    <message>
        <source>The settings file %s could not be read. The defaults are used, with the tables in %s.</source>
        <translation>Il file delle impostazioni %s non può essere letto. Si usano i valori predefiniti, con le tabelle in %s.</translation>
    </message>
    <message>
        <source>No coin profile %s is stored</source>
        <translation>Nessun profilo moneta %s è salvato</translation>
    </message>
    <message>
        <source>An amount cannot be negative: %s was not stored.</source>
        <translation>Un importo non può essere negativo: %s non è stato memorizzato.</translation>
    </message>
    <message>
        <source>The validator now holds a partly written configuration (written: %s); nothing already written was undone. Write it again before use.</source>
        <translation>La gettoniera contiene ora una configurazione scritta in parte (scritto: %s); nulla di quanto già scritto è stato annullato. Scriverla di nuovo prima dell&apos;uso.</translation>
    </message>
    <message>
        <source>Nothing was written: the validator holds what it held before.</source>
        <translation>Non è stato scritto nulla: la gettoniera contiene ciò che conteneva prima.</translation>
    </message>
    <message>
        <source>The validator refused: %s.</source>
        <translation>La gettoniera ha rifiutato: %s.</translation>
    </message>
    <message>
        <source>No answer came after sending %s: the validator may or may not hold it.</source>
        <translation>Nessuna risposta dopo l&apos;invio di %s: la gettoniera potrebbe contenerlo oppure no.</translation>
    </message>
    <message>
        <source>Channel %d was not saved into the validator.</source>
        <translation>Il canale %d non è stato salvato nella gettoniera.</translation>
    </message>
    <message>
        <source>Channel %d of the validator now holds %s.</source>
        <translation>Il canale %d della gettoniera contiene ora %s.</translation>
    </message>
    <message>
        <source>%s is empty: it is not a firmware file. Nothing was sent.</source>
        <translation>%s è vuoto: non è un file firmware. Non è stato inviato nulla.</translation>
    </message>
    <message>
        <source>%s is not a Motorola S-record firmware file: line %d %s. Nothing was sent.</source>
        <translation>%s non è un file firmware Motorola S-record: la riga %d %s. Non è stato inviato nulla.</translation>
    </message>
    <message>
        <source>does not begin with S0 to S9</source>
        <translation>non inizia con S0..S9</translation>
    </message>
    <message>
        <source>holds a character that is not a hexadecimal digit</source>
        <translation>contiene un carattere che non è una cifra esadecimale</translation>
    </message>
    <message>
        <source>has a byte count that does not match its length</source>
        <translation>ha un conteggio di byte che non corrisponde alla sua lunghezza</translation>
    </message>
    <message>
        <source>has a wrong checksum</source>
        <translation>ha un checksum errato</translation>
    </message>
    <message>
        <source>The mini-programmer must be in its upgrade mode before the file is sent. Send %s now?</source>
        <translation>Il mini-programmatore deve essere in modalità aggiornamento prima dell&apos;invio del file. Inviare %s ora?</translation>
    </message>
    <message>
        <source>%s holds %d bytes: sent byte by byte at 9600 baud, it takes hours. Send it all the same?</source>
        <translation>%s contiene %d byte: inviato byte per byte a 9600 baud, richiede ore. Inviarlo comunque?</translation>
    </message>
    <message>
        <source>The port was lost during the transfer: %d of %d bytes left the port: the upgrade is not complete.</source>
        <translation>La porta è stata persa durante il trasferimento: %d byte su %d hanno lasciato la porta: l&apos;aggiornamento non è completo.</translation>
    </message>
    <message>
        <source>%s is locked by %s: waiting at most %s s</source>
        <translation>%s è bloccato da %s: attesa di al massimo %s s</translation>
    </message>
    <message>
        <source>%s: waited %s s for %s holding the lock; nothing read</source>
        <translation>%s: attesi %s s per %s che detiene il blocco; non è stato letto nulla</translation>
    </message>
    <message>
        <source>%s is not a file (a folder, a pipe or a device): it is not opened</source>
        <translation>%s non è un file (una cartella, una pipe o un dispositivo): non viene aperto</translation>
    </message>
    <message>
        <source>The data directory %s cannot be read: %s</source>
        <translation>La cartella dei dati %s non può essere letta: %s</translation>
    </message>
    <message>
        <source>%s holds %s channel rows of no stored validator: %s</source>
        <translation>%s contiene %s righe di canali di nessuna gettoniera memorizzata: %s</translation>
    </message>
    <message>
        <source>%s holds validators without channel rows: %s; they are kept and open with every channel empty</source>
        <translation>%s contiene gettoniere senza righe di canali: %s; sono conservate e si aprono con tutti i canali vuoti</translation>
    </message>
    <message>
        <source>%s: %s channel rows of no stored validator removed (copies in %s)</source>
        <translation>%s: %s righe di canali di nessuna gettoniera memorizzata rimosse (copie in %s)</translation>
    </message>
    <message>
        <source>Coin ignored: choose a channel first</source>
        <translation>Moneta ignorata: scegliere prima un canale</translation>
    </message>
    <message>
        <source>Matched: %s</source>
        <translation>Riconosciuta: %s</translation>
    </message>
    <message>
        <source>Overlap with %s</source>
        <translation>Sovrapposizione con %s</translation>
    </message>
    <message>
        <source>The validator&apos;s own configuration could not be read before cloning: nothing was cloned.</source>
        <translation>Non è stato possibile leggere la configurazione della gettoniera prima della clonazione: nulla è stato clonato.</translation>
    </message>
    <message>
        <source>The validator&apos;s own configuration could not be kept before cloning: %s. Clone all the same?</source>
        <translation>Non è stato possibile conservare la configurazione della gettoniera prima della clonazione: %s. Clonare comunque?</translation>
    </message>
    <message>
        <source>The validator&apos;s own configuration was kept in %s.</source>
        <translation>La configurazione della gettoniera è stata conservata in %s.</translation>
    </message>
    <message>
        <source>Windows corrected for this validator&apos;s sensors: %s.</source>
        <translation>Finestre corrette per i sensori di questa gettoniera: %s.</translation>
    </message>
    <message>
        <source>Windows copied as they are: the source or this validator has no reference channel to correct them by.</source>
        <translation>Finestre copiate così come sono: la sorgente o questa gettoniera non ha un canale di riferimento per correggerle.</translation>
    </message>
    <message>
        <source>Verifying... do not unplug the validator</source>
        <translation>Verifica in corso... non scollegare la gettoniera</translation>
    </message>
    <message>
        <source>The validator does not have %d changes this editor holds (see Changes). Store in the tables all the same?</source>
        <translation>La gettoniera non ha %d modifiche presenti in questo editor (vedere Modifiche). Salvare comunque nelle tabelle?</translation>
    </message>
    <message>
        <source>The validator does not have %d changes this editor holds (see Changes); opening replaces them in the editor. Open all the same?</source>
        <translation>La gettoniera non ha %d modifiche presenti in questo editor (vedere Modifiche); l&apos;apertura le sostituisce nell&apos;editor. Aprire comunque?</translation>
    </message>
    <message>
        <source>What the validator holds is the configuration of a %s validator with %s channels, the one to write is of a %s validator with %s channels: nothing was written.</source>
        <translation>La gettoniera contiene la configurazione di una gettoniera %s con %s canali, quella da scrivere è di una gettoniera %s con %s canali: non è stato scritto nulla.</translation>
    </message>
    <message>
        <source>This validator (serial %s) is not the one read (serial %s): nothing was written.</source>
        <translation>Questa gettoniera (numero di serie %s) non è quella letta (numero di serie %s): non è stato scritto nulla.</translation>
    </message>
    <message>
        <source>This validator (serial %s) has %s firmware, the one read (serial %s) had %s: nothing was written.</source>
        <translation>Questa gettoniera (numero di serie %s) ha il firmware %s, quella letta (numero di serie %s) aveva %s: non è stato scritto nulla.</translation>
    </message>
    <message>
        <source>Validator %s was programmed (%s) after what it holds was read: it was written elsewhere since. Read it again; nothing was written.</source>
        <translation>La gettoniera %s è stata programmata (%s) dopo la lettura del suo contenuto: da allora è stata scritta altrove. Rileggerla; non è stato scritto nulla.</translation>
    </message>
    <message>
        <source>The validator already holds this configuration: nothing was written.</source>
        <translation>La gettoniera contiene già questa configurazione: non è stato scritto nulla.</translation>
    </message>
    <message>
        <source>What validator %s holds is not known (it was not read here): only the whole configuration can be written.</source>
        <translation>Il contenuto della gettoniera %s non è noto (non è stata letta qui): si può scrivere solo l&apos;intera configurazione.</translation>
    </message>
    <message>
        <source>Plug the next validator</source>
        <translation>Collegare la gettoniera successiva</translation>
    </message>
    <message>
        <source>Validator found: reading its identification...</source>
        <translation>Gettoniera trovata: lettura della sua identificazione...</translation>
    </message>
    <message>
        <source>Writing %s...</source>
        <translation>Scrittura di %s...</translation>
    </message>
    <message>
        <source>Verifying %s...</source>
        <translation>Verifica di %s...</translation>
    </message>
    <message>
        <source>%s verified: unplug it</source>
        <translation>%s verificata: scollegarla</translation>
    </message>
    <message>
        <source>%s does not hold what was written: unplug it</source>
        <translation>%s non contiene ciò che è stato scritto: scollegarla</translation>
    </message>
    <message>
        <source>%s failed: unplug it</source>
        <translation>%s fallita: scollegarla</translation>
    </message>
    <message>
        <source>%s was already done: unplug it</source>
        <translation>%s era già fatta: scollegarla</translation>
    </message>
    <message>
        <source>%s is of another family: unplug it</source>
        <translation>%s è di un&apos;altra famiglia: scollegarla</translation>
    </message>
    <message>
        <source>Batch finished: %d verified, %d failed, %d skipped.</source>
        <translation>Serie terminata: %d verificate, %d fallite, %d saltate.</translation>
    </message>
    <message>
        <source>No validator was plugged for %d s: the batch stopped.</source>
        <translation>Nessuna gettoniera collegata da %d s: la serie si è fermata.</translation>
    </message>
    <message>
        <source>The batch log could not be written (%s): the batch stopped.</source>
        <translation>Il registro della serie non ha potuto essere scritto (%s): la serie si è fermata.</translation>
    </message>
    <message>
        <source>Already verified in this batch at %s: not written again.</source>
        <translation>Già verificata in questa serie alle %s: non riscritta.</translation>
    </message>
    <message>
        <source>A %s validator, the configuration is for %s: nothing was written.</source>
        <translation>Una gettoniera %s, la configurazione è per %s: non è stato scritto nulla.</translation>
    </message>
    <message>
        <source>Its own configuration could not be read: nothing was written.</source>
        <translation>La sua configurazione non ha potuto essere letta: non è stato scritto nulla.</translation>
    </message>
    <message>
        <source>Its own configuration could not be kept (%s): nothing was written.</source>
        <translation>La sua configurazione non ha potuto essere conservata (%s): non è stato scritto nulla.</translation>
    </message>
    <message>
        <source>It no longer answered before the write: nothing was written.</source>
        <translation>Non rispondeva più prima della scrittura: non è stato scritto nulla.</translation>
    </message>
    <message>
        <source>Written, but it could not be read back to verify it.</source>
        <translation>Scritta, ma non ha potuto essere riletta per verificarla.</translation>
    </message>
    <message>
        <source>No validator is stored as %s.</source>
        <translation>Nessuna gettoniera è salvata come %s.</translation>
    </message>
    <message>
        <source>Choose at least one group to write, or the full write.</source>
        <translation>Scegliere almeno un gruppo da scrivere, o la scrittura completa.</translation>
    </message>
    <message>
        <source>How many validators: a number from 0 to 9999.</source>
        <translation>Quante gettoniere: un numero da 0 a 9999.</translation>
    </message>
    <message>
        <source>Choose the configuration to write.</source>
        <translation>Scegliere la configurazione da scrivere.</translation>
    </message>
    <message>
        <source>The configuration sheet could not be written: %s</source>
        <translation>La scheda di configurazione non ha potuto essere scritta: %s</translation>
    </message>
    <message>
        <source>The history could not be kept: %s</source>
        <translation>Non è stato possibile conservare lo storico: %s</translation>
    </message>
    <message>
        <source>No history is known for the serial number %s</source>
        <translation>Nessuno storico è noto per il numero di serie %s</translation>
    </message>
    <message>
        <source>This event holds no configuration to put back</source>
        <translation>Questo evento non contiene alcuna configurazione da ripristinare</translation>
    </message>
    <message>
        <source>Put the validator back as it was on %s? This changes:
%s</source>
        <translation>Riportare la gettoniera allo stato del %s? Questo modifica:
%s</translation>
    </message>
    <message>
        <source>The validator already holds the configuration of %s</source>
        <translation>La gettoniera contiene già la configurazione del %s</translation>
    </message>
    <message>
        <source>The history could not be read: %s</source>
        <translation>Non è stato possibile leggere lo storico: %s</translation>
    </message>
    <message>
        <source>The validator connected has the serial number %s, not %s: nothing was written</source>
        <translation>La gettoniera collegata ha il numero di serie %s, non %s: non è stato scritto nulla</translation>
    </message>
    <message>
        <source>No history notes the validator saved as %s: its history is known once it is saved after a read or a write</source>
        <translation>Nessuno storico indica la gettoniera salvata come %s: il suo storico è noto una volta salvata dopo una lettura o una scrittura</translation>
    </message>
    <message>
        <source>The server %s cannot be reached: nothing was stored.</source>
        <translation>Il server %s non è raggiungibile: non è stato salvato nulla.</translation>
    </message>
    <message>
        <source>The server %s cannot be reached.</source>
        <translation>Il server %s non è raggiungibile.</translation>
    </message>
    <message>
        <source>The tables on the server %s were made by a later version (%d); this program knows version %d and changes nothing.</source>
        <translation>Le tabelle sul server %s sono state create da una versione più recente (%d); questo programma conosce la versione %d e non modifica nulla.</translation>
    </message>
    <message>
        <source>The password is not kept in the settings: put it in ~/.pgpass or PGPASSWORD.</source>
        <translation>La password non viene conservata nelle impostazioni: inseritela in ~/.pgpass o in PGPASSWORD.</translation>
    </message>
</context>
<context>
    <name>SimulatorPanel</name>
    <message>
        <source>Virtual validator</source>
        <translation>Gettoniera virtuale</translation>
    </message>
    <message>
        <source>Validator</source>
        <translation>Gettoniera</translation>
    </message>
    <message>
        <source>Family :</source>
        <translation>Famiglia :</translation>
    </message>
    <message>
        <source>Serial number :</source>
        <translation>Numero di serie :</translation>
    </message>
    <message>
        <source>Fit a new validator</source>
        <translation>Monta una nuova gettoniera</translation>
    </message>
    <message>
        <source>Coins</source>
        <translation>Monete</translation>
    </message>
    <message>
        <source>Insert</source>
        <translation>Inserisci</translation>
    </message>
    <message>
        <source>Door open</source>
        <translation>Sportello aperto</translation>
    </message>
    <message>
        <source>Cable plugged in</source>
        <translation>Cavo collegato</translation>
    </message>
    <message>
        <source>Mini-programmer (firmware upgrade)</source>
        <translation>Mini-programmatore (aggiornamento firmware)</translation>
    </message>
    <message>
        <source>Coins waiting : %1</source>
        <translation>Monete in attesa : %1</translation>
    </message>
    <message>
        <source>Ask for firmware (code 11)</source>
        <translation>Richiedi il firmware (codice 11)</translation>
    </message>
    <message>
        <source>Test mode</source>
        <translation>Modalità test</translation>
    </message>
    <message>
        <source>Golden token</source>
        <translation>Gettone dorato</translation>
    </message>
    <message>
        <source>Silver token</source>
        <translation>Gettone argentato</translation>
    </message>
    <message>
        <source>Line</source>
        <translation>Linea</translation>
    </message>
    <message>
        <source>9600 baud pacing</source>
        <translation>Cadenza a 9600 baud</translation>
    </message>
    <message>
        <source>Count echo after (ms) :</source>
        <translation>Eco del conteggio dopo (ms) :</translation>
    </message>
    <message>
        <source>Reply after (ms) :</source>
        <translation>Risposta dopo (ms) :</translation>
    </message>
    <message>
        <source>Adapter bursts every (ms) :</source>
        <translation>Pacchetti dell&apos;adattatore ogni (ms) :</translation>
    </message>
    <message>
        <source>Pause in replies after byte, for (ms) :</source>
        <translation>Pausa nelle risposte dopo il byte, per (ms) :</translation>
    </message>
    <message>
        <source>Random seed :</source>
        <translation>Seme casuale :</translation>
    </message>
    <message>
        <source>Count echo after at most (ms)</source>
        <translation>Eco del conteggio dopo al massimo (ms)</translation>
    </message>
    <message>
        <source>Reply after at most (ms)</source>
        <translation>Risposta dopo al massimo (ms)</translation>
    </message>
    <message>
        <source>Pause in replies (ms)</source>
        <translation>Pausa nelle risposte (ms)</translation>
    </message>
    <message>
        <source>Unplug</source>
        <translation>Scollega</translation>
    </message>
    <message>
        <source>Plug in this serial</source>
        <translation>Collega questo numero di serie</translation>
    </message>
</context>
<context>
    <name>TCloningChk</name>
    <message>
        <source>Cloning</source>
        <translation>Clonazione</translation>
    </message>
    <message>
        <source>Please! Be sure that validator is connected.</source>
        <translation>Attenzione! Verificare che la gettoniera sia collegata.</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Opzioni</translation>
    </message>
    <message>
        <source>Channels data</source>
        <translation>Dati dei canali</translation>
    </message>
    <message>
        <source>Values table :</source>
        <translation>Tabella dei valori :</translation>
    </message>
    <message>
        <source>Prices table :</source>
        <translation>Tabella dei prezzi :</translation>
    </message>
    <message>
        <source>Configuration :</source>
        <translation>Configurazione :</translation>
    </message>
    <message>
        <source>Enable table :</source>
        <translation>Tabella di abilitazione :</translation>
    </message>
    <message>
        <source>&amp;OK</source>
        <translation>&amp;OK</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Annulla</translation>
    </message>
</context>
<context>
    <name>TCommunication</name>
    <message>
        <source>Communication</source>
        <translation>Comunicazione</translation>
    </message>
    <message>
        <source>Port selection</source>
        <translation>Selezione della porta</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>Porta</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>&amp;Exit</source>
        <translation>&amp;Esci</translation>
    </message>
</context>
<context>
    <name>TConnectForm</name>
    <message>
        <source>Mini-programmer</source>
        <translation>Mini-programmatore</translation>
    </message>
</context>
<context>
    <name>TFormAvertissementDif</name>
    <message>
        <source>Warning</source>
        <translation>Avviso</translation>
    </message>
    <message>
        <source>&amp;Continue</source>
        <translation>&amp;Continua</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Annulla</translation>
    </message>
</context>
<context>
    <name>TFormCAdjust</name>
    <message>
        <source>Channel to adjust</source>
        <translation>Canale da regolare</translation>
    </message>
    <message>
        <source>&amp;Channel :</source>
        <translation>&amp;Canale :</translation>
    </message>
    <message>
        <source>0 = searching for nearest</source>
        <translation>0 = ricerca del più vicino</translation>
    </message>
    <message>
        <source>&amp;Automatic adjustment :</source>
        <translation>Regolazione &amp;automatica :</translation>
    </message>
    <message>
        <source>&amp;OK</source>
        <translation>&amp;OK</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Annulla</translation>
    </message>
</context>
<context>
    <name>TFormCondotto</name>
    <message>
        <source>Output</source>
        <translation>Uscita</translation>
    </message>
    <message>
        <source>Game</source>
        <translation>Gioco</translation>
    </message>
    <message>
        <source>Vending</source>
        <translation>Vendita</translation>
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
        <translation>&amp;Parametri</translation>
    </message>
    <message>
        <source>&amp;Sound</source>
        <translation>&amp;Suono</translation>
    </message>
    <message>
        <source>&amp;Auto adjust</source>
        <translation>&amp;Regolazione automatica</translation>
    </message>
    <message>
        <source>&amp;Direct write</source>
        <translation>Scrittura &amp;diretta</translation>
    </message>
    <message>
        <source>&amp;Langage</source>
        <translation>&amp;Lingua</translation>
    </message>
    <message>
        <source>&amp;Local</source>
        <translation>&amp;Locale</translation>
    </message>
    <message>
        <source>Firmware upgrade...</source>
        <translation>Aggiornamento firmware...</translation>
    </message>
    <message>
        <source>&amp;Back</source>
        <translation>&amp;Indietro</translation>
    </message>
    <message>
        <source>&amp;Exit</source>
        <translation>&amp;Esci</translation>
    </message>
    <message>
        <source>&amp;Verify after write</source>
        <translation>&amp;Verifica dopo la scrittura</translation>
    </message>
    <message>
        <source>Reads the validator back after each write and lists what it does not hold</source>
        <translation>Rilegge la gettoniera dopo ogni scrittura ed elenca ciò che non contiene</translation>
    </message>
    <message>
        <source>Port &amp;time-out...</source>
        <translation>&amp;Timeout della porta...</translation>
    </message>
    <message>
        <source>How long to wait for the validator&apos;s first byte: raise it for Bluetooth or radio serial adapters</source>
        <translation>Quanto attendere il primo byte della gettoniera: aumentarlo per adattatori seriali Bluetooth o radio</translation>
    </message>
    <message>
        <source>Port time-out</source>
        <translation>Timeout della porta</translation>
    </message>
    <message>
        <source>Wait for a count echo or a reply&apos;s first byte, in milliseconds (%1 by default):</source>
        <translation>Attesa dell&apos;eco del conteggio o del primo byte di una risposta, in millisecondi (%1 predefinito):</translation>
    </message>
    <message>
        <source>&amp;Back up before cloning</source>
        <translation>&amp;Backup prima della clonazione</translation>
    </message>
    <message>
        <source>Reads the validator a clone writes to and keeps its own configuration among the backups first</source>
        <translation>Legge la gettoniera su cui scrive una clonazione e conserva prima la sua configurazione tra i backup</translation>
    </message>
    <message>
        <source>Only for calibration: leaving a window, value, substitute or enable box of a channel writes that channel&apos;s change to the validator at once and checks it</source>
        <translation>Solo per la taratura: lasciare una casella di finestra, valore, sostituto o abilitazione di un canale scrive subito la modifica di quel canale nella gettoniera e la verifica</translation>
    </message>
    <message>
        <source>Only for calibration</source>
        <translation>Solo per la calibrazione</translation>
    </message>
</context>
<context>
    <name>TFormProfilC</name>
    <message>
        <source>Coin Profile</source>
        <translation>Profilo moneta</translation>
    </message>
    <message>
        <source>&amp;Name :</source>
        <translation>&amp;Nome :</translation>
    </message>
    <message>
        <source>&amp;Description :</source>
        <translation>&amp;Descrizione :</translation>
    </message>
    <message>
        <source>Substitution channel :</source>
        <translation>Canale di sostituzione :</translation>
    </message>
    <message>
        <source>&amp;Enable</source>
        <translation>A&amp;bilita</translation>
    </message>
    <message>
        <source>&amp;Value : </source>
        <translation>&amp;Valore : </translation>
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
        <translation>Tolleranze</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Descrizione</translation>
    </message>
    <message>
        <source>Values</source>
        <translation>Valori</translation>
    </message>
    <message>
        <source>Items</source>
        <translation>Voci</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>Apr&amp;i</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Salva</translation>
    </message>
    <message>
        <source>&amp;Exit</source>
        <translation>&amp;Esci</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>Annu&amp;lla</translation>
    </message>
    <message>
        <source>HFU low min.</source>
        <translation>HFU basso min.</translation>
    </message>
    <message>
        <source>HFU low max.</source>
        <translation>HFU basso max.</translation>
    </message>
    <message>
        <source>HFU high min.</source>
        <translation>HFU alto min.</translation>
    </message>
    <message>
        <source>Hfu high max.</source>
        <translation>Hfu alto max.</translation>
    </message>
    <message>
        <source>Dimension min.</source>
        <translation>Dimensione min.</translation>
    </message>
    <message>
        <source>Dimension max.</source>
        <translation>Dimensione max.</translation>
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
        <translation>HFL basso min.</translation>
    </message>
    <message>
        <source>HFL low max.</source>
        <translation>HFL basso max.</translation>
    </message>
    <message>
        <source>HFL high min.</source>
        <translation>HFL alto min.</translation>
    </message>
    <message>
        <source>HFL high max.</source>
        <translation>HFL alto max.</translation>
    </message>
    <message>
        <source>HFL amp min.</source>
        <translation>HFL amp min.</translation>
    </message>
    <message>
        <source>HFL amp max.</source>
        <translation>HFL amp max.</translation>
    </message>
    <message>
        <source>Record navigator</source>
        <translation>Navigazione dei record</translation>
    </message>
    <message>
        <source>First record</source>
        <translation>Primo record</translation>
    </message>
    <message>
        <source>Prior record</source>
        <translation>Record precedente</translation>
    </message>
    <message>
        <source>Next record</source>
        <translation>Record successivo</translation>
    </message>
    <message>
        <source>Last record</source>
        <translation>Ultimo record</translation>
    </message>
    <message>
        <source>Delete record</source>
        <translation>Elimina il record</translation>
    </message>
</context>
<context>
    <name>TFormProgCoin</name>
    <message>
        <source>Channels control</source>
        <translation>Controllo dei canali</translation>
    </message>
    <message>
        <source>&amp;Channel to control :</source>
        <translation>&amp;Canale da controllare :</translation>
    </message>
    <message>
        <source>Channel to calibra&amp;te :</source>
        <translation>Canale da calibra&amp;re :</translation>
    </message>
    <message>
        <source>Su&amp;bstitution  Channel :</source>
        <translation>Canale di so&amp;stituzione :</translation>
    </message>
    <message>
        <source>&amp;Value : </source>
        <translation>&amp;Valore : </translation>
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
        <translation>A&amp;bilitato :</translation>
    </message>
    <message>
        <source>Profile :</source>
        <translation>Profilo :</translation>
    </message>
    <message>
        <source>Description :</source>
        <translation>Descrizione :</translation>
    </message>
    <message>
        <source>Se&amp;lect...</source>
        <translation>Se&amp;leziona...</translation>
    </message>
    <message>
        <source>Response level :</source>
        <translation>Livello di risposta :</translation>
    </message>
    <message>
        <source>Number of coins : </source>
        <translation>Numero di monete : </translation>
    </message>
    <message>
        <source>Tolerance a&amp;uto :</source>
        <translation>Tolleranza a&amp;uto :</translation>
    </message>
    <message>
        <source>&amp;OK</source>
        <translation>&amp;OK</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Salva</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Annulla</translation>
    </message>
    <message>
        <source>Loa&amp;d</source>
        <translation>Cari&amp;ca</translation>
    </message>
    <message>
        <source>&amp;Clear</source>
        <translation>&amp;Cancella</translation>
    </message>
    <message>
        <source>&amp;Export...</source>
        <translation>&amp;Esporta...</translation>
    </message>
    <message>
        <source>&amp;Import...</source>
        <translation>&amp;Importa...</translation>
    </message>
    <message>
        <source>&amp;Matched channel...</source>
        <translation>Canale &amp;corrispondente...</translation>
    </message>
    <message>
        <source>Anal&amp;yse</source>
        <translation>Anal&amp;izza</translation>
    </message>
    <message>
        <source>HFU low</source>
        <translation>HFU basso</translation>
    </message>
    <message>
        <source>HFU high</source>
        <translation>HFU alto</translation>
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
        <translation>HFL basso</translation>
    </message>
    <message>
        <source>HFL high</source>
        <translation>HFL alto</translation>
    </message>
    <message>
        <source>AMP</source>
        <translation>AMP</translation>
    </message>
    <message>
        <source>%1 minimum: the lowest reading the channel takes</source>
        <translation>%1 minimo: la lettura più bassa che il canale accetta</translation>
    </message>
    <message>
        <source>%1 maximum: the highest reading the channel takes</source>
        <translation>%1 massimo: la lettura più alta che il canale accetta</translation>
    </message>
    <message>
        <source>%1: the reading of the last coin</source>
        <translation>%1: la lettura dell&apos;ultima moneta</translation>
    </message>
    <message>
        <source>%1: the width of the window (maximum - minimum)</source>
        <translation>%1: la larghezza della finestra (massimo - minimo)</translation>
    </message>
    <message>
        <source>%1: the last reading minus the minimum (below 0: under the window)</source>
        <translation>%1: l&apos;ultima lettura meno il minimo (sotto 0: sotto la finestra)</translation>
    </message>
    <message>
        <source>%1: the last reading minus the maximum (above 0: over the window)</source>
        <translation>%1: l&apos;ultima lettura meno il massimo (sopra 0: sopra la finestra)</translation>
    </message>
    <message>
        <source>%1: the last reading, and the window as a band</source>
        <translation>%1: l&apos;ultima lettura, e la finestra come banda</translation>
    </message>
    <message>
        <source>The first stored channel whose windows hold the last coin</source>
        <translation>Il primo canale memorizzato le cui finestre contengono l&apos;ultima moneta</translation>
    </message>
    <message>
        <source>Coins counted for the chosen channel</source>
        <translation>Monete contate per il canale scelto</translation>
    </message>
</context>
<context>
    <name>TFormRefChannel</name>
    <message>
        <source>Reference Channel</source>
        <translation>Canale di riferimento</translation>
    </message>
    <message>
        <source>Reference channel is empty</source>
        <translation>Il canale di riferimento è vuoto</translation>
    </message>
    <message>
        <source>Use the reference set of tokens.</source>
        <translation>Usare il set di gettoni di riferimento.</translation>
    </message>
    <message>
        <source>- Insert 5 golden tokens.</source>
        <translation>- Inserire 5 gettoni dorati.</translation>
    </message>
    <message>
        <source>- Ok</source>
        <translation>- Ok</translation>
    </message>
    <message>
        <source>- Insert 5 silver tokens.</source>
        <translation>- Inserire 5 gettoni argentati.</translation>
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
        <translation>Elenco dei canali sovrapposti</translation>
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
        <translation>Tabella dei valori</translation>
    </message>
    <message>
        <source>Base Value</source>
        <translation>Valore base</translation>
    </message>
    <message>
        <source>Channels 1 to </source>
        <translation>Canali da 1 a </translation>
    </message>
    <message>
        <source>Channels 31 to 60 : </source>
        <translation>Canali da 31 a 60 : </translation>
    </message>
    <message>
        <source>Ratio : </source>
        <translation>Rapporto : </translation>
    </message>
    <message>
        <source>Name : </source>
        <translation>Nome : </translation>
    </message>
    <message>
        <source>Description : </source>
        <translation>Descrizione : </translation>
    </message>
    <message>
        <source>Channels</source>
        <translation>Canali</translation>
    </message>
    <message>
        <source>Table name</source>
        <translation>Nome tabella</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Descrizione</translation>
    </message>
    <message>
        <source>Channel values</source>
        <translation>Valori dei canali</translation>
    </message>
    <message>
        <source>Stored value tables</source>
        <translation>Tabelle dei valori salvate</translation>
    </message>
    <message>
        <source>Record navigator</source>
        <translation>Navigazione dei record</translation>
    </message>
    <message>
        <source>&amp;Load</source>
        <translation>&amp;Carica</translation>
    </message>
    <message>
        <source>Load value table from validator</source>
        <translation>Carica la tabella dei valori dalla gettoniera</translation>
    </message>
    <message>
        <source>&amp;Transfert</source>
        <translation>&amp;Trasferisci</translation>
    </message>
    <message>
        <source>Transfert de la table des valeurs dans le monnayeur</source>
        <translation>Trasferimento della tabella dei valori nella gettoniera</translation>
    </message>
    <message>
        <source>&amp;Apply</source>
        <translation>A&amp;pplica</translation>
    </message>
    <message>
        <source>Aplly the value table</source>
        <translation>Applica la tabella dei valori</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Salva</translation>
    </message>
    <message>
        <source>Save a record</source>
        <translation>Salva un record</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>&amp;Apri</translation>
    </message>
    <message>
        <source>Open a record</source>
        <translation>Apri un record</translation>
    </message>
    <message>
        <source>&amp;Reset</source>
        <translation>A&amp;zzera</translation>
    </message>
    <message>
        <source>Reseting value table</source>
        <translation>Azzeramento della tabella dei valori</translation>
    </message>
    <message>
        <source>&amp;Exit</source>
        <translation>&amp;Esci</translation>
    </message>
    <message>
        <source>First record</source>
        <translation>Primo record</translation>
    </message>
    <message>
        <source>Prior record</source>
        <translation>Record precedente</translation>
    </message>
    <message>
        <source>Next record</source>
        <translation>Record successivo</translation>
    </message>
    <message>
        <source>Last record</source>
        <translation>Ultimo record</translation>
    </message>
    <message>
        <source>Delete record</source>
        <translation>Elimina il record</translation>
    </message>
</context>
<context>
    <name>TMajFirmware</name>
    <message>
        <source>Fichier Firmware VK2</source>
        <translation>File firmware VK2</translation>
    </message>
    <message>
        <source>Firmware upgrade</source>
        <translation>Aggiornamento firmware</translation>
    </message>
    <message>
        <source>Upgrade</source>
        <translation>Aggiornamento</translation>
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
        <translation>Analisi</translation>
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
        <translation>Impostazione gettoniera</translation>
    </message>
    <message>
        <source>Serial Number :</source>
        <translation>Numero di serie :</translation>
    </message>
    <message>
        <source>Outlet</source>
        <translation>Utilizzo</translation>
    </message>
    <message>
        <source>Game Fast</source>
        <translation>Gioco veloce</translation>
    </message>
    <message>
        <source>Game</source>
        <translation>Gioco</translation>
    </message>
    <message>
        <source>Vending anti-jam</source>
        <translation>Vendita anti-inceppamento</translation>
    </message>
    <message>
        <source>Vending</source>
        <translation>Vendita</translation>
    </message>
    <message>
        <source>Resetable counter :</source>
        <translation>Contatore azzerabile :</translation>
    </message>
    <message>
        <source>&amp;OK</source>
        <translation>&amp;OK</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Annulla</translation>
    </message>
</context>
<context>
    <name>TTarvikTolerance</name>
    <message>
        <source>Tolerances</source>
        <translation>Tolleranze</translation>
    </message>
    <message>
        <source>Items</source>
        <translation>Voci</translation>
    </message>
    <message>
        <source>Values</source>
        <translation>Valori</translation>
    </message>
    <message>
        <source>HFU low min.</source>
        <translation>HFU basso min.</translation>
    </message>
    <message>
        <source>HFU low max.</source>
        <translation>HFU basso max.</translation>
    </message>
    <message>
        <source>HFU high min.</source>
        <translation>HFU alto min.</translation>
    </message>
    <message>
        <source>HFU high max.</source>
        <translation>HFU alto max.</translation>
    </message>
    <message>
        <source>Dimension min.</source>
        <translation>Dimensione min.</translation>
    </message>
    <message>
        <source>Dimension max.</source>
        <translation>Dimensione max.</translation>
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
        <translation>HFL basso min.</translation>
    </message>
    <message>
        <source>HFL low max.</source>
        <translation>HFL basso max.</translation>
    </message>
    <message>
        <source>HFL high min.</source>
        <translation>HFL alto min.</translation>
    </message>
    <message>
        <source>HFL high max.</source>
        <translation>HFL alto max.</translation>
    </message>
    <message>
        <source>HFL amp min.</source>
        <translation>HFL amp min.</translation>
    </message>
    <message>
        <source>HFL amp max.</source>
        <translation>HFL amp max.</translation>
    </message>
    <message>
        <source>&amp;OK</source>
        <translation>&amp;OK</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Annulla</translation>
    </message>
</context>
</TS>
