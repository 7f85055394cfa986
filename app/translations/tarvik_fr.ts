<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr_FR">
<context>
    <name>EditorStandIn</name>
    <message>
        <source>Validator</source>
        <translation>Monnayeur</translation>
    </message>
    <message>
        <source>Port :</source>
        <translation>Port :</translation>
    </message>
    <message>
        <source>Firmware family :</source>
        <translation>Famille du micrologiciel :</translation>
    </message>
    <message>
        <source>Serial number :</source>
        <translation>Numéro de série :</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Fermer</translation>
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
        <source>Channel %d of the validator differs from the one of this configuration: the windows may not suit this validator. Continue?</source>
        <translation>Le canal %d du monnayeur diffère de celui de cette configuration : les fenêtres pourraient ne pas convenir à ce monnayeur. Continuer ?</translation>
    </message>
    <message>
        <source>The validator now holds a partly written configuration: nothing already written was undone. Write it again before use.</source>
        <translation>Le monnayeur contient maintenant une configuration partiellement écrite : rien de ce qui a déjà été écrit n&apos;a été annulé. Écrivez-la de nouveau avant utilisation.</translation>
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
        <source>%s is open in another program (%s); it is opened read-only</source>
        <translation>%s est ouvert dans un autre programme (%s) ; il est ouvert en lecture seule</translation>
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
        <source>%s was changed by another program; open it again before changing it</source>
        <translation>%s a été modifié par un autre programme ; ouvrez-le de nouveau avant de le modifier</translation>
    </message>
    <message>
        <source>The data directory %s cannot be created</source>
        <translation>Le répertoire de données %s ne peut pas être créé</translation>
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
        <source>Only for calibration</source>
        <translation>Uniquement pour l&apos;étalonnage</translation>
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
        <translation>Sortie</translation>
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
</TS>
