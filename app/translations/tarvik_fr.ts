<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr_FR">
<context>
    <name>Captions</name>
    <message>
        <source>Validator</source>
        <translation>Monnayeur</translation>
    </message>
    <message>
        <source>Channel 1 to 10</source>
        <translation>Canal 1 à 10</translation>
    </message>
    <message>
        <source>Channel 11 to 20</source>
        <translation>Canal 11 à 20</translation>
    </message>
    <message>
        <source>Channel 21 to 30</source>
        <translation>Canal 21 à 30</translation>
    </message>
    <message>
        <source>Channel 31 to 40</source>
        <translation>Canal 31 à 40</translation>
    </message>
    <message>
        <source>Channel 41 to 50</source>
        <translation>Canal 41 à 50</translation>
    </message>
    <message>
        <source>Channel 51 to 60</source>
        <translation>Canal 51 à 60</translation>
    </message>
    <message>
        <source>HFU low min</source>
        <translation>HFU bas min</translation>
    </message>
    <message>
        <source>HFU low max</source>
        <translation>HFU bas max</translation>
    </message>
    <message>
        <source>HFU high min</source>
        <translation>HFU haut min</translation>
    </message>
    <message>
        <source>HFU high max</source>
        <translation>HFU haut max</translation>
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
        <translation>HFL bas min</translation>
    </message>
    <message>
        <source>HFL low max</source>
        <translation>HFL bas max</translation>
    </message>
    <message>
        <source>HFL high min</source>
        <translation>HFL haut min</translation>
    </message>
    <message>
        <source>HFL high max</source>
        <translation>HFL haut max</translation>
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
        <translation>Actif</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Valeur</translation>
    </message>
    <message>
        <source>Sub</source>
        <translation>Subst.</translation>
    </message>
    <message>
        <source>Channel %d </source>
        <translation>Canal %d </translation>
    </message>
    <message>
        <source>Identification</source>
        <translation>Identification</translation>
    </message>
    <message>
        <source>Serial Number :</source>
        <translation>Numéro de série :</translation>
    </message>
    <message>
        <source>Version :</source>
        <translation>Version :</translation>
    </message>
    <message>
        <source>Firmware date :</source>
        <translation>Date du micrologiciel :</translation>
    </message>
    <message>
        <source>Programming date :</source>
        <translation>Date de programmation :</translation>
    </message>
    <message>
        <source>Production date :</source>
        <translation>Date de fabrication :</translation>
    </message>
    <message>
        <source>Identification :</source>
        <translation>Identification :</translation>
    </message>
    <message>
        <source>Description :</source>
        <translation>Description :</translation>
    </message>
    <message>
        <source>Read validator</source>
        <translation>Lire le monnayeur</translation>
    </message>
    <message>
        <source>Write validator</source>
        <translation>Écrire le monnayeur</translation>
    </message>
    <message>
        <source>Clone</source>
        <translation>Cloner</translation>
    </message>
    <message>
        <source>Store in tables</source>
        <translation>Enregistrer dans les tables</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>Open configuration file</source>
        <translation>Ouvrir une configuration</translation>
    </message>
    <message>
        <source>Save configuration file</source>
        <translation>Enregistrer la configuration</translation>
    </message>
    <message>
        <source>Validator setting</source>
        <translation>Paramétrage du monnayeur</translation>
    </message>
    <message>
        <source>Output</source>
        <translation>Sortie</translation>
    </message>
    <message>
        <source>Test value (via serial)</source>
        <translation>Valeur de test (via série)</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Démarrer</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Arrêter</translation>
    </message>
    <message>
        <source>Channel :</source>
        <translation>Canal :</translation>
    </message>
    <message>
        <source>Value :</source>
        <translation>Valeur :</translation>
    </message>
    <message>
        <source>Prices</source>
        <translation>Prix</translation>
    </message>
    <message>
        <source>Value P1</source>
        <translation>Valeur P1</translation>
    </message>
    <message>
        <source>Value P2</source>
        <translation>Valeur P2</translation>
    </message>
    <message>
        <source>Value P3</source>
        <translation>Valeur P3</translation>
    </message>
    <message>
        <source>Value P4</source>
        <translation>Valeur P4</translation>
    </message>
    <message>
        <source>Value P5</source>
        <translation>Valeur P5</translation>
    </message>
    <message>
        <source>Value P6</source>
        <translation>Valeur P6</translation>
    </message>
    <message>
        <source>Base Value</source>
        <translation>Valeur de base</translation>
    </message>
    <message>
        <source>Channel from  1 to 30 :</source>
        <translation>Canaux de  1 à 30 :</translation>
    </message>
    <message>
        <source>Channel from 31 to 60 :</source>
        <translation>Canaux de 31 à 60 :</translation>
    </message>
    <message>
        <source>Ratio :</source>
        <translation>Rapport :</translation>
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
        <translation>FAUX</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Type</translation>
    </message>
    <message>
        <source>00 - Validator</source>
        <translation>00 - Monnayeur</translation>
    </message>
    <message>
        <source>10 - Totalizer - 2 prices</source>
        <translation>10 - Totalisateur - 2 prix</translation>
    </message>
    <message>
        <source>20 - Totalizer - video game</source>
        <translation>20 - Totalisateur - jeu vidéo</translation>
    </message>
    <message>
        <source>30 - Timer Totalizer</source>
        <translation>30 - Totalisateur temporisé</translation>
    </message>
    <message>
        <source>40 - Totalizer - credit</source>
        <translation>40 - Totalisateur - crédit</translation>
    </message>
    <message>
        <source>50 - </source>
        <translation>50 - </translation>
    </message>
    <message>
        <source>60 - TimerTotalizer - credit</source>
        <translation>60 - Totalisateur temporisé - crédit</translation>
    </message>
    <message>
        <source>70 - Totalizer - photocopy</source>
        <translation>70 - Totalisateur - photocopie</translation>
    </message>
    <message>
        <source>Outlet</source>
        <translation>Utilisation</translation>
    </message>
    <message>
        <source>Vending anti-jam</source>
        <translation>Distribution anti-blocage</translation>
    </message>
    <message>
        <source>Vending</source>
        <translation>Distribution</translation>
    </message>
    <message>
        <source>Game fast</source>
        <translation>Jeu rapide</translation>
    </message>
    <message>
        <source>Game</source>
        <translation>Jeu</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Options</translation>
    </message>
    <message>
        <source>Option bits</source>
        <translation>Bits d&apos;option</translation>
    </message>
    <message>
        <source>Separator</source>
        <translation>Séparateur</translation>
    </message>
    <message>
        <source>Normal output</source>
        <translation>Sortie normale</translation>
    </message>
    <message>
        <source>Inverted output</source>
        <translation>Sortie inversée</translation>
    </message>
    <message>
        <source>Display off</source>
        <translation>Affichage éteint</translation>
    </message>
    <message>
        <source>Binary output</source>
        <translation>Sortie binaire</translation>
    </message>
    <message>
        <source>Standby mode</source>
        <translation>Mode veille</translation>
    </message>
    <message>
        <source>Confida</source>
        <translation>Confida</translation>
    </message>
    <message>
        <source>Dip inhibition</source>
        <translation>Inhibition Dip</translation>
    </message>
    <message>
        <source>Dip 4/2</source>
        <translation>Dip 4/2</translation>
    </message>
    <message>
        <source>Dow-counting display</source>
        <translation>Affichage en décompte</translation>
    </message>
    <message>
        <source>Multi pulse</source>
        <translation>Multi-impulsions</translation>
    </message>
    <message>
        <source>Jam inhibition</source>
        <translation>Inhibition sur blocage</translation>
    </message>
    <message>
        <source>Reset high</source>
        <translation>RAZ niveau haut</translation>
    </message>
    <message>
        <source>Toggling counting</source>
        <translation>Comptage alterné</translation>
    </message>
    <message>
        <source>Price 1 limit</source>
        <translation>Limite prix 1</translation>
    </message>
    <message>
        <source>Price 2 limit</source>
        <translation>Limite prix 2</translation>
    </message>
    <message>
        <source>Time in minutes</source>
        <translation>Temps en minutes</translation>
    </message>
    <message>
        <source>Limit</source>
        <translation>Limite</translation>
    </message>
    <message>
        <source>Ext Counter signal (3C)</source>
        <translation>Signal compteur ext. (3C)</translation>
    </message>
    <message>
        <source>Ext Start (3R)</source>
        <translation>Démarrage ext. (3R)</translation>
    </message>
    <message>
        <source>External reset</source>
        <translation>RAZ externe</translation>
    </message>
    <message>
        <source>Rest</source>
        <translation>Reste</translation>
    </message>
    <message>
        <source>Cash counters / Limits</source>
        <translation>Compteurs de caisse / Limites</translation>
    </message>
    <message>
        <source>Counter 1 :</source>
        <translation>Compteur 1 :</translation>
    </message>
    <message>
        <source>Counter 2 :</source>
        <translation>Compteur 2 :</translation>
    </message>
    <message>
        <source>Actived</source>
        <translation>Activé</translation>
    </message>
    <message>
        <source>Desactived</source>
        <translation>Désactivé</translation>
    </message>
    <message>
        <source>OFF</source>
        <translation>OFF</translation>
    </message>
    <message>
        <source>Erasable :</source>
        <translation>Effaçable :</translation>
    </message>
    <message>
        <source>Vend Limit1 : </source>
        <translation>Limite vente 1 : </translation>
    </message>
    <message>
        <source>Vend Limit 2 : </source>
        <translation>Limite vente 2 : </translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Remise à zéro</translation>
    </message>
    <message>
        <source>Limit / P1 :</source>
        <translation>Limite / P1 :</translation>
    </message>
    <message>
        <source>Value P1 :</source>
        <translation>Valeur P1 :</translation>
    </message>
    <message>
        <source>Service Width in min.</source>
        <translation>Durée de service en min.</translation>
    </message>
    <message>
        <source>Service Width in sec.</source>
        <translation>Durée de service en s</translation>
    </message>
    <message>
        <source>Minimum Reset Width in ms</source>
        <translation>Durée min. de remise à zéro en ms</translation>
    </message>
    <message>
        <source>Reset Width in sec. :</source>
        <translation>Durée de remise à zéro en s :</translation>
    </message>
    <message>
        <source>Code %d, bit %d</source>
        <translation>Code %d, bit %d</translation>
    </message>
    <message>
        <source>Coin learning</source>
        <translation>Apprentissage de pièce</translation>
    </message>
    <message>
        <source>Reference calibration</source>
        <translation>Calibrage de référence</translation>
    </message>
    <message>
        <source>Channel control</source>
        <translation>Contrôle de canal</translation>
    </message>
    <message>
        <source>Overlap check</source>
        <translation>Contrôle de chevauchement</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copie</translation>
    </message>
    <message>
        <source>Source </source>
        <translation>Source </translation>
    </message>
    <message>
        <source>Destination </source>
        <translation>Destination </translation>
    </message>
    <message>
        <source>Channel : </source>
        <translation>Canal : </translation>
    </message>
    <message>
        <source>Clear channel :</source>
        <translation>Effacer le canal :</translation>
    </message>
    <message>
        <source>Only values :</source>
        <translation>Valeurs seules :</translation>
    </message>
    <message>
        <source>&amp;Transfert</source>
        <translation>&amp;Transférer</translation>
    </message>
    <message>
        <source>&amp;Exit</source>
        <translation>&amp;Quitter</translation>
    </message>
    <message>
        <source>Saved validators</source>
        <translation>Monnayeurs enregistrés</translation>
    </message>
    <message>
        <source>Filter :</source>
        <translation>Filtre :</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>&amp;Ouvrir</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Supprimer</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Fermer</translation>
    </message>
    <message>
        <source>Values Table</source>
        <translation>Table des valeurs</translation>
    </message>
    <message>
        <source>Repair tables...</source>
        <translation>Réparer les tables...</translation>
    </message>
    <message>
        <source>Repair tables</source>
        <translation>Réparer les tables</translation>
    </message>
    <message>
        <source>Tables in %s :</source>
        <translation>Tables dans %s :</translation>
    </message>
    <message>
        <source>&amp;Repair</source>
        <translation>&amp;Réparer</translation>
    </message>
    <message>
        <source>Tarvik help</source>
        <translation>Aide de Tarvik</translation>
    </message>
    <message>
        <source>&amp;Contents</source>
        <translation>&amp;Sommaire</translation>
    </message>
    <message>
        <source>&amp;Previous</source>
        <translation>&amp;Précédent</translation>
    </message>
    <message>
        <source>&amp;Next</source>
        <translation>Sui&amp;vant</translation>
    </message>
    <message>
        <source>(empty)</source>
        <translation>(vide)</translation>
    </message>
    <message>
        <source>on</source>
        <translation>activé</translation>
    </message>
    <message>
        <source>off</source>
        <translation>désactivé</translation>
    </message>
    <message>
        <source>enabled</source>
        <translation>validé</translation>
    </message>
    <message>
        <source>disabled</source>
        <translation>inhibé</translation>
    </message>
    <message>
        <source>Option &apos;%s&apos;</source>
        <translation>Option « %s »</translation>
    </message>
    <message>
        <source>Channels data</source>
        <translation>Données des canaux</translation>
    </message>
    <message>
        <source>Values table :</source>
        <translation>Table des valeurs :</translation>
    </message>
    <message>
        <source>Prices table :</source>
        <translation>Table des prix :</translation>
    </message>
    <message>
        <source>Configuration :</source>
        <translation>Configuration :</translation>
    </message>
    <message>
        <source>Enable table :</source>
        <translation>Table d&apos;activation :</translation>
    </message>
    <message>
        <source>Changes</source>
        <translation>Modifications</translation>
    </message>
    <message>
        <source>Print...</source>
        <translation>Imprimer...</translation>
    </message>
    <message>
        <source>Save as PDF...</source>
        <translation>Enregistrer en PDF...</translation>
    </message>
    <message>
        <source>Configuration sheet</source>
        <translation>Fiche de configuration</translation>
    </message>
    <message>
        <source>Channels in use</source>
        <translation>Canaux utilisés</translation>
    </message>
    <message>
        <source>Channel</source>
        <translation>Canal</translation>
    </message>
    <message>
        <source>No channel in use</source>
        <translation>Aucun canal utilisé</translation>
    </message>
    <message>
        <source>Overlapping channels:</source>
        <translation>Canaux superposés :</translation>
    </message>
    <message>
        <source>Reference channel %d</source>
        <translation>Canal de référence %d</translation>
    </message>
    <message>
        <source>No option switched on</source>
        <translation>Aucune option activée</translation>
    </message>
    <message>
        <source>Windows chart</source>
        <translation>Graphique des fenêtres</translation>
    </message>
    <message>
        <source>Printed on %s</source>
        <translation>Imprimé le %s</translation>
    </message>
    <message>
        <source>Page %d of %d</source>
        <translation>Page %d sur %d</translation>
    </message>
    <message>
        <source>No changes since the configuration was last read, opened or written.</source>
        <translation>Aucune modification depuis la dernière lecture, ouverture ou écriture de la configuration.</translation>
    </message>
    <message>
        <source>Channel windows</source>
        <translation>Fenêtres des canaux</translation>
    </message>
    <message>
        <source>sent</source>
        <translation>envoyé</translation>
    </message>
    <message>
        <source>refused by the validator</source>
        <translation>refusé par le monnayeur</translation>
    </message>
    <message>
        <source>Validator&apos;s own block</source>
        <translation>Bloc propre du monnayeur</translation>
    </message>
    <message>
        <source>%s (channels %s)</source>
        <translation>%s (canaux %s)</translation>
    </message>
    <message>
        <source>%s (%s of %s parts)</source>
        <translation>%s (%s parties sur %s)</translation>
    </message>
    <message>
        <source>the learned windows</source>
        <translation>les fenêtres apprises</translation>
    </message>
    <message>
        <source>its former windows</source>
        <translation>ses anciennes fenêtres</translation>
    </message>
    <message>
        <source>windows that are not known</source>
        <translation>des fenêtres inconnues</translation>
    </message>
    <message>
        <source>the value %s</source>
        <translation>la valeur %s</translation>
    </message>
    <message>
        <source>no value</source>
        <translation>aucune valeur</translation>
    </message>
    <message>
        <source>its former value</source>
        <translation>son ancienne valeur</translation>
    </message>
    <message>
        <source>a value that is not known</source>
        <translation>une valeur inconnue</translation>
    </message>
    <message>
        <source>its former enable bit</source>
        <translation>son ancien bit de validation</translation>
    </message>
    <message>
        <source>an enable bit that is not known</source>
        <translation>un bit de validation inconnu</translation>
    </message>
    <message>
        <source>An amount in steps of %s, at most %s; empty: not set</source>
        <translation>Un montant par pas de %s, au plus %s ; vide : non défini</translation>
    </message>
    <message>
        <source>An amount in steps of %s, at most %s; -P1- or -P2- pays price 1 or 2; empty: no value</source>
        <translation>Un montant par pas de %s, au plus %s ; -P1- ou -P2- paie le prix 1 ou 2 ; vide : aucune valeur</translation>
    </message>
    <message>
        <source>No base value is set: give the base value first</source>
        <translation>Aucune valeur de base n&apos;est définie : donnez d&apos;abord la valeur de base</translation>
    </message>
    <message>
        <source>A number from 0 to 254; empty: not set</source>
        <translation>Un nombre de 0 à 254 ; vide : non défini</translation>
    </message>
    <message>
        <source>In tens, from 0 to 2540 (a last digit is dropped); empty: not set</source>
        <translation>Par dizaines, de 0 à 2540 (le dernier chiffre est ignoré) ; vide : non défini</translation>
    </message>
    <message>
        <source>Milliseconds in steps of 10, at most 630; empty: not set</source>
        <translation>Millisecondes par pas de 10, au plus 630 ; vide : non défini</translation>
    </message>
    <message>
        <source>Since read from validator %s at %s</source>
        <translation>Depuis la lecture du monnayeur %s à %s</translation>
    </message>
    <message>
        <source>Since written to validator %s at %s</source>
        <translation>Depuis l&apos;écriture dans le monnayeur %s à %s</translation>
    </message>
    <message>
        <source>Since opened from %s (the validator was not read)</source>
        <translation>Depuis l&apos;ouverture de %s (le monnayeur n&apos;a pas été lu)</translation>
    </message>
    <message>
        <source>Since opened from file %s (the validator was not read)</source>
        <translation>Depuis l&apos;ouverture du fichier %s (le monnayeur n&apos;a pas été lu)</translation>
    </message>
    <message>
        <source>Since the editor opened (the validator was not read)</source>
        <translation>Depuis l&apos;ouverture de l&apos;éditeur (le monnayeur n&apos;a pas été lu)</translation>
    </message>
    <message>
        <source>Write again</source>
        <translation>Écrire à nouveau</translation>
    </message>
    <message>
        <source>Put back as it was</source>
        <translation>Remettre comme avant</translation>
    </message>
    <message>
        <source>Go on</source>
        <translation>Continuer</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Write changes</source>
        <translation>Écrire les modifications</translation>
    </message>
    <message>
        <source>Batch...</source>
        <translation>Série...</translation>
    </message>
    <message>
        <source>Batch</source>
        <translation>Série</translation>
    </message>
    <message>
        <source>Source</source>
        <translation>Source</translation>
    </message>
    <message>
        <source>The editor&apos;s configuration</source>
        <translation>La configuration de l&apos;éditeur</translation>
    </message>
    <message>
        <source>A configuration file</source>
        <translation>Un fichier de configuration</translation>
    </message>
    <message>
        <source>A saved validator</source>
        <translation>Un monnayeur enregistré</translation>
    </message>
    <message>
        <source>Browse...</source>
        <translation>Parcourir...</translation>
    </message>
    <message>
        <source>What to write</source>
        <translation>Ce qui est écrit</translation>
    </message>
    <message>
        <source>Full write (every block, as Write)</source>
        <translation>Écriture complète (tous les blocs, comme Écrire)</translation>
    </message>
    <message>
        <source>How many (0: until Stop) :</source>
        <translation>Combien (0 : jusqu&apos;à Arrêter) :</translation>
    </message>
    <message>
        <source>Write a validator again when it comes back</source>
        <translation>Réécrire un monnayeur qui revient</translation>
    </message>
    <message>
        <source>A sound for each result</source>
        <translation>Un son pour chaque résultat</translation>
    </message>
    <message>
        <source>A configuration sheet for each (PDF, beside the log)</source>
        <translation>Une fiche de configuration pour chacun (PDF, à côté du journal)</translation>
    </message>
    <message>
        <source>Verified: %d</source>
        <translation>Vérifiés : %d</translation>
    </message>
    <message>
        <source>Failed: %d</source>
        <translation>Échoués : %d</translation>
    </message>
    <message>
        <source>Skipped: %d</source>
        <translation>Sautés : %d</translation>
    </message>
    <message>
        <source>Log: %s</source>
        <translation>Journal : %s</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Heure</translation>
    </message>
    <message>
        <source>Serial number</source>
        <translation>Numéro de série</translation>
    </message>
    <message>
        <source>Family</source>
        <translation>Famille</translation>
    </message>
    <message>
        <source>Result</source>
        <translation>Résultat</translation>
    </message>
    <message>
        <source>Seconds</source>
        <translation>Secondes</translation>
    </message>
    <message>
        <source>Detail</source>
        <translation>Détail</translation>
    </message>
    <message>
        <source>Verified</source>
        <translation>Vérifié</translation>
    </message>
    <message>
        <source>Differs</source>
        <translation>Diffère</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Échoué</translation>
    </message>
    <message>
        <source>Already done</source>
        <translation>Déjà fait</translation>
    </message>
    <message>
        <source>Other family</source>
        <translation>Autre famille</translation>
    </message>
    <message>
        <source>Validators done</source>
        <translation>Monnayeurs traités</translation>
    </message>
    <message>
        <source>History of validator %d</source>
        <translation>Historique du monnayeur %d</translation>
    </message>
    <message>
        <source>What</source>
        <translation>Opération</translation>
    </message>
    <message>
        <source>Program</source>
        <translation>Programme</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>Restaurer</translation>
    </message>
    <message>
        <source>Read</source>
        <translation>Lecture</translation>
    </message>
    <message>
        <source>Write</source>
        <translation>Écriture</translation>
    </message>
    <message>
        <source>Changes write</source>
        <translation>Écriture des modifications</translation>
    </message>
    <message>
        <source>Batch write</source>
        <translation>Écriture en série</translation>
    </message>
    <message>
        <source>Channel learned</source>
        <translation>Canal appris</translation>
    </message>
    <message>
        <source>Calibration</source>
        <translation>Calibrage</translation>
    </message>
    <message>
        <source>Read backup</source>
        <translation>Sauvegarde de lecture</translation>
    </message>
    <message>
        <source>Saved in the tables</source>
        <translation>Enregistré dans les tables</translation>
    </message>
    <message>
        <source>verified</source>
        <translation>vérifié</translation>
    </message>
    <message>
        <source>mismatch</source>
        <translation>différent</translation>
    </message>
    <message>
        <source>failed</source>
        <translation>échoué</translation>
    </message>
    <message>
        <source>First configuration known</source>
        <translation>Première configuration connue</translation>
    </message>
    <message>
        <source>No change</source>
        <translation>Aucune modification</translation>
    </message>
    <message>
        <source>Configuration not known</source>
        <translation>Configuration inconnue</translation>
    </message>
    <message>
        <source>Changes of event %d since the one before</source>
        <translation>Modifications de l&apos;événement %d depuis le précédent</translation>
    </message>
    <message>
        <source>From event %d to event %d</source>
        <translation>De l&apos;événement %d à l&apos;événement %d</translation>
    </message>
    <message>
        <source>No event is kept for this validator</source>
        <translation>Aucun événement n&apos;est conservé pour ce monnayeur</translation>
    </message>
    <message>
        <source>History...</source>
        <translation>Historique...</translation>
    </message>
    <message>
        <source>Data source...</source>
        <translation>Source des données...</translation>
    </message>
    <message>
        <source>Data source</source>
        <translation>Source des données</translation>
    </message>
    <message>
        <source>Data &amp;directory</source>
        <translation>&amp;Répertoire de données</translation>
    </message>
    <message>
        <source>&amp;Server (PostgreSQL)</source>
        <translation>&amp;Serveur (PostgreSQL)</translation>
    </message>
    <message>
        <source>Directory:</source>
        <translation>Répertoire :</translation>
    </message>
    <message>
        <source>Address (postgresql://...):</source>
        <translation>Adresse (postgresql://...) :</translation>
    </message>
    <message>
        <source>&amp;Test connection</source>
        <translation>&amp;Tester la connexion</translation>
    </message>
    <message>
        <source>Connected to %s.</source>
        <translation>Connecté à %s.</translation>
    </message>
</context>
<context>
    <name>Messages</name>
    <message>
        <source>Internal or Comunication Error</source>
        <translation>Erreur interne ou de communication</translation>
    </message>
    <message>
        <source>Comunication Error !</source>
        <translation>Erreur de communication !</translation>
    </message>
    <message>
        <source>Reading Error fron validator</source>
        <translation>Erreur de lecture du monnayeur</translation>
    </message>
    <message>
        <source>Comunication Port COM%d isn&apos;t free or Setting error.</source>
        <translation>Le port de communication COM%d n&apos;est pas libre ou son paramétrage est erroné.</translation>
    </message>
    <message>
        <source>This user may not open the serial port. Add the user to the dialout group (sudo usermod -aG dialout $USER), then log out and log in again.</source>
        <translation>Cet utilisateur n&apos;a pas le droit d&apos;ouvrir le port série. Ajoutez l&apos;utilisateur au groupe dialout (sudo usermod -aG dialout $USER), puis fermez la session et ouvrez-la de nouveau.</translation>
    </message>
    <message>
        <source>Select port !!!</source>
        <translation>Sélectionnez un port !!!</translation>
    </message>
    <message>
        <source>Connect validator </source>
        <translation>Connectez le monnayeur </translation>
    </message>
    <message>
        <source>Validator reading in progress....</source>
        <translation>Lecture du monnayeur en cours....</translation>
    </message>
    <message>
        <source>Saving in progress.....</source>
        <translation>Sauvegarde en cours.....</translation>
    </message>
    <message>
        <source>Finished operation!</source>
        <translation>Opération terminée !</translation>
    </message>
    <message>
        <source>Fault during save operation !</source>
        <translation>Erreur pendant la sauvegarde !</translation>
    </message>
    <message>
        <source>Operation cancelled</source>
        <translation>Opération annulée</translation>
    </message>
    <message>
        <source>Invalid code table !</source>
        <translation>Table de codes invalide !</translation>
    </message>
    <message>
        <source>Incorrect version of validator</source>
        <translation>Version de monnayeur incorrecte</translation>
    </message>
    <message>
        <source>Save on validator?</source>
        <translation>Enregistrer dans le monnayeur ?</translation>
    </message>
    <message>
        <source>By Mini-Pgm</source>
        <translation>Par Mini-Pgm</translation>
    </message>
    <message>
        <source>#NA</source>
        <translation>#ND</translation>
    </message>
    <message>
        <source>Value must be between 0 and 255</source>
        <translation>La valeur doit être comprise entre 0 et 255</translation>
    </message>
    <message>
        <source>Value over the maximum, it will be correct</source>
        <translation>Valeur supérieure au maximum, elle sera corrigée</translation>
    </message>
    <message>
        <source>Value under the minimum, it will be correct.</source>
        <translation>Valeur inférieure au minimum, elle sera corrigée.</translation>
    </message>
    <message>
        <source>&apos;%s&apos; is not a valid integer value</source>
        <translation>&apos;%s&apos; n&apos;est pas une valeur entière valide</translation>
    </message>
    <message>
        <source>Value over %d ms, it will be adjusted!</source>
        <translation>Valeur supérieure à %d ms, elle sera ajustée !</translation>
    </message>
    <message>
        <source>Wrong way! Please the counter must be desactived if the base value is clear</source>
        <translation>Impossible ! Le compteur doit être désactivé si la valeur de base est vide</translation>
    </message>
    <message>
        <source>Modifing this value will take effect on channels from 1 to 30 !</source>
        <translation>La modification de cette valeur s&apos;applique aux canaux 1 à 30 !</translation>
    </message>
    <message>
        <source>Modifing this value will take effect on channels from 31 to 60 !</source>
        <translation>La modification de cette valeur s&apos;applique aux canaux 31 à 60 !</translation>
    </message>
    <message>
        <source>The value of channels %d and %d is incompatible for the function multi-pulse (max %d pulses)</source>
        <translation>La valeur des canaux %d et %d est incompatible avec la fonction multi-impulsions (%d impulsions au maximum)</translation>
    </message>
    <message>
        <source>Impossible displacement, the channel of origin and the one of destination coincides</source>
        <translation>Déplacement impossible : le canal d&apos;origine et le canal de destination sont identiques</translation>
    </message>
    <message>
        <source>Identification field must be filled</source>
        <translation>Le champ Identification doit être rempli</translation>
    </message>
    <message>
        <source>%s exist! Overwrite ?</source>
        <translation>%s existe ! Le remplacer ?</translation>
    </message>
    <message>
        <source>File %s saved</source>
        <translation>Fichier %s enregistré</translation>
    </message>
    <message>
        <source>The validity of data of this validator is not guaranteed by BRUNFELDGroup!</source>
        <translation>La validité des données de ce monnayeur n&apos;est pas garantie par BRUNFELDGroup !</translation>
    </message>
    <message>
        <source>Select number of channel !</source>
        <translation>Sélectionnez le numéro du canal !</translation>
    </message>
    <message>
        <source>Number of coins is less than %d. Proceed?</source>
        <translation>Le nombre de pièces est inférieur à %d. Continuer ?</translation>
    </message>
    <message>
        <source>Modify another channel ?</source>
        <translation>Modifier un autre canal ?</translation>
    </message>
    <message>
        <source>Calibrate another channel ?</source>
        <translation>Calibrer un autre canal ?</translation>
    </message>
    <message>
        <source>Values directly saved into validator</source>
        <translation>Valeurs enregistrées directement dans le monnayeur</translation>
    </message>
    <message>
        <source>The value matchs the channel %d. Load it ?</source>
        <translation>La valeur correspond au canal %d. La charger ?</translation>
    </message>
    <message>
        <source>No matched data !</source>
        <translation>Aucune donnée correspondante !</translation>
    </message>
    <message>
        <source>Door open, no data will be transfered ;</source>
        <translation>Porte ouverte, aucune donnée ne sera transférée ;</translation>
    </message>
    <message>
        <source>Prepare the golden tokens.</source>
        <translation>Préparez les jetons dorés.</translation>
    </message>
    <message>
        <source>Prepare the silver tokens.</source>
        <translation>Préparez les jetons argentés.</translation>
    </message>
    <message>
        <source>Insert the golden tokens. (5 pieces)</source>
        <translation>Insérez les jetons dorés. (5 pièces)</translation>
    </message>
    <message>
        <source>Insert the silver tokens. (5 pieces)</source>
        <translation>Insérez les jetons argentés. (5 pièces)</translation>
    </message>
    <message>
        <source>Reference Channel saved !</source>
        <translation>Canal de référence enregistré !</translation>
    </message>
    <message>
        <source>Programming Error !</source>
        <translation>Erreur de programmation !</translation>
    </message>
    <message>
        <source>Channel %d is empty! No data to control.</source>
        <translation>Le canal %d est vide ! Aucune donnée à contrôler.</translation>
    </message>
    <message>
        <source>No overlapping !</source>
        <translation>Aucun chevauchement !</translation>
    </message>
    <message>
        <source>Table of values transferred in the validator!</source>
        <translation>Table des valeurs transférée dans le monnayeur !</translation>
    </message>
    <message>
        <source>All data transfered !</source>
        <translation>Toutes les données ont été transférées !</translation>
    </message>
    <message>
        <source>This option will be activated to the next starting of the program</source>
        <translation>Cette option sera activée au prochain démarrage du programme</translation>
    </message>
    <message>
        <source>Upgrade over...</source>
        <translation>Mise à jour terminée...</translation>
    </message>
    <message>
        <source>Operation cancelled by operator</source>
        <translation>Opération annulée par l&apos;opérateur</translation>
    </message>
    <message>
        <source>Updating... Please Wait !</source>
        <translation>Mise à jour... Veuillez patienter !</translation>
    </message>
    <message>
        <source>Don&apos;t Stop or disconnect !!!</source>
        <translation>N&apos;arrêtez pas et ne déconnectez pas !!!</translation>
    </message>
    <message>
        <source>Please connect the mini-programer.</source>
        <translation>Veuillez connecter le mini-programmateur.</translation>
    </message>
    <message>
        <source>The user guide %s is not installed.</source>
        <translation>Le guide de l&apos;utilisateur %s n&apos;est pas installé.</translation>
    </message>
    <message>
        <source>Channel %d of the validator differs from the one of this configuration: the windows may not suit this validator. Continue?</source>
        <translation>Le canal %d du monnayeur diffère de celui de cette configuration : les fenêtres pourraient ne pas convenir à ce monnayeur. Continuer ?</translation>
    </message>
    <message>
        <source>%s is missing</source>
        <translation>%s est absent</translation>
    </message>
    <message>
        <source>%s cannot be opened: %s</source>
        <translation>%s ne peut pas être ouvert : %s</translation>
    </message>
    <message>
        <source>%s cannot be written: %s</source>
        <translation>%s ne peut pas être écrit : %s</translation>
    </message>
    <message>
        <source>%s is not a dBase table of level 3, 4, 5 or 7</source>
        <translation>%s n&apos;est pas une table dBase de niveau 3, 4, 5 ou 7</translation>
    </message>
    <message>
        <source>%s has a damaged header: its header length, record length and field widths do not add up</source>
        <translation>L&apos;en-tête de %s est endommagé : la longueur d&apos;en-tête, la longueur d&apos;enregistrement et les largeurs des champs ne concordent pas</translation>
    </message>
    <message>
        <source>%s has a damaged header: field %s is not valid</source>
        <translation>L&apos;en-tête de %s est endommagé : le champ %s n&apos;est pas valide</translation>
    </message>
    <message>
        <source>%s is truncated: it holds %s of its %s records</source>
        <translation>%s est tronqué : il contient %s de ses %s enregistrements</translation>
    </message>
    <message>
        <source>%s has no field %s</source>
        <translation>%s n&apos;a pas de champ %s</translation>
    </message>
    <message>
        <source>%s: field %s is of type %s where %s is expected</source>
        <translation>%s : le champ %s est de type %s alors que %s est attendu</translation>
    </message>
    <message>
        <source>%s cannot be changed: the file or its directory is read-only</source>
        <translation>%s ne peut pas être modifié : le fichier ou son répertoire est en lecture seule</translation>
    </message>
    <message>
        <source>%s cannot be changed: its index tag %s (%s) is not one this program can keep up to date</source>
        <translation>%s ne peut pas être modifié : son étiquette d&apos;index %s (%s) ne peut pas être tenue à jour par ce programme</translation>
    </message>
    <message>
        <source>%s cannot be changed: its language driver %s sorts keys in an order this program cannot keep</source>
        <translation>%s ne peut pas être modifié : son pilote de langue %s trie les clés dans un ordre que ce programme ne peut pas respecter</translation>
    </message>
    <message>
        <source>The value %s does not fit field %s of %s</source>
        <translation>La valeur %s ne tient pas dans le champ %s de %s</translation>
    </message>
    <message>
        <source>The index %s was not usable (%s) and has been rebuilt from %s</source>
        <translation>L&apos;index %s n&apos;était pas utilisable (%s) et a été reconstruit à partir de %s</translation>
    </message>
    <message>
        <source>The index %s is not usable (%s) and cannot be rebuilt now</source>
        <translation>L&apos;index %s n&apos;est pas utilisable (%s) et ne peut pas être reconstruit maintenant</translation>
    </message>
    <message>
        <source>it is missing</source>
        <translation>il est absent</translation>
    </message>
    <message>
        <source>its header is damaged</source>
        <translation>son en-tête est endommagé</translation>
    </message>
    <message>
        <source>its pages are damaged</source>
        <translation>ses pages sont endommagées</translation>
    </message>
    <message>
        <source>its keys are out of order</source>
        <translation>ses clés ne sont pas dans l&apos;ordre</translation>
    </message>
    <message>
        <source>its entries do not match the records</source>
        <translation>ses entrées ne correspondent pas aux enregistrements</translation>
    </message>
    <message>
        <source>tag %s is missing or does not match its field</source>
        <translation>l&apos;étiquette %s est absente ou ne correspond pas à son champ</translation>
    </message>
    <message>
        <source>its language driver differs from the table&apos;s</source>
        <translation>son pilote de langue diffère de celui de la table</translation>
    </message>
    <message>
        <source>The data directory %s has been created with empty tables</source>
        <translation>Le répertoire de données %s a été créé avec des tables vides</translation>
    </message>
    <message>
        <source>Empty tables have been created in %s: %s</source>
        <translation>Des tables vides ont été créées dans %s : %s</translation>
    </message>
    <message>
        <source>No validator %s is stored</source>
        <translation>Aucun monnayeur %s n&apos;est enregistré</translation>
    </message>
    <message>
        <source>The settings could not be read; the defaults are used until a setting is changed.</source>
        <translation>Les paramètres n&apos;ont pas pu être lus ; les valeurs par défaut sont utilisées jusqu&apos;à la modification d&apos;un paramètre.</translation>
    </message>
    <message>
        <source>The file %s could not be read.</source>
        <translation>Le fichier %s n&apos;a pas pu être lu.</translation>
    </message>
    <message>
        <source>The sheet could not be written to %s: %s. Nothing else was changed.</source>
        <translation>La fiche n&apos;a pas pu être écrite dans %s : %s. Rien d&apos;autre n&apos;a été modifié.</translation>
    </message>
    <message>
        <source>The sheet could not be printed.</source>
        <translation>La fiche n&apos;a pas pu être imprimée.</translation>
    </message>
    <message>
        <source>%s was changed by another program; open it again before changing it</source>
        <translation>%s a été modifié par un autre programme ; ouvrez-le de nouveau avant de le modifier</translation>
    </message>
    <message>
        <source>%s: waited %s s for %s holding the lock; nothing written</source>
        <translation>%s : attente de %s s pour %s qui détient le verrou ; rien n&apos;a été écrit</translation>
    </message>
    <message>
        <source>another program</source>
        <translation>un autre programme</translation>
    </message>
    <message>
        <source>%s has been changed by another program since it was shown. Delete it anyway ?</source>
        <translation>%s a été modifié par un autre programme depuis son affichage. Le supprimer quand même ?</translation>
    </message>
    <message>
        <source>The data directory %s cannot be created</source>
        <translation>Le répertoire de données %s ne peut pas être créé</translation>
    </message>
    <message>
        <source>The backup of this read could not be written: %s</source>
        <translation>La sauvegarde de cette lecture n&apos;a pas pu être écrite : %s</translation>
    </message>
    <message>
        <source>The tables of the data directory are not open.</source>
        <translation>Les tables du répertoire de données ne sont pas ouvertes.</translation>
    </message>
    <message>
        <source>The file holds a %s validator but a %s validator is connected: nothing was written.</source>
        <translation>Le fichier contient un monnayeur %s mais un monnayeur %s est connecté : rien n&apos;a été écrit.</translation>
    </message>
    <message>
        <source>%d Overlapping</source>
        <translation>%d chevauchement(s)</translation>
    </message>
    <message>
        <source>%d superposition(s)</source>
        <translation>%d superposition(s)</translation>
    </message>
    <message>
        <source>%s has no row for channels %s: they open empty.</source>
        <translation>%s n&apos;a pas de ligne pour les canaux %s : ils s&apos;ouvrent vides.</translation>
    </message>
    <message>
        <source>%s has more than one row for channels %s: the first row of each is used.</source>
        <translation>%s a plus d&apos;une ligne pour les canaux %s : la première de chacun est utilisée.</translation>
    </message>
    <message>
        <source>Delete %s and its channels from the tables?</source>
        <translation>Supprimer %s et ses canaux des tables ?</translation>
    </message>
    <message>
        <source>No value table %s is stored</source>
        <translation>Aucune table de valeurs %s n&apos;est enregistrée</translation>
    </message>
    <message>
        <source>Delete record?</source>
        <translation>Supprimer l&apos;enregistrement ?</translation>
    </message>
    <message>
        <source>%s is truncated inside its header: none of its records can be read</source>
        <translation>%s est tronqué dans son en-tête : aucun de ses enregistrements ne peut être lu</translation>
    </message>
    <message>
        <source>%s. It is opened read-only with the records that can be read; repair the tables to change it.</source>
        <translation>%s. Il est ouvert en lecture seule avec les enregistrements lisibles ; réparez les tables pour le modifier.</translation>
    </message>
    <message>
        <source>%s is damaged and cannot be changed until the tables are repaired</source>
        <translation>%s est endommagé et ne peut pas être modifié tant que les tables ne sont pas réparées</translation>
    </message>
    <message>
        <source>%s. Nothing of it can be read; the file is left as it is.</source>
        <translation>%s. Rien ne peut en être lu ; le fichier est laissé tel quel.</translation>
    </message>
    <message>
        <source>%s is not open: nothing can be read from it or stored in it</source>
        <translation>%s n&apos;est pas ouvert : rien ne peut y être lu ni enregistré</translation>
    </message>
    <message>
        <source>%s is sound and was left untouched</source>
        <translation>%s est intact et n&apos;a pas été modifié</translation>
    </message>
    <message>
        <source>%s repaired: %s records kept, %s could not be read; the damaged files are kept in %s</source>
        <translation>%s réparé : %s enregistrements conservés, %s illisibles ; les fichiers endommagés sont conservés dans %s</translation>
    </message>
    <message>
        <source>%s: its index was rebuilt from the table; the old files are kept in %s</source>
        <translation>%s : son index a été reconstruit à partir de la table ; les anciens fichiers sont conservés dans %s</translation>
    </message>
    <message>
        <source>%s could not be repaired: %s</source>
        <translation>%s n&apos;a pas pu être réparé : %s</translation>
    </message>
    <message>
        <source>The index %s is not usable (%s)</source>
        <translation>L&apos;index %s n&apos;est pas utilisable (%s)</translation>
    </message>
    <message>
        <source>Verifying...</source>
        <translation>Vérification...</translation>
    </message>
    <message>
        <source>Verified: the validator holds the configuration.</source>
        <translation>Vérifié : le monnayeur contient la configuration.</translation>
    </message>
    <message>
        <source>The validator does not hold what was written:</source>
        <translation>Le monnayeur ne contient pas ce qui a été écrit :</translation>
    </message>
    <message>
        <source>Verification failed: the validator could not be read back.</source>
        <translation>Échec de la vérification : le monnayeur n&apos;a pas pu être relu.</translation>
    </message>
    <message>
        <source>... and %d more.</source>
        <translation>... et %d de plus.</translation>
    </message>
    <message>
        <source>No space left on the disk: nothing was written</source>
        <translation>Plus de place sur le disque : rien n&apos;a été écrit</translation>
    </message>
    <message>
        <source>The disk quota is used up: nothing was written</source>
        <translation>Le quota du disque est épuisé : rien n&apos;a été écrit</translation>
    </message>
    <message>
        <source>The disk is read-only: nothing was written</source>
        <translation>Le disque est en lecture seule : rien n&apos;a été écrit</translation>
    </message>
    <message>
        <source>Writing in this folder is not allowed: nothing was written</source>
        <translation>L&apos;écriture dans ce dossier n&apos;est pas autorisée : rien n&apos;a été écrit</translation>
    </message>
    <message>
        <source>The folder does not exist: nothing was written</source>
        <translation>Le dossier n&apos;existe pas : rien n&apos;a été écrit</translation>
    </message>
    <message>
        <source>The disk reported an error (%s): nothing was written</source>
        <translation>Le disque a signalé une erreur (%s) : rien n&apos;a été écrit</translation>
    </message>
    <message>
        <source>&quot;%s&quot; cannot be stored in %s: its code page has no %s. Nothing was written.</source>
        <translation>« %s » ne peut pas être enregistré dans %s : sa page de codes n&apos;a pas %s. Rien n&apos;a été écrit.</translation>
    </message>
    <message>
        <source>&quot;%s&quot; is too long for %s: it holds at most %s characters. Nothing was written.</source>
        <translation>« %s » est trop long pour %s : il contient au plus %s caractères. Rien n&apos;a été écrit.</translation>
    </message>
    <message>
        <source>%s counts %s records in its header, but its index and its length prove %s</source>
        <translation>%s compte %s enregistrements dans son en-tête, mais son index et sa longueur en prouvent %s</translation>
    </message>
    <message>
        <source>the rebuilt table could not be read back as written</source>
        <translation>la table reconstruite n&apos;a pas pu être relue telle qu&apos;elle a été écrite</translation>
    </message>
    <message>
        <source>The settings file %s could not be read; it has been kept as %s. The defaults are used, with the tables in %s.</source>
        <translation>Le fichier de paramètres %s n&apos;a pas pu être lu ; il a été conservé sous %s. Les valeurs par défaut sont utilisées, avec les tables dans %s.</translation>
    </message>
    <message>
        <source>The settings file %s could not be read. The defaults are used, with the tables in %s.</source>
        <translation>Le fichier de paramètres %s n&apos;a pas pu être lu. Les valeurs par défaut sont utilisées, avec les tables dans %s.</translation>
    </message>
    <message>
        <source>No coin profile %s is stored</source>
        <translation>Aucun profil de pièce %s n&apos;est enregistré</translation>
    </message>
    <message>
        <source>An amount cannot be negative: %s was not stored.</source>
        <translation>Un montant ne peut pas être négatif : %s n&apos;a pas été enregistré.</translation>
    </message>
    <message>
        <source>The validator now holds a partly written configuration (written: %s); nothing already written was undone. Write it again before use.</source>
        <translation>Le monnayeur contient maintenant une configuration partiellement écrite (écrit : %s) ; rien de ce qui a déjà été écrit n&apos;a été annulé. Écrivez-la de nouveau avant utilisation.</translation>
    </message>
    <message>
        <source>Nothing was written: the validator holds what it held before.</source>
        <translation>Rien n&apos;a été écrit : le monnayeur contient ce qu&apos;il contenait avant.</translation>
    </message>
    <message>
        <source>The validator refused: %s.</source>
        <translation>Le monnayeur a refusé : %s.</translation>
    </message>
    <message>
        <source>No answer came after sending %s: the validator may or may not hold it.</source>
        <translation>Aucune réponse après l&apos;envoi de %s : le monnayeur le contient peut-être, ou non.</translation>
    </message>
    <message>
        <source>Channel %d was not saved into the validator.</source>
        <translation>Le canal %d n&apos;a pas été enregistré dans le monnayeur.</translation>
    </message>
    <message>
        <source>Channel %d of the validator now holds %s.</source>
        <translation>Le canal %d du monnayeur contient maintenant %s.</translation>
    </message>
    <message>
        <source>%s is empty: it is not a firmware file. Nothing was sent.</source>
        <translation>%s est vide : ce n&apos;est pas un fichier firmware. Rien n&apos;a été envoyé.</translation>
    </message>
    <message>
        <source>%s is not a Motorola S-record firmware file: line %d %s. Nothing was sent.</source>
        <translation>%s n&apos;est pas un fichier firmware Motorola S-record : la ligne %d %s. Rien n&apos;a été envoyé.</translation>
    </message>
    <message>
        <source>does not begin with S0 to S9</source>
        <translation>ne commence pas par S0 à S9</translation>
    </message>
    <message>
        <source>holds a character that is not a hexadecimal digit</source>
        <translation>contient un caractère qui n&apos;est pas un chiffre hexadécimal</translation>
    </message>
    <message>
        <source>has a byte count that does not match its length</source>
        <translation>a un nombre d&apos;octets qui ne correspond pas à sa longueur</translation>
    </message>
    <message>
        <source>has a wrong checksum</source>
        <translation>a une somme de contrôle fausse</translation>
    </message>
    <message>
        <source>The mini-programmer must be in its upgrade mode before the file is sent. Send %s now?</source>
        <translation>Le mini-programmateur doit être en mode mise à jour avant l&apos;envoi du fichier. Envoyer %s maintenant ?</translation>
    </message>
    <message>
        <source>%s holds %d bytes: sent byte by byte at 9600 baud, it takes hours. Send it all the same?</source>
        <translation>%s contient %d octets : envoyé octet par octet à 9600 bauds, cela prend des heures. L&apos;envoyer quand même ?</translation>
    </message>
    <message>
        <source>The port was lost during the transfer: %d of %d bytes left the port: the upgrade is not complete.</source>
        <translation>Le port a été perdu pendant le transfert : %d octets sur %d ont quitté le port : la mise à jour n&apos;est pas complète.</translation>
    </message>
    <message>
        <source>%s is locked by %s: waiting at most %s s</source>
        <translation>%s est verrouillé par %s : attente de %s s au plus</translation>
    </message>
    <message>
        <source>%s: waited %s s for %s holding the lock; nothing read</source>
        <translation>%s : %s s d&apos;attente de %s qui détient le verrou ; rien n&apos;a été lu</translation>
    </message>
    <message>
        <source>%s is not a file (a folder, a pipe or a device): it is not opened</source>
        <translation>%s n&apos;est pas un fichier (un dossier, un tube ou un périphérique) : il n&apos;est pas ouvert</translation>
    </message>
    <message>
        <source>The data directory %s cannot be read: %s</source>
        <translation>Le répertoire de données %s ne peut pas être lu : %s</translation>
    </message>
    <message>
        <source>%s holds %s channel rows of no stored validator: %s</source>
        <translation>%s contient %s lignes de canaux d&apos;aucun monnayeur enregistré : %s</translation>
    </message>
    <message>
        <source>%s holds validators without channel rows: %s; they are kept and open with every channel empty</source>
        <translation>%s contient des monnayeurs sans lignes de canaux : %s ; ils sont conservés et s&apos;ouvrent avec tous les canaux vides</translation>
    </message>
    <message>
        <source>%s: %s channel rows of no stored validator removed (copies in %s)</source>
        <translation>%s : %s lignes de canaux d&apos;aucun monnayeur enregistré supprimées (copies dans %s)</translation>
    </message>
    <message>
        <source>Coin ignored: choose a channel first</source>
        <translation>Pièce ignorée : choisissez d&apos;abord un canal</translation>
    </message>
    <message>
        <source>Matched: %s</source>
        <translation>Reconnue : %s</translation>
    </message>
    <message>
        <source>Overlap with %s</source>
        <translation>Chevauchement avec %s</translation>
    </message>
    <message>
        <source>The validator&apos;s own configuration could not be read before cloning: nothing was cloned.</source>
        <translation>La configuration propre du monnayeur n&apos;a pas pu être lue avant le clonage : rien n&apos;a été cloné.</translation>
    </message>
    <message>
        <source>The validator&apos;s own configuration could not be kept before cloning: %s. Clone all the same?</source>
        <translation>La configuration propre du monnayeur n&apos;a pas pu être conservée avant le clonage : %s. Cloner quand même ?</translation>
    </message>
    <message>
        <source>The validator&apos;s own configuration was kept in %s.</source>
        <translation>La configuration propre du monnayeur a été conservée dans %s.</translation>
    </message>
    <message>
        <source>Windows corrected for this validator&apos;s sensors: %s.</source>
        <translation>Fenêtres corrigées pour les capteurs de ce monnayeur : %s.</translation>
    </message>
    <message>
        <source>Windows copied as they are: the source or this validator has no reference channel to correct them by.</source>
        <translation>Fenêtres copiées telles quelles : la source ou ce monnayeur n&apos;a pas de canal de référence pour les corriger.</translation>
    </message>
    <message>
        <source>Verifying... do not unplug the validator</source>
        <translation>Vérification... ne débranchez pas le monnayeur</translation>
    </message>
    <message>
        <source>The validator does not have %d changes this editor holds (see Changes). Store in the tables all the same?</source>
        <translation>Le monnayeur n&apos;a pas %d modifications que cet éditeur contient (voir Modifications). Enregistrer dans les tables quand même ?</translation>
    </message>
    <message>
        <source>The validator does not have %d changes this editor holds (see Changes); opening replaces them in the editor. Open all the same?</source>
        <translation>Le monnayeur n&apos;a pas %d modifications que cet éditeur contient (voir Modifications) ; l&apos;ouverture les remplace dans l&apos;éditeur. Ouvrir quand même ?</translation>
    </message>
    <message>
        <source>What the validator holds is the configuration of a %s validator with %s channels, the one to write is of a %s validator with %s channels: nothing was written.</source>
        <translation>Le monnayeur contient la configuration d&apos;un monnayeur %s à %s canaux, celle à écrire est d&apos;un monnayeur %s à %s canaux : rien n&apos;a été écrit.</translation>
    </message>
    <message>
        <source>This validator (serial %s) is not the one read (serial %s): nothing was written.</source>
        <translation>Ce monnayeur (numéro de série %s) n&apos;est pas celui qui a été lu (numéro de série %s) : rien n&apos;a été écrit.</translation>
    </message>
    <message>
        <source>This validator (serial %s) has %s firmware, the one read (serial %s) had %s: nothing was written.</source>
        <translation>Ce monnayeur (numéro de série %s) a un micrologiciel %s, celui qui a été lu (numéro de série %s) avait %s : rien n&apos;a été écrit.</translation>
    </message>
    <message>
        <source>Validator %s was programmed (%s) after what it holds was read: it was written elsewhere since. Read it again; nothing was written.</source>
        <translation>Le monnayeur %s a été programmé (%s) après la lecture de son contenu : il a été écrit ailleurs depuis. Relisez-le ; rien n&apos;a été écrit.</translation>
    </message>
    <message>
        <source>The validator already holds this configuration: nothing was written.</source>
        <translation>Le monnayeur contient déjà cette configuration : rien n&apos;a été écrit.</translation>
    </message>
    <message>
        <source>What validator %s holds is not known (it was not read here): only the whole configuration can be written.</source>
        <translation>Le contenu du monnayeur %s n&apos;est pas connu (il n&apos;a pas été lu ici) : seule la configuration entière peut être écrite.</translation>
    </message>
    <message>
        <source>Plug the next validator</source>
        <translation>Branchez le monnayeur suivant</translation>
    </message>
    <message>
        <source>Validator found: reading its identification...</source>
        <translation>Monnayeur trouvé : lecture de son identification...</translation>
    </message>
    <message>
        <source>Writing %s...</source>
        <translation>Écriture de %s...</translation>
    </message>
    <message>
        <source>Verifying %s...</source>
        <translation>Vérification de %s...</translation>
    </message>
    <message>
        <source>%s verified: unplug it</source>
        <translation>%s vérifié : débranchez-le</translation>
    </message>
    <message>
        <source>%s does not hold what was written: unplug it</source>
        <translation>%s ne contient pas ce qui a été écrit : débranchez-le</translation>
    </message>
    <message>
        <source>%s failed: unplug it</source>
        <translation>%s a échoué : débranchez-le</translation>
    </message>
    <message>
        <source>%s was already done: unplug it</source>
        <translation>%s était déjà fait : débranchez-le</translation>
    </message>
    <message>
        <source>%s is of another family: unplug it</source>
        <translation>%s est d&apos;une autre famille : débranchez-le</translation>
    </message>
    <message>
        <source>Batch finished: %d verified, %d failed, %d skipped.</source>
        <translation>Série terminée : %d vérifiés, %d échoués, %d sautés.</translation>
    </message>
    <message>
        <source>No validator was plugged for %d s: the batch stopped.</source>
        <translation>Aucun monnayeur branché depuis %d s : la série s&apos;est arrêtée.</translation>
    </message>
    <message>
        <source>The batch log could not be written (%s): the batch stopped.</source>
        <translation>Le journal de la série n&apos;a pas pu être écrit (%s) : la série s&apos;est arrêtée.</translation>
    </message>
    <message>
        <source>Already verified in this batch at %s: not written again.</source>
        <translation>Déjà vérifié dans cette série à %s : pas réécrit.</translation>
    </message>
    <message>
        <source>A %s validator, the configuration is for %s: nothing was written.</source>
        <translation>Un monnayeur %s, la configuration est pour %s : rien n&apos;a été écrit.</translation>
    </message>
    <message>
        <source>Its own configuration could not be read: nothing was written.</source>
        <translation>Sa propre configuration n&apos;a pas pu être lue : rien n&apos;a été écrit.</translation>
    </message>
    <message>
        <source>Its own configuration could not be kept (%s): nothing was written.</source>
        <translation>Sa propre configuration n&apos;a pas pu être conservée (%s) : rien n&apos;a été écrit.</translation>
    </message>
    <message>
        <source>It no longer answered before the write: nothing was written.</source>
        <translation>Il ne répondait plus avant l&apos;écriture : rien n&apos;a été écrit.</translation>
    </message>
    <message>
        <source>Written, but it could not be read back to verify it.</source>
        <translation>Écrit, mais il n&apos;a pas pu être relu pour le vérifier.</translation>
    </message>
    <message>
        <source>No validator is stored as %s.</source>
        <translation>Aucun monnayeur n&apos;est enregistré sous %s.</translation>
    </message>
    <message>
        <source>Choose at least one group to write, or the full write.</source>
        <translation>Choisissez au moins un groupe à écrire, ou l&apos;écriture complète.</translation>
    </message>
    <message>
        <source>How many validators: a number from 0 to 9999.</source>
        <translation>Combien de monnayeurs : un nombre de 0 à 9999.</translation>
    </message>
    <message>
        <source>Choose the configuration to write.</source>
        <translation>Choisissez la configuration à écrire.</translation>
    </message>
    <message>
        <source>The configuration sheet could not be written: %s</source>
        <translation>La fiche de configuration n&apos;a pas pu être écrite : %s</translation>
    </message>
    <message>
        <source>The history could not be kept: %s</source>
        <translation>L&apos;historique n&apos;a pas pu être conservé : %s</translation>
    </message>
    <message>
        <source>No history is known for the serial number %s</source>
        <translation>Aucun historique n&apos;est connu pour le numéro de série %s</translation>
    </message>
    <message>
        <source>This event holds no configuration to put back</source>
        <translation>Cet événement ne contient aucune configuration à restaurer</translation>
    </message>
    <message>
        <source>Put the validator back as it was on %s? This changes:
%s</source>
        <translation>Remettre le monnayeur dans son état du %s ? Cela modifie :
%s</translation>
    </message>
    <message>
        <source>The validator already holds the configuration of %s</source>
        <translation>Le monnayeur contient déjà la configuration du %s</translation>
    </message>
    <message>
        <source>The history could not be read: %s</source>
        <translation>L&apos;historique n&apos;a pas pu être lu : %s</translation>
    </message>
    <message>
        <source>The validator connected has the serial number %s, not %s: nothing was written</source>
        <translation>Le monnayeur connecté a le numéro de série %s, pas %s : rien n&apos;a été écrit</translation>
    </message>
    <message>
        <source>No history notes the validator saved as %s: its history is known once it is saved after a read or a write</source>
        <translation>Aucun historique ne mentionne le monnayeur enregistré sous %s : son historique est connu une fois qu&apos;il est enregistré après une lecture ou une écriture</translation>
    </message>
    <message>
        <source>The server %s cannot be reached: nothing was stored.</source>
        <translation>Le serveur %s est injoignable : rien n&apos;a été enregistré.</translation>
    </message>
    <message>
        <source>The server %s cannot be reached.</source>
        <translation>Le serveur %s est injoignable.</translation>
    </message>
    <message>
        <source>The tables on the server %s were made by a later version (%d); this program knows version %d and changes nothing.</source>
        <translation>Les tables du serveur %s ont été créées par une version plus récente (%d) ; ce programme connaît la version %d et ne modifie rien.</translation>
    </message>
    <message>
        <source>The password is not kept in the settings: put it in ~/.pgpass or PGPASSWORD.</source>
        <translation>Le mot de passe n&apos;est pas conservé dans les paramètres : placez-le dans ~/.pgpass ou PGPASSWORD.</translation>
    </message>
</context>
<context>
    <name>SimulatorPanel</name>
    <message>
        <source>Virtual validator</source>
        <translation>Monnayeur virtuel</translation>
    </message>
    <message>
        <source>Validator</source>
        <translation>Monnayeur</translation>
    </message>
    <message>
        <source>Family :</source>
        <translation>Famille :</translation>
    </message>
    <message>
        <source>Serial number :</source>
        <translation>Numéro de série :</translation>
    </message>
    <message>
        <source>Fit a new validator</source>
        <translation>Installer un nouveau monnayeur</translation>
    </message>
    <message>
        <source>Coins</source>
        <translation>Pièces</translation>
    </message>
    <message>
        <source>Insert</source>
        <translation>Insérer</translation>
    </message>
    <message>
        <source>Door open</source>
        <translation>Porte ouverte</translation>
    </message>
    <message>
        <source>Cable plugged in</source>
        <translation>Câble branché</translation>
    </message>
    <message>
        <source>Mini-programmer (firmware upgrade)</source>
        <translation>Mini-programmateur (mise à jour du micrologiciel)</translation>
    </message>
    <message>
        <source>Coins waiting : %1</source>
        <translation>Pièces en attente : %1</translation>
    </message>
    <message>
        <source>Ask for firmware (code 11)</source>
        <translation>Demander le micrologiciel (code 11)</translation>
    </message>
    <message>
        <source>Test mode</source>
        <translation>Mode test</translation>
    </message>
    <message>
        <source>Golden token</source>
        <translation>Jeton doré</translation>
    </message>
    <message>
        <source>Silver token</source>
        <translation>Jeton argenté</translation>
    </message>
    <message>
        <source>Line</source>
        <translation>Ligne</translation>
    </message>
    <message>
        <source>9600 baud pacing</source>
        <translation>Cadence de 9600 bauds</translation>
    </message>
    <message>
        <source>Count echo after (ms) :</source>
        <translation>Écho du compte après (ms) :</translation>
    </message>
    <message>
        <source>Reply after (ms) :</source>
        <translation>Réponse après (ms) :</translation>
    </message>
    <message>
        <source>Adapter bursts every (ms) :</source>
        <translation>Paquets de l&apos;adaptateur toutes les (ms) :</translation>
    </message>
    <message>
        <source>Pause in replies after byte, for (ms) :</source>
        <translation>Pause dans les réponses après l&apos;octet, pendant (ms) :</translation>
    </message>
    <message>
        <source>Random seed :</source>
        <translation>Graine aléatoire :</translation>
    </message>
    <message>
        <source>Count echo after at most (ms)</source>
        <translation>Écho du compte après au plus (ms)</translation>
    </message>
    <message>
        <source>Reply after at most (ms)</source>
        <translation>Réponse après au plus (ms)</translation>
    </message>
    <message>
        <source>Pause in replies (ms)</source>
        <translation>Pause dans les réponses (ms)</translation>
    </message>
    <message>
        <source>Unplug</source>
        <translation>Débrancher</translation>
    </message>
    <message>
        <source>Plug in this serial</source>
        <translation>Brancher ce numéro de série</translation>
    </message>
</context>
<context>
    <name>TCloningChk</name>
    <message>
        <source>Cloning</source>
        <translation>Clonage</translation>
    </message>
    <message>
        <source>Please! Be sure that validator is connected.</source>
        <translation>Attention ! Vérifiez que le monnayeur est connecté.</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Options</translation>
    </message>
    <message>
        <source>Channels data</source>
        <translation>Données des canaux</translation>
    </message>
    <message>
        <source>Values table :</source>
        <translation>Table des valeurs :</translation>
    </message>
    <message>
        <source>Prices table :</source>
        <translation>Table des prix :</translation>
    </message>
    <message>
        <source>Configuration :</source>
        <translation>Configuration :</translation>
    </message>
    <message>
        <source>Enable table :</source>
        <translation>Table d&apos;activation :</translation>
    </message>
    <message>
        <source>&amp;OK</source>
        <translation>&amp;OK</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Annuler</translation>
    </message>
</context>
<context>
    <name>TCommunication</name>
    <message>
        <source>Communication</source>
        <translation>Communication</translation>
    </message>
    <message>
        <source>Port selection</source>
        <translation>Sélection du port</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>Port</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>&amp;Exit</source>
        <translation>&amp;Quitter</translation>
    </message>
</context>
<context>
    <name>TConnectForm</name>
    <message>
        <source>Mini-programmer</source>
        <translation>Mini-programmateur</translation>
    </message>
</context>
<context>
    <name>TFormAvertissementDif</name>
    <message>
        <source>Warning</source>
        <translation>Avertissement</translation>
    </message>
    <message>
        <source>&amp;Continue</source>
        <translation>&amp;Continuer</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Annuler</translation>
    </message>
</context>
<context>
    <name>TFormCAdjust</name>
    <message>
        <source>Channel to adjust</source>
        <translation>Canal à ajuster</translation>
    </message>
    <message>
        <source>&amp;Channel :</source>
        <translation>&amp;Canal :</translation>
    </message>
    <message>
        <source>0 = searching for nearest</source>
        <translation>0 = recherche du plus proche</translation>
    </message>
    <message>
        <source>&amp;Automatic adjustment :</source>
        <translation>Ajustement &amp;automatique :</translation>
    </message>
    <message>
        <source>&amp;OK</source>
        <translation>&amp;OK</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Annuler</translation>
    </message>
</context>
<context>
    <name>TFormCondotto</name>
    <message>
        <source>Output</source>
        <translation>Sortie</translation>
    </message>
    <message>
        <source>Game</source>
        <translation>Jeu</translation>
    </message>
    <message>
        <source>Vending</source>
        <translation>Distribution</translation>
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
        <translation>&amp;Paramètres</translation>
    </message>
    <message>
        <source>&amp;Sound</source>
        <translation>&amp;Son</translation>
    </message>
    <message>
        <source>&amp;Auto adjust</source>
        <translation>&amp;Ajustement auto</translation>
    </message>
    <message>
        <source>&amp;Direct write</source>
        <translation>&amp;Écriture directe</translation>
    </message>
    <message>
        <source>&amp;Langage</source>
        <translation>&amp;Langue</translation>
    </message>
    <message>
        <source>&amp;Local</source>
        <translation>&amp;Locale</translation>
    </message>
    <message>
        <source>Firmware upgrade...</source>
        <translation>Mise à jour du micrologiciel...</translation>
    </message>
    <message>
        <source>&amp;Back</source>
        <translation>&amp;Retour</translation>
    </message>
    <message>
        <source>&amp;Exit</source>
        <translation>&amp;Quitter</translation>
    </message>
    <message>
        <source>&amp;Verify after write</source>
        <translation>&amp;Vérifier après écriture</translation>
    </message>
    <message>
        <source>Reads the validator back after each write and lists what it does not hold</source>
        <translation>Relit le monnayeur après chaque écriture et liste ce qu&apos;il ne contient pas</translation>
    </message>
    <message>
        <source>Port &amp;time-out...</source>
        <translation>&amp;Délai du port...</translation>
    </message>
    <message>
        <source>How long to wait for the validator&apos;s first byte: raise it for Bluetooth or radio serial adapters</source>
        <translation>Combien de temps attendre le premier octet du monnayeur : augmentez-le pour les adaptateurs série Bluetooth ou radio</translation>
    </message>
    <message>
        <source>Port time-out</source>
        <translation>Délai du port</translation>
    </message>
    <message>
        <source>Wait for a count echo or a reply&apos;s first byte, in milliseconds (%1 by default):</source>
        <translation>Attente de l&apos;écho du nombre ou du premier octet d&apos;une réponse, en millisecondes (%1 par défaut) :</translation>
    </message>
    <message>
        <source>&amp;Back up before cloning</source>
        <translation>Sauve&amp;garder avant le clonage</translation>
    </message>
    <message>
        <source>Reads the validator a clone writes to and keeps its own configuration among the backups first</source>
        <translation>Lit le monnayeur sur lequel un clonage écrit et conserve d&apos;abord sa propre configuration parmi les sauvegardes</translation>
    </message>
    <message>
        <source>Only for calibration: leaving a window, value, substitute or enable box of a channel writes that channel&apos;s change to the validator at once and checks it</source>
        <translation>Uniquement pour l&apos;étalonnage : quitter une case de fenêtre, de valeur, de substitut ou d&apos;activation d&apos;un canal écrit aussitôt la modification de ce canal dans le monnayeur et la vérifie</translation>
    </message>
    <message>
        <source>Only for calibration</source>
        <translation>Uniquement pour l&apos;étalonnage</translation>
    </message>
</context>
<context>
    <name>TFormProfilC</name>
    <message>
        <source>Coin Profile</source>
        <translation>Profil de pièce</translation>
    </message>
    <message>
        <source>&amp;Name :</source>
        <translation>&amp;Nom :</translation>
    </message>
    <message>
        <source>&amp;Description :</source>
        <translation>&amp;Description :</translation>
    </message>
    <message>
        <source>Substitution channel :</source>
        <translation>Canal de substitution :</translation>
    </message>
    <message>
        <source>&amp;Enable</source>
        <translation>&amp;Activer</translation>
    </message>
    <message>
        <source>&amp;Value : </source>
        <translation>&amp;Valeur : </translation>
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
        <translation>Tolérances</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Description</translation>
    </message>
    <message>
        <source>Values</source>
        <translation>Valeurs</translation>
    </message>
    <message>
        <source>Items</source>
        <translation>Éléments</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>&amp;Ouvrir</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Enregistrer</translation>
    </message>
    <message>
        <source>&amp;Exit</source>
        <translation>&amp;Quitter</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>Ann&amp;uler</translation>
    </message>
    <message>
        <source>HFU low min.</source>
        <translation>HFU bas min.</translation>
    </message>
    <message>
        <source>HFU low max.</source>
        <translation>HFU bas max.</translation>
    </message>
    <message>
        <source>HFU high min.</source>
        <translation>HFU haut min.</translation>
    </message>
    <message>
        <source>Hfu high max.</source>
        <translation>Hfu haut max.</translation>
    </message>
    <message>
        <source>Dimension min.</source>
        <translation>Dimension min.</translation>
    </message>
    <message>
        <source>Dimension max.</source>
        <translation>Dimension max.</translation>
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
        <translation>HFL bas min.</translation>
    </message>
    <message>
        <source>HFL low max.</source>
        <translation>HFL bas max.</translation>
    </message>
    <message>
        <source>HFL high min.</source>
        <translation>HFL haut min.</translation>
    </message>
    <message>
        <source>HFL high max.</source>
        <translation>HFL haut max.</translation>
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
        <translation>Navigation des enregistrements</translation>
    </message>
    <message>
        <source>First record</source>
        <translation>Premier enregistrement</translation>
    </message>
    <message>
        <source>Prior record</source>
        <translation>Enregistrement précédent</translation>
    </message>
    <message>
        <source>Next record</source>
        <translation>Enregistrement suivant</translation>
    </message>
    <message>
        <source>Last record</source>
        <translation>Dernier enregistrement</translation>
    </message>
    <message>
        <source>Delete record</source>
        <translation>Supprimer l&apos;enregistrement</translation>
    </message>
</context>
<context>
    <name>TFormProgCoin</name>
    <message>
        <source>Channels control</source>
        <translation>Contrôle des canaux</translation>
    </message>
    <message>
        <source>&amp;Channel to control :</source>
        <translation>&amp;Canal à contrôler :</translation>
    </message>
    <message>
        <source>Channel to calibra&amp;te :</source>
        <translation>Canal à calibr&amp;er :</translation>
    </message>
    <message>
        <source>Su&amp;bstitution  Channel :</source>
        <translation>Canal de su&amp;bstitution :</translation>
    </message>
    <message>
        <source>&amp;Value : </source>
        <translation>&amp;Valeur : </translation>
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
        <translation>&amp;Activé :</translation>
    </message>
    <message>
        <source>Profile :</source>
        <translation>Profil :</translation>
    </message>
    <message>
        <source>Description :</source>
        <translation>Description :</translation>
    </message>
    <message>
        <source>Se&amp;lect...</source>
        <translation>Sé&amp;lectionner...</translation>
    </message>
    <message>
        <source>Response level :</source>
        <translation>Niveau de réponse :</translation>
    </message>
    <message>
        <source>Number of coins : </source>
        <translation>Nombre de pièces : </translation>
    </message>
    <message>
        <source>Tolerance a&amp;uto :</source>
        <translation>Tolérance a&amp;uto :</translation>
    </message>
    <message>
        <source>&amp;OK</source>
        <translation>&amp;OK</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Enregistrer</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Annuler</translation>
    </message>
    <message>
        <source>Loa&amp;d</source>
        <translation>Char&amp;ger</translation>
    </message>
    <message>
        <source>&amp;Clear</source>
        <translation>&amp;Effacer</translation>
    </message>
    <message>
        <source>&amp;Export...</source>
        <translation>E&amp;xporter...</translation>
    </message>
    <message>
        <source>&amp;Import...</source>
        <translation>&amp;Importer...</translation>
    </message>
    <message>
        <source>&amp;Matched channel...</source>
        <translation>Canal &amp;correspondant...</translation>
    </message>
    <message>
        <source>Anal&amp;yse</source>
        <translation>Anal&amp;yse</translation>
    </message>
    <message>
        <source>HFU low</source>
        <translation>HFU bas</translation>
    </message>
    <message>
        <source>HFU high</source>
        <translation>HFU haut</translation>
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
        <translation>HFL bas</translation>
    </message>
    <message>
        <source>HFL high</source>
        <translation>HFL haut</translation>
    </message>
    <message>
        <source>AMP</source>
        <translation>AMP</translation>
    </message>
    <message>
        <source>%1 minimum: the lowest reading the channel takes</source>
        <translation>%1 minimum : la plus basse mesure que le canal accepte</translation>
    </message>
    <message>
        <source>%1 maximum: the highest reading the channel takes</source>
        <translation>%1 maximum : la plus haute mesure que le canal accepte</translation>
    </message>
    <message>
        <source>%1: the reading of the last coin</source>
        <translation>%1 : la mesure de la dernière pièce</translation>
    </message>
    <message>
        <source>%1: the width of the window (maximum - minimum)</source>
        <translation>%1 : la largeur de la fenêtre (maximum - minimum)</translation>
    </message>
    <message>
        <source>%1: the last reading minus the minimum (below 0: under the window)</source>
        <translation>%1 : la dernière mesure moins le minimum (sous 0 : sous la fenêtre)</translation>
    </message>
    <message>
        <source>%1: the last reading minus the maximum (above 0: over the window)</source>
        <translation>%1 : la dernière mesure moins le maximum (au-dessus de 0 : au-dessus de la fenêtre)</translation>
    </message>
    <message>
        <source>%1: the last reading, and the window as a band</source>
        <translation>%1 : la dernière mesure, et la fenêtre en bande</translation>
    </message>
    <message>
        <source>The first stored channel whose windows hold the last coin</source>
        <translation>Le premier canal enregistré dont les fenêtres contiennent la dernière pièce</translation>
    </message>
    <message>
        <source>Coins counted for the chosen channel</source>
        <translation>Pièces comptées pour le canal choisi</translation>
    </message>
</context>
<context>
    <name>TFormRefChannel</name>
    <message>
        <source>Reference Channel</source>
        <translation>Canal de référence</translation>
    </message>
    <message>
        <source>Reference channel is empty</source>
        <translation>Le canal de référence est vide</translation>
    </message>
    <message>
        <source>Use the reference set of tokens.</source>
        <translation>Utilisez le jeu de jetons de référence.</translation>
    </message>
    <message>
        <source>- Insert 5 golden tokens.</source>
        <translation>- Insérez 5 jetons dorés.</translation>
    </message>
    <message>
        <source>- Ok</source>
        <translation>- Ok</translation>
    </message>
    <message>
        <source>- Insert 5 silver tokens.</source>
        <translation>- Insérez 5 jetons argentés.</translation>
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
        <translation>Liste des canaux qui se chevauchent</translation>
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
        <translation>Table des valeurs</translation>
    </message>
    <message>
        <source>Base Value</source>
        <translation>Valeur de base</translation>
    </message>
    <message>
        <source>Channels 1 to </source>
        <translation>Canaux 1 à </translation>
    </message>
    <message>
        <source>Channels 31 to 60 : </source>
        <translation>Canaux 31 à 60 : </translation>
    </message>
    <message>
        <source>Ratio : </source>
        <translation>Rapport : </translation>
    </message>
    <message>
        <source>Name : </source>
        <translation>Nom : </translation>
    </message>
    <message>
        <source>Description : </source>
        <translation>Description : </translation>
    </message>
    <message>
        <source>Channels</source>
        <translation>Canaux</translation>
    </message>
    <message>
        <source>Table name</source>
        <translation>Nom de la table</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Description</translation>
    </message>
    <message>
        <source>Channel values</source>
        <translation>Valeurs des canaux</translation>
    </message>
    <message>
        <source>Stored value tables</source>
        <translation>Tables de valeurs enregistrées</translation>
    </message>
    <message>
        <source>Record navigator</source>
        <translation>Navigation des enregistrements</translation>
    </message>
    <message>
        <source>&amp;Load</source>
        <translation>&amp;Charger</translation>
    </message>
    <message>
        <source>Load value table from validator</source>
        <translation>Charger la table des valeurs depuis le monnayeur</translation>
    </message>
    <message>
        <source>&amp;Transfert</source>
        <translation>&amp;Transfert</translation>
    </message>
    <message>
        <source>Transfert de la table des valeurs dans le monnayeur</source>
        <translation>Transfert de la table des valeurs dans le monnayeur</translation>
    </message>
    <message>
        <source>&amp;Apply</source>
        <translation>A&amp;ppliquer</translation>
    </message>
    <message>
        <source>Aplly the value table</source>
        <translation>Appliquer la table des valeurs</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Enregistrer</translation>
    </message>
    <message>
        <source>Save a record</source>
        <translation>Enregistrer une fiche</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>&amp;Ouvrir</translation>
    </message>
    <message>
        <source>Open a record</source>
        <translation>Ouvrir une fiche</translation>
    </message>
    <message>
        <source>&amp;Reset</source>
        <translation>&amp;Effacer</translation>
    </message>
    <message>
        <source>Reseting value table</source>
        <translation>Effacement de la table des valeurs</translation>
    </message>
    <message>
        <source>&amp;Exit</source>
        <translation>&amp;Quitter</translation>
    </message>
    <message>
        <source>First record</source>
        <translation>Premier enregistrement</translation>
    </message>
    <message>
        <source>Prior record</source>
        <translation>Enregistrement précédent</translation>
    </message>
    <message>
        <source>Next record</source>
        <translation>Enregistrement suivant</translation>
    </message>
    <message>
        <source>Last record</source>
        <translation>Dernier enregistrement</translation>
    </message>
    <message>
        <source>Delete record</source>
        <translation>Supprimer l&apos;enregistrement</translation>
    </message>
</context>
<context>
    <name>TMajFirmware</name>
    <message>
        <source>Fichier Firmware VK2</source>
        <translation>Fichier Firmware VK2</translation>
    </message>
    <message>
        <source>Firmware upgrade</source>
        <translation>Mise à jour du micrologiciel</translation>
    </message>
    <message>
        <source>Upgrade</source>
        <translation>Mise à jour</translation>
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
        <translation>Paramétrage du monnayeur</translation>
    </message>
    <message>
        <source>Serial Number :</source>
        <translation>Numéro de série :</translation>
    </message>
    <message>
        <source>Outlet</source>
        <translation>Utilisation</translation>
    </message>
    <message>
        <source>Game Fast</source>
        <translation>Jeu rapide</translation>
    </message>
    <message>
        <source>Game</source>
        <translation>Jeu</translation>
    </message>
    <message>
        <source>Vending anti-jam</source>
        <translation>Distribution anti-blocage</translation>
    </message>
    <message>
        <source>Vending</source>
        <translation>Distribution</translation>
    </message>
    <message>
        <source>Resetable counter :</source>
        <translation>Compteur réinitialisable :</translation>
    </message>
    <message>
        <source>&amp;OK</source>
        <translation>&amp;OK</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Annuler</translation>
    </message>
</context>
<context>
    <name>TTarvikTolerance</name>
    <message>
        <source>Tolerances</source>
        <translation>Tolérances</translation>
    </message>
    <message>
        <source>Items</source>
        <translation>Éléments</translation>
    </message>
    <message>
        <source>Values</source>
        <translation>Valeurs</translation>
    </message>
    <message>
        <source>HFU low min.</source>
        <translation>HFU bas min.</translation>
    </message>
    <message>
        <source>HFU low max.</source>
        <translation>HFU bas max.</translation>
    </message>
    <message>
        <source>HFU high min.</source>
        <translation>HFU haut min.</translation>
    </message>
    <message>
        <source>HFU high max.</source>
        <translation>HFU haut max.</translation>
    </message>
    <message>
        <source>Dimension min.</source>
        <translation>Dimension min.</translation>
    </message>
    <message>
        <source>Dimension max.</source>
        <translation>Dimension max.</translation>
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
        <translation>HFL bas min.</translation>
    </message>
    <message>
        <source>HFL low max.</source>
        <translation>HFL bas max.</translation>
    </message>
    <message>
        <source>HFL high min.</source>
        <translation>HFL haut min.</translation>
    </message>
    <message>
        <source>HFL high max.</source>
        <translation>HFL haut max.</translation>
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
        <translation>&amp;Annuler</translation>
    </message>
</context>
</TS>
