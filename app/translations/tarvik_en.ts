<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en_US">
<context>
    <name>Captions</name>
    <message>
        <source>Validator</source>
        <translation>Validator</translation>
    </message>
    <message>
        <source>Channel 1 to 10</source>
        <translation>Channel 1 to 10</translation>
    </message>
    <message>
        <source>Channel 11 to 20</source>
        <translation>Channel 11 to 20</translation>
    </message>
    <message>
        <source>Channel 21 to 30</source>
        <translation>Channel 21 to 30</translation>
    </message>
    <message>
        <source>Channel 31 to 40</source>
        <translation>Channel 31 to 40</translation>
    </message>
    <message>
        <source>Channel 41 to 50</source>
        <translation>Channel 41 to 50</translation>
    </message>
    <message>
        <source>Channel 51 to 60</source>
        <translation>Channel 51 to 60</translation>
    </message>
    <message>
        <source>HFU low min</source>
        <translation>HFU low min</translation>
    </message>
    <message>
        <source>HFU low max</source>
        <translation>HFU low max</translation>
    </message>
    <message>
        <source>HFU high min</source>
        <translation>HFU high min</translation>
    </message>
    <message>
        <source>HFU high max</source>
        <translation>HFU high max</translation>
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
        <translation>HFL low min</translation>
    </message>
    <message>
        <source>HFL low max</source>
        <translation>HFL low max</translation>
    </message>
    <message>
        <source>HFL high min</source>
        <translation>HFL high min</translation>
    </message>
    <message>
        <source>HFL high max</source>
        <translation>HFL high max</translation>
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
        <translation>Enable</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Value</translation>
    </message>
    <message>
        <source>Sub</source>
        <translation>Sub</translation>
    </message>
    <message>
        <source>Channel %d </source>
        <translation>Channel %d </translation>
    </message>
    <message>
        <source>Identification</source>
        <translation>Identification</translation>
    </message>
    <message>
        <source>Serial Number :</source>
        <translation>Serial Number :</translation>
    </message>
    <message>
        <source>Version :</source>
        <translation>Version :</translation>
    </message>
    <message>
        <source>Firmware date :</source>
        <translation>Firmware date :</translation>
    </message>
    <message>
        <source>Programming date :</source>
        <translation>Programming date :</translation>
    </message>
    <message>
        <source>Production date :</source>
        <translation>Production date :</translation>
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
        <translation>Read validator</translation>
    </message>
    <message>
        <source>Write validator</source>
        <translation>Write validator</translation>
    </message>
    <message>
        <source>Clone</source>
        <translation>Clone</translation>
    </message>
    <message>
        <source>Store in tables</source>
        <translation>Store in tables</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Close</translation>
    </message>
    <message>
        <source>Open configuration file</source>
        <translation>Open configuration file</translation>
    </message>
    <message>
        <source>Save configuration file</source>
        <translation>Save configuration file</translation>
    </message>
    <message>
        <source>Validator setting</source>
        <translation>Validator setting</translation>
    </message>
    <message>
        <source>Output</source>
        <translation>Output</translation>
    </message>
    <message>
        <source>Test value (via serial)</source>
        <translation>Test value (via serial)</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Start</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Stop</translation>
    </message>
    <message>
        <source>Channel :</source>
        <translation>Channel :</translation>
    </message>
    <message>
        <source>Value :</source>
        <translation>Value :</translation>
    </message>
    <message>
        <source>Prices</source>
        <translation>Prices</translation>
    </message>
    <message>
        <source>Value P1</source>
        <translation>Value P1</translation>
    </message>
    <message>
        <source>Value P2</source>
        <translation>Value P2</translation>
    </message>
    <message>
        <source>Value P3</source>
        <translation>Value P3</translation>
    </message>
    <message>
        <source>Value P4</source>
        <translation>Value P4</translation>
    </message>
    <message>
        <source>Value P5</source>
        <translation>Value P5</translation>
    </message>
    <message>
        <source>Value P6</source>
        <translation>Value P6</translation>
    </message>
    <message>
        <source>Base Value</source>
        <translation>Base Value</translation>
    </message>
    <message>
        <source>Channel from  1 to 30 :</source>
        <translation>Channel from  1 to 30 :</translation>
    </message>
    <message>
        <source>Channel from 31 to 60 :</source>
        <translation>Channel from 31 to 60 :</translation>
    </message>
    <message>
        <source>Ratio :</source>
        <translation>Ratio :</translation>
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
        <translation>BAD</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Type</translation>
    </message>
    <message>
        <source>00 - Validator</source>
        <translation>00 - Validator</translation>
    </message>
    <message>
        <source>10 - Totalizer - 2 prices</source>
        <translation>10 - Totalizer - 2 prices</translation>
    </message>
    <message>
        <source>20 - Totalizer - video game</source>
        <translation>20 - Totalizer - video game</translation>
    </message>
    <message>
        <source>30 - Timer Totalizer</source>
        <translation>30 - Timer Totalizer</translation>
    </message>
    <message>
        <source>40 - Totalizer - credit</source>
        <translation>40 - Totalizer - credit</translation>
    </message>
    <message>
        <source>50 - </source>
        <translation>50 - </translation>
    </message>
    <message>
        <source>60 - TimerTotalizer - credit</source>
        <translation>60 - TimerTotalizer - credit</translation>
    </message>
    <message>
        <source>70 - Totalizer - photocopy</source>
        <translation>70 - Totalizer - photocopy</translation>
    </message>
    <message>
        <source>Outlet</source>
        <translation>Outlet</translation>
    </message>
    <message>
        <source>Vending anti-jam</source>
        <translation>Vending anti-jam</translation>
    </message>
    <message>
        <source>Vending</source>
        <translation>Vending</translation>
    </message>
    <message>
        <source>Game fast</source>
        <translation>Game fast</translation>
    </message>
    <message>
        <source>Game</source>
        <translation>Game</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Options</translation>
    </message>
    <message>
        <source>Option bits</source>
        <translation>Option bits</translation>
    </message>
    <message>
        <source>Separator</source>
        <translation>Separator</translation>
    </message>
    <message>
        <source>Normal output</source>
        <translation>Normal output</translation>
    </message>
    <message>
        <source>Inverted output</source>
        <translation>Inverted output</translation>
    </message>
    <message>
        <source>Display off</source>
        <translation>Display off</translation>
    </message>
    <message>
        <source>Binary output</source>
        <translation>Binary output</translation>
    </message>
    <message>
        <source>Standby mode</source>
        <translation>Standby mode</translation>
    </message>
    <message>
        <source>Confida</source>
        <translation>Confida</translation>
    </message>
    <message>
        <source>Dip inhibition</source>
        <translation>Dip inhibition</translation>
    </message>
    <message>
        <source>Dip 4/2</source>
        <translation>Dip 4/2</translation>
    </message>
    <message>
        <source>Dow-counting display</source>
        <translation>Dow-counting display</translation>
    </message>
    <message>
        <source>Multi pulse</source>
        <translation>Multi pulse</translation>
    </message>
    <message>
        <source>Jam inhibition</source>
        <translation>Jam inhibition</translation>
    </message>
    <message>
        <source>Reset high</source>
        <translation>Reset high</translation>
    </message>
    <message>
        <source>Toggling counting</source>
        <translation>Toggling counting</translation>
    </message>
    <message>
        <source>Price 1 limit</source>
        <translation>Price 1 limit</translation>
    </message>
    <message>
        <source>Price 2 limit</source>
        <translation>Price 2 limit</translation>
    </message>
    <message>
        <source>Time in minutes</source>
        <translation>Time in minutes</translation>
    </message>
    <message>
        <source>Limit</source>
        <translation>Limit</translation>
    </message>
    <message>
        <source>Ext Counter signal (3C)</source>
        <translation>Ext Counter signal (3C)</translation>
    </message>
    <message>
        <source>Ext Start (3R)</source>
        <translation>Ext Start (3R)</translation>
    </message>
    <message>
        <source>External reset</source>
        <translation>External reset</translation>
    </message>
    <message>
        <source>Rest</source>
        <translation>Rest</translation>
    </message>
    <message>
        <source>Cash counters / Limits</source>
        <translation>Cash counters / Limits</translation>
    </message>
    <message>
        <source>Counter 1 :</source>
        <translation>Counter 1 :</translation>
    </message>
    <message>
        <source>Counter 2 :</source>
        <translation>Counter 2 :</translation>
    </message>
    <message>
        <source>Actived</source>
        <translation>Actived</translation>
    </message>
    <message>
        <source>Desactived</source>
        <translation>Desactived</translation>
    </message>
    <message>
        <source>OFF</source>
        <translation>OFF</translation>
    </message>
    <message>
        <source>Erasable :</source>
        <translation>Erasable :</translation>
    </message>
    <message>
        <source>Vend Limit1 : </source>
        <translation>Vend Limit1 : </translation>
    </message>
    <message>
        <source>Vend Limit 2 : </source>
        <translation>Vend Limit 2 : </translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Reset</translation>
    </message>
    <message>
        <source>Limit / P1 :</source>
        <translation>Limit / P1 :</translation>
    </message>
    <message>
        <source>Value P1 :</source>
        <translation>Value P1 :</translation>
    </message>
    <message>
        <source>Service Width in min.</source>
        <translation>Service Width in min.</translation>
    </message>
    <message>
        <source>Service Width in sec.</source>
        <translation>Service Width in sec.</translation>
    </message>
    <message>
        <source>Minimum Reset Width in ms</source>
        <translation>Minimum Reset Width in ms</translation>
    </message>
    <message>
        <source>Reset Width in sec. :</source>
        <translation>Reset Width in sec. :</translation>
    </message>
    <message>
        <source>Code %d, bit %d</source>
        <translation>Code %d, bit %d</translation>
    </message>
    <message>
        <source>Coin learning</source>
        <translation>Coin learning</translation>
    </message>
    <message>
        <source>Reference calibration</source>
        <translation>Reference calibration</translation>
    </message>
    <message>
        <source>Channel control</source>
        <translation>Channel control</translation>
    </message>
    <message>
        <source>Overlap check</source>
        <translation>Overlap check</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copy</translation>
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
        <translation>Channel : </translation>
    </message>
    <message>
        <source>Clear channel :</source>
        <translation>Clear channel :</translation>
    </message>
    <message>
        <source>Only values :</source>
        <translation>Only values :</translation>
    </message>
    <message>
        <source>&amp;Transfert</source>
        <translation>&amp;Transfert</translation>
    </message>
    <message>
        <source>&amp;Exit</source>
        <translation>&amp;Exit</translation>
    </message>
    <message>
        <source>Saved validators</source>
        <translation>Saved validators</translation>
    </message>
    <message>
        <source>Filter :</source>
        <translation>Filter :</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>&amp;Open</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Delete</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Close</translation>
    </message>
    <message>
        <source>Values Table</source>
        <translation>Values Table</translation>
    </message>
    <message>
        <source>Repair tables...</source>
        <translation>Repair tables...</translation>
    </message>
    <message>
        <source>Repair tables</source>
        <translation>Repair tables</translation>
    </message>
    <message>
        <source>Tables in %s :</source>
        <translation>Tables in %s :</translation>
    </message>
    <message>
        <source>&amp;Repair</source>
        <translation>&amp;Repair</translation>
    </message>
    <message>
        <source>Tarvik help</source>
        <translation>Tarvik help</translation>
    </message>
    <message>
        <source>&amp;Contents</source>
        <translation>&amp;Contents</translation>
    </message>
    <message>
        <source>&amp;Previous</source>
        <translation>&amp;Previous</translation>
    </message>
    <message>
        <source>&amp;Next</source>
        <translation>&amp;Next</translation>
    </message>
    <message>
        <source>(empty)</source>
        <translation>(empty)</translation>
    </message>
    <message>
        <source>on</source>
        <translation>on</translation>
    </message>
    <message>
        <source>off</source>
        <translation>off</translation>
    </message>
    <message>
        <source>enabled</source>
        <translation>enabled</translation>
    </message>
    <message>
        <source>disabled</source>
        <translation>disabled</translation>
    </message>
    <message>
        <source>Option &apos;%s&apos;</source>
        <translation>Option &apos;%s&apos;</translation>
    </message>
    <message>
        <source>Channels data</source>
        <translation>Channels data</translation>
    </message>
    <message>
        <source>Values table :</source>
        <translation>Values table :</translation>
    </message>
    <message>
        <source>Prices table :</source>
        <translation>Prices table :</translation>
    </message>
    <message>
        <source>Configuration :</source>
        <translation>Configuration :</translation>
    </message>
    <message>
        <source>Enable table :</source>
        <translation>Enable table :</translation>
    </message>
    <message>
        <source>Changes</source>
        <translation>Changes</translation>
    </message>
    <message>
        <source>Print...</source>
        <translation>Print...</translation>
    </message>
    <message>
        <source>Save as PDF...</source>
        <translation>Save as PDF...</translation>
    </message>
    <message>
        <source>Configuration sheet</source>
        <translation>Configuration sheet</translation>
    </message>
    <message>
        <source>Channels in use</source>
        <translation>Channels in use</translation>
    </message>
    <message>
        <source>Channel</source>
        <translation>Channel</translation>
    </message>
    <message>
        <source>No channel in use</source>
        <translation>No channel in use</translation>
    </message>
    <message>
        <source>Overlapping channels:</source>
        <translation>Overlapping channels:</translation>
    </message>
    <message>
        <source>Reference channel %d</source>
        <translation>Reference channel %d</translation>
    </message>
    <message>
        <source>No option switched on</source>
        <translation>No option switched on</translation>
    </message>
    <message>
        <source>Windows chart</source>
        <translation>Windows chart</translation>
    </message>
    <message>
        <source>Printed on %s</source>
        <translation>Printed on %s</translation>
    </message>
    <message>
        <source>Page %d of %d</source>
        <translation>Page %d of %d</translation>
    </message>
    <message>
        <source>No changes since the configuration was last read, opened or written.</source>
        <translation>No changes since the configuration was last read, opened or written.</translation>
    </message>
    <message>
        <source>Channel windows</source>
        <translation>Channel windows</translation>
    </message>
    <message>
        <source>sent</source>
        <translation>sent</translation>
    </message>
    <message>
        <source>refused by the validator</source>
        <translation>refused by the validator</translation>
    </message>
    <message>
        <source>Validator&apos;s own block</source>
        <translation>Validator&apos;s own block</translation>
    </message>
    <message>
        <source>%s (channels %s)</source>
        <translation>%s (channels %s)</translation>
    </message>
    <message>
        <source>%s (%s of %s parts)</source>
        <translation>%s (%s of %s parts)</translation>
    </message>
    <message>
        <source>the learned windows</source>
        <translation>the learned windows</translation>
    </message>
    <message>
        <source>its former windows</source>
        <translation>its former windows</translation>
    </message>
    <message>
        <source>windows that are not known</source>
        <translation>windows that are not known</translation>
    </message>
    <message>
        <source>the value %s</source>
        <translation>the value %s</translation>
    </message>
    <message>
        <source>no value</source>
        <translation>no value</translation>
    </message>
    <message>
        <source>its former value</source>
        <translation>its former value</translation>
    </message>
    <message>
        <source>a value that is not known</source>
        <translation>a value that is not known</translation>
    </message>
    <message>
        <source>its former enable bit</source>
        <translation>its former enable bit</translation>
    </message>
    <message>
        <source>an enable bit that is not known</source>
        <translation>an enable bit that is not known</translation>
    </message>
    <message>
        <source>An amount in steps of %s, at most %s; empty: not set</source>
        <translation>An amount in steps of %s, at most %s; empty: not set</translation>
    </message>
    <message>
        <source>An amount in steps of %s, at most %s; -P1- or -P2- pays price 1 or 2; empty: no value</source>
        <translation>An amount in steps of %s, at most %s; -P1- or -P2- pays price 1 or 2; empty: no value</translation>
    </message>
    <message>
        <source>No base value is set: give the base value first</source>
        <translation>No base value is set: give the base value first</translation>
    </message>
    <message>
        <source>A number from 0 to 254; empty: not set</source>
        <translation>A number from 0 to 254; empty: not set</translation>
    </message>
    <message>
        <source>In tens, from 0 to 2540 (a last digit is dropped); empty: not set</source>
        <translation>In tens, from 0 to 2540 (a last digit is dropped); empty: not set</translation>
    </message>
    <message>
        <source>Milliseconds in steps of 10, at most 630; empty: not set</source>
        <translation>Milliseconds in steps of 10, at most 630; empty: not set</translation>
    </message>
    <message>
        <source>Since read from validator %s at %s</source>
        <translation>Since read from validator %s at %s</translation>
    </message>
    <message>
        <source>Since written to validator %s at %s</source>
        <translation>Since written to validator %s at %s</translation>
    </message>
    <message>
        <source>Since opened from %s (the validator was not read)</source>
        <translation>Since opened from %s (the validator was not read)</translation>
    </message>
    <message>
        <source>Since opened from file %s (the validator was not read)</source>
        <translation>Since opened from file %s (the validator was not read)</translation>
    </message>
    <message>
        <source>Since the editor opened (the validator was not read)</source>
        <translation>Since the editor opened (the validator was not read)</translation>
    </message>
    <message>
        <source>Write again</source>
        <translation>Write again</translation>
    </message>
    <message>
        <source>Put back as it was</source>
        <translation>Put back as it was</translation>
    </message>
    <message>
        <source>Go on</source>
        <translation>Go on</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>Write changes</source>
        <translation>Write changes</translation>
    </message>
    <message>
        <source>Batch...</source>
        <translation>Batch...</translation>
    </message>
    <message>
        <source>Batch</source>
        <translation>Batch</translation>
    </message>
    <message>
        <source>Source</source>
        <translation>Source</translation>
    </message>
    <message>
        <source>The editor&apos;s configuration</source>
        <translation>The editor&apos;s configuration</translation>
    </message>
    <message>
        <source>A configuration file</source>
        <translation>A configuration file</translation>
    </message>
    <message>
        <source>A saved validator</source>
        <translation>A saved validator</translation>
    </message>
    <message>
        <source>Browse...</source>
        <translation>Browse...</translation>
    </message>
    <message>
        <source>What to write</source>
        <translation>What to write</translation>
    </message>
    <message>
        <source>Full write (every block, as Write)</source>
        <translation>Full write (every block, as Write)</translation>
    </message>
    <message>
        <source>How many (0: until Stop) :</source>
        <translation>How many (0: until Stop) :</translation>
    </message>
    <message>
        <source>Write a validator again when it comes back</source>
        <translation>Write a validator again when it comes back</translation>
    </message>
    <message>
        <source>A sound for each result</source>
        <translation>A sound for each result</translation>
    </message>
    <message>
        <source>A configuration sheet for each (PDF, beside the log)</source>
        <translation>A configuration sheet for each (PDF, beside the log)</translation>
    </message>
    <message>
        <source>Verified: %d</source>
        <translation>Verified: %d</translation>
    </message>
    <message>
        <source>Failed: %d</source>
        <translation>Failed: %d</translation>
    </message>
    <message>
        <source>Skipped: %d</source>
        <translation>Skipped: %d</translation>
    </message>
    <message>
        <source>Log: %s</source>
        <translation>Log: %s</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Time</translation>
    </message>
    <message>
        <source>Serial number</source>
        <translation>Serial number</translation>
    </message>
    <message>
        <source>Family</source>
        <translation>Family</translation>
    </message>
    <message>
        <source>Result</source>
        <translation>Result</translation>
    </message>
    <message>
        <source>Seconds</source>
        <translation>Seconds</translation>
    </message>
    <message>
        <source>Detail</source>
        <translation>Detail</translation>
    </message>
    <message>
        <source>Verified</source>
        <translation>Verified</translation>
    </message>
    <message>
        <source>Differs</source>
        <translation>Differs</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Failed</translation>
    </message>
    <message>
        <source>Already done</source>
        <translation>Already done</translation>
    </message>
    <message>
        <source>Other family</source>
        <translation>Other family</translation>
    </message>
    <message>
        <source>Validators done</source>
        <translation>Validators done</translation>
    </message>
    <message>
        <source>History of validator %d</source>
        <translation>History of validator %d</translation>
    </message>
    <message>
        <source>What</source>
        <translation>What</translation>
    </message>
    <message>
        <source>Program</source>
        <translation>Program</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>Restore</translation>
    </message>
    <message>
        <source>Read</source>
        <translation>Read</translation>
    </message>
    <message>
        <source>Write</source>
        <translation>Write</translation>
    </message>
    <message>
        <source>Changes write</source>
        <translation>Changes write</translation>
    </message>
    <message>
        <source>Batch write</source>
        <translation>Batch write</translation>
    </message>
    <message>
        <source>Channel learned</source>
        <translation>Channel learned</translation>
    </message>
    <message>
        <source>Calibration</source>
        <translation>Calibration</translation>
    </message>
    <message>
        <source>Read backup</source>
        <translation>Read backup</translation>
    </message>
    <message>
        <source>Saved in the tables</source>
        <translation>Saved in the tables</translation>
    </message>
    <message>
        <source>verified</source>
        <translation>verified</translation>
    </message>
    <message>
        <source>mismatch</source>
        <translation>mismatch</translation>
    </message>
    <message>
        <source>failed</source>
        <translation>failed</translation>
    </message>
    <message>
        <source>First configuration known</source>
        <translation>First configuration known</translation>
    </message>
    <message>
        <source>No change</source>
        <translation>No change</translation>
    </message>
    <message>
        <source>Configuration not known</source>
        <translation>Configuration not known</translation>
    </message>
    <message>
        <source>Changes of event %d since the one before</source>
        <translation>Changes of event %d since the one before</translation>
    </message>
    <message>
        <source>From event %d to event %d</source>
        <translation>From event %d to event %d</translation>
    </message>
    <message>
        <source>No event is kept for this validator</source>
        <translation>No event is kept for this validator</translation>
    </message>
    <message>
        <source>History...</source>
        <translation>History...</translation>
    </message>
    <message>
        <source>Data source...</source>
        <translation>Data source...</translation>
    </message>
    <message>
        <source>Data source</source>
        <translation>Data source</translation>
    </message>
    <message>
        <source>Data &amp;directory</source>
        <translation>Data &amp;directory</translation>
    </message>
    <message>
        <source>&amp;Server (PostgreSQL)</source>
        <translation>&amp;Server (PostgreSQL)</translation>
    </message>
    <message>
        <source>Directory:</source>
        <translation>Directory:</translation>
    </message>
    <message>
        <source>Address (postgresql://...):</source>
        <translation>Address (postgresql://...):</translation>
    </message>
    <message>
        <source>&amp;Test connection</source>
        <translation>&amp;Test connection</translation>
    </message>
    <message>
        <source>Connected to %s.</source>
        <translation>Connected to %s.</translation>
    </message>
</context>
<context>
    <name>Messages</name>
    <message>
        <source>Internal or Comunication Error</source>
        <translation>Internal or Comunication Error</translation>
    </message>
    <message>
        <source>Comunication Error !</source>
        <translation>Comunication Error !</translation>
    </message>
    <message>
        <source>Reading Error fron validator</source>
        <translation>Reading Error fron validator</translation>
    </message>
    <message>
        <source>Comunication Port COM%d isn&apos;t free or Setting error.</source>
        <translation>Comunication Port COM%d isn&apos;t free or Setting error.</translation>
    </message>
    <message>
        <source>This user may not open the serial port. Add the user to the dialout group (sudo usermod -aG dialout $USER), then log out and log in again.</source>
        <translation>This user may not open the serial port. Add the user to the dialout group (sudo usermod -aG dialout $USER), then log out and log in again.</translation>
    </message>
    <message>
        <source>Select port !!!</source>
        <translation>Select port !!!</translation>
    </message>
    <message>
        <source>Connect validator </source>
        <translation>Connect validator </translation>
    </message>
    <message>
        <source>Validator reading in progress....</source>
        <translation>Validator reading in progress....</translation>
    </message>
    <message>
        <source>Saving in progress.....</source>
        <translation>Saving in progress.....</translation>
    </message>
    <message>
        <source>Finished operation!</source>
        <translation>Finished operation!</translation>
    </message>
    <message>
        <source>Fault during save operation !</source>
        <translation>Fault during save operation !</translation>
    </message>
    <message>
        <source>Operation cancelled</source>
        <translation>Operation cancelled</translation>
    </message>
    <message>
        <source>Invalid code table !</source>
        <translation>Invalid code table !</translation>
    </message>
    <message>
        <source>Incorrect version of validator</source>
        <translation>Incorrect version of validator</translation>
    </message>
    <message>
        <source>Save on validator?</source>
        <translation>Save on validator?</translation>
    </message>
    <message>
        <source>By Mini-Pgm</source>
        <translation>By Mini-Pgm</translation>
    </message>
    <message>
        <source>#NA</source>
        <translation>#NA</translation>
    </message>
    <message>
        <source>Value must be between 0 and 255</source>
        <translation>Value must be between 0 and 255</translation>
    </message>
    <message>
        <source>Value over the maximum, it will be correct</source>
        <translation>Value over the maximum, it will be correct</translation>
    </message>
    <message>
        <source>Value under the minimum, it will be correct.</source>
        <translation>Value under the minimum, it will be correct.</translation>
    </message>
    <message>
        <source>&apos;%s&apos; is not a valid integer value</source>
        <translation>&apos;%s&apos; is not a valid integer value</translation>
    </message>
    <message>
        <source>Value over %d ms, it will be adjusted!</source>
        <translation>Value over %d ms, it will be adjusted!</translation>
    </message>
    <message>
        <source>Wrong way! Please the counter must be desactived if the base value is clear</source>
        <translation>Wrong way! Please the counter must be desactived if the base value is clear</translation>
    </message>
    <message>
        <source>Modifing this value will take effect on channels from 1 to 30 !</source>
        <translation>Modifing this value will take effect on channels from 1 to 30 !</translation>
    </message>
    <message>
        <source>Modifing this value will take effect on channels from 31 to 60 !</source>
        <translation>Modifing this value will take effect on channels from 31 to 60 !</translation>
    </message>
    <message>
        <source>The value of channels %d and %d is incompatible for the function multi-pulse (max %d pulses)</source>
        <translation>The value of channels %d and %d is incompatible for the function multi-pulse (max %d pulses)</translation>
    </message>
    <message>
        <source>Impossible displacement, the channel of origin and the one of destination coincides</source>
        <translation>Impossible displacement, the channel of origin and the one of destination coincides</translation>
    </message>
    <message>
        <source>Identification field must be filled</source>
        <translation>Identification field must be filled</translation>
    </message>
    <message>
        <source>%s exist! Overwrite ?</source>
        <translation>%s exist! Overwrite ?</translation>
    </message>
    <message>
        <source>File %s saved</source>
        <translation>File %s saved</translation>
    </message>
    <message>
        <source>The validity of data of this validator is not guaranteed by BRUNFELDGroup!</source>
        <translation>The validity of data of this validator is not guaranteed by BRUNFELDGroup!</translation>
    </message>
    <message>
        <source>Select number of channel !</source>
        <translation>Select number of channel !</translation>
    </message>
    <message>
        <source>Number of coins is less than %d. Proceed?</source>
        <translation>Number of coins is less than %d. Proceed?</translation>
    </message>
    <message>
        <source>Modify another channel ?</source>
        <translation>Modify another channel ?</translation>
    </message>
    <message>
        <source>Calibrate another channel ?</source>
        <translation>Calibrate another channel ?</translation>
    </message>
    <message>
        <source>Values directly saved into validator</source>
        <translation>Values directly saved into validator</translation>
    </message>
    <message>
        <source>The value matchs the channel %d. Load it ?</source>
        <translation>The value matchs the channel %d. Load it ?</translation>
    </message>
    <message>
        <source>No matched data !</source>
        <translation>No matched data !</translation>
    </message>
    <message>
        <source>Door open, no data will be transfered ;</source>
        <translation>Door open, no data will be transfered ;</translation>
    </message>
    <message>
        <source>Prepare the golden tokens.</source>
        <translation>Prepare the golden tokens.</translation>
    </message>
    <message>
        <source>Prepare the silver tokens.</source>
        <translation>Prepare the silver tokens.</translation>
    </message>
    <message>
        <source>Insert the golden tokens. (5 pieces)</source>
        <translation>Insert the golden tokens. (5 pieces)</translation>
    </message>
    <message>
        <source>Insert the silver tokens. (5 pieces)</source>
        <translation>Insert the silver tokens. (5 pieces)</translation>
    </message>
    <message>
        <source>Reference Channel saved !</source>
        <translation>Reference Channel saved !</translation>
    </message>
    <message>
        <source>Programming Error !</source>
        <translation>Programming Error !</translation>
    </message>
    <message>
        <source>Channel %d is empty! No data to control.</source>
        <translation>Channel %d is empty! No data to control.</translation>
    </message>
    <message>
        <source>No overlapping !</source>
        <translation>No overlapping !</translation>
    </message>
    <message>
        <source>Table of values transferred in the validator!</source>
        <translation>Table of values transferred in the validator!</translation>
    </message>
    <message>
        <source>All data transfered !</source>
        <translation>All data transfered !</translation>
    </message>
    <message>
        <source>This option will be activated to the next starting of the program</source>
        <translation>This option will be activated to the next starting of the program</translation>
    </message>
    <message>
        <source>Upgrade over...</source>
        <translation>Upgrade over...</translation>
    </message>
    <message>
        <source>Operation cancelled by operator</source>
        <translation>Operation cancelled by operator</translation>
    </message>
    <message>
        <source>Updating... Please Wait !</source>
        <translation>Updating... Please Wait !</translation>
    </message>
    <message>
        <source>Don&apos;t Stop or disconnect !!!</source>
        <translation>Don&apos;t Stop or disconnect !!!</translation>
    </message>
    <message>
        <source>Please connect the mini-programer.</source>
        <translation>Please connect the mini-programer.</translation>
    </message>
    <message>
        <source>The user guide %s is not installed.</source>
        <translation>The user guide %s is not installed.</translation>
    </message>
    <message>
        <source>Channel %d of the validator differs from the one of this configuration: the windows may not suit this validator. Continue?</source>
        <translation>Channel %d of the validator differs from the one of this configuration: the windows may not suit this validator. Continue?</translation>
    </message>
    <message>
        <source>%s is missing</source>
        <translation>%s is missing</translation>
    </message>
    <message>
        <source>%s cannot be opened: %s</source>
        <translation>%s cannot be opened: %s</translation>
    </message>
    <message>
        <source>%s cannot be written: %s</source>
        <translation>%s cannot be written: %s</translation>
    </message>
    <message>
        <source>%s is not a dBase table of level 3, 4, 5 or 7</source>
        <translation>%s is not a dBase table of level 3, 4, 5 or 7</translation>
    </message>
    <message>
        <source>%s has a damaged header: its header length, record length and field widths do not add up</source>
        <translation>%s has a damaged header: its header length, record length and field widths do not add up</translation>
    </message>
    <message>
        <source>%s has a damaged header: field %s is not valid</source>
        <translation>%s has a damaged header: field %s is not valid</translation>
    </message>
    <message>
        <source>%s is truncated: it holds %s of its %s records</source>
        <translation>%s is truncated: it holds %s of its %s records</translation>
    </message>
    <message>
        <source>%s has no field %s</source>
        <translation>%s has no field %s</translation>
    </message>
    <message>
        <source>%s: field %s is of type %s where %s is expected</source>
        <translation>%s: field %s is of type %s where %s is expected</translation>
    </message>
    <message>
        <source>%s cannot be changed: the file or its directory is read-only</source>
        <translation>%s cannot be changed: the file or its directory is read-only</translation>
    </message>
    <message>
        <source>%s cannot be changed: its index tag %s (%s) is not one this program can keep up to date</source>
        <translation>%s cannot be changed: its index tag %s (%s) is not one this program can keep up to date</translation>
    </message>
    <message>
        <source>%s cannot be changed: its language driver %s sorts keys in an order this program cannot keep</source>
        <translation>%s cannot be changed: its language driver %s sorts keys in an order this program cannot keep</translation>
    </message>
    <message>
        <source>The value %s does not fit field %s of %s</source>
        <translation>The value %s does not fit field %s of %s</translation>
    </message>
    <message>
        <source>The index %s was not usable (%s) and has been rebuilt from %s</source>
        <translation>The index %s was not usable (%s) and has been rebuilt from %s</translation>
    </message>
    <message>
        <source>The index %s is not usable (%s) and cannot be rebuilt now</source>
        <translation>The index %s is not usable (%s) and cannot be rebuilt now</translation>
    </message>
    <message>
        <source>it is missing</source>
        <translation>it is missing</translation>
    </message>
    <message>
        <source>its header is damaged</source>
        <translation>its header is damaged</translation>
    </message>
    <message>
        <source>its pages are damaged</source>
        <translation>its pages are damaged</translation>
    </message>
    <message>
        <source>its keys are out of order</source>
        <translation>its keys are out of order</translation>
    </message>
    <message>
        <source>its entries do not match the records</source>
        <translation>its entries do not match the records</translation>
    </message>
    <message>
        <source>tag %s is missing or does not match its field</source>
        <translation>tag %s is missing or does not match its field</translation>
    </message>
    <message>
        <source>its language driver differs from the table&apos;s</source>
        <translation>its language driver differs from the table&apos;s</translation>
    </message>
    <message>
        <source>The data directory %s has been created with empty tables</source>
        <translation>The data directory %s has been created with empty tables</translation>
    </message>
    <message>
        <source>Empty tables have been created in %s: %s</source>
        <translation>Empty tables have been created in %s: %s</translation>
    </message>
    <message>
        <source>No validator %s is stored</source>
        <translation>No validator %s is stored</translation>
    </message>
    <message>
        <source>The settings could not be read; the defaults are used until a setting is changed.</source>
        <translation>The settings could not be read; the defaults are used until a setting is changed.</translation>
    </message>
    <message>
        <source>The file %s could not be read.</source>
        <translation>The file %s could not be read.</translation>
    </message>
    <message>
        <source>The sheet could not be written to %s: %s. Nothing else was changed.</source>
        <translation>The sheet could not be written to %s: %s. Nothing else was changed.</translation>
    </message>
    <message>
        <source>The sheet could not be printed.</source>
        <translation>The sheet could not be printed.</translation>
    </message>
    <message>
        <source>%s was changed by another program; open it again before changing it</source>
        <translation>%s was changed by another program; open it again before changing it</translation>
    </message>
    <message>
        <source>%s: waited %s s for %s holding the lock; nothing written</source>
        <translation>%s: waited %s s for %s holding the lock; nothing written</translation>
    </message>
    <message>
        <source>another program</source>
        <translation>another program</translation>
    </message>
    <message>
        <source>%s has been changed by another program since it was shown. Delete it anyway ?</source>
        <translation>%s has been changed by another program since it was shown. Delete it anyway ?</translation>
    </message>
    <message>
        <source>The data directory %s cannot be created</source>
        <translation>The data directory %s cannot be created</translation>
    </message>
    <message>
        <source>The backup of this read could not be written: %s</source>
        <translation>The backup of this read could not be written: %s</translation>
    </message>
    <message>
        <source>The tables of the data directory are not open.</source>
        <translation>The tables of the data directory are not open.</translation>
    </message>
    <message>
        <source>The file holds a %s validator but a %s validator is connected: nothing was written.</source>
        <translation>The file holds a %s validator but a %s validator is connected: nothing was written.</translation>
    </message>
    <message>
        <source>%d Overlapping</source>
        <translation>%d Overlapping</translation>
    </message>
    <message>
        <source>%d superposition(s)</source>
        <translation>%d superposition(s)</translation>
    </message>
    <message>
        <source>%s has no row for channels %s: they open empty.</source>
        <translation>%s has no row for channels %s: they open empty.</translation>
    </message>
    <message>
        <source>%s has more than one row for channels %s: the first row of each is used.</source>
        <translation>%s has more than one row for channels %s: the first row of each is used.</translation>
    </message>
    <message>
        <source>Delete %s and its channels from the tables?</source>
        <translation>Delete %s and its channels from the tables?</translation>
    </message>
    <message>
        <source>No value table %s is stored</source>
        <translation>No value table %s is stored</translation>
    </message>
    <message>
        <source>Delete record?</source>
        <translation>Delete record?</translation>
    </message>
    <message>
        <source>%s is truncated inside its header: none of its records can be read</source>
        <translation>%s is truncated inside its header: none of its records can be read</translation>
    </message>
    <message>
        <source>%s. It is opened read-only with the records that can be read; repair the tables to change it.</source>
        <translation>%s. It is opened read-only with the records that can be read; repair the tables to change it.</translation>
    </message>
    <message>
        <source>%s is damaged and cannot be changed until the tables are repaired</source>
        <translation>%s is damaged and cannot be changed until the tables are repaired</translation>
    </message>
    <message>
        <source>%s. Nothing of it can be read; the file is left as it is.</source>
        <translation>%s. Nothing of it can be read; the file is left as it is.</translation>
    </message>
    <message>
        <source>%s is not open: nothing can be read from it or stored in it</source>
        <translation>%s is not open: nothing can be read from it or stored in it</translation>
    </message>
    <message>
        <source>%s is sound and was left untouched</source>
        <translation>%s is sound and was left untouched</translation>
    </message>
    <message>
        <source>%s repaired: %s records kept, %s could not be read; the damaged files are kept in %s</source>
        <translation>%s repaired: %s records kept, %s could not be read; the damaged files are kept in %s</translation>
    </message>
    <message>
        <source>%s: its index was rebuilt from the table; the old files are kept in %s</source>
        <translation>%s: its index was rebuilt from the table; the old files are kept in %s</translation>
    </message>
    <message>
        <source>%s could not be repaired: %s</source>
        <translation>%s could not be repaired: %s</translation>
    </message>
    <message>
        <source>The index %s is not usable (%s)</source>
        <translation>The index %s is not usable (%s)</translation>
    </message>
    <message>
        <source>Verifying...</source>
        <translation>Verifying...</translation>
    </message>
    <message>
        <source>Verified: the validator holds the configuration.</source>
        <translation>Verified: the validator holds the configuration.</translation>
    </message>
    <message>
        <source>The validator does not hold what was written:</source>
        <translation>The validator does not hold what was written:</translation>
    </message>
    <message>
        <source>Verification failed: the validator could not be read back.</source>
        <translation>Verification failed: the validator could not be read back.</translation>
    </message>
    <message>
        <source>... and %d more.</source>
        <translation>... and %d more.</translation>
    </message>
    <message>
        <source>No space left on the disk: nothing was written</source>
        <translation>No space left on the disk: nothing was written</translation>
    </message>
    <message>
        <source>The disk quota is used up: nothing was written</source>
        <translation>The disk quota is used up: nothing was written</translation>
    </message>
    <message>
        <source>The disk is read-only: nothing was written</source>
        <translation>The disk is read-only: nothing was written</translation>
    </message>
    <message>
        <source>Writing in this folder is not allowed: nothing was written</source>
        <translation>Writing in this folder is not allowed: nothing was written</translation>
    </message>
    <message>
        <source>The folder does not exist: nothing was written</source>
        <translation>The folder does not exist: nothing was written</translation>
    </message>
    <message>
        <source>The disk reported an error (%s): nothing was written</source>
        <translation>The disk reported an error (%s): nothing was written</translation>
    </message>
    <message>
        <source>&quot;%s&quot; cannot be stored in %s: its code page has no %s. Nothing was written.</source>
        <translation>&quot;%s&quot; cannot be stored in %s: its code page has no %s. Nothing was written.</translation>
    </message>
    <message>
        <source>&quot;%s&quot; is too long for %s: it holds at most %s characters. Nothing was written.</source>
        <translation>&quot;%s&quot; is too long for %s: it holds at most %s characters. Nothing was written.</translation>
    </message>
    <message>
        <source>%s counts %s records in its header, but its index and its length prove %s</source>
        <translation>%s counts %s records in its header, but its index and its length prove %s</translation>
    </message>
    <message>
        <source>the rebuilt table could not be read back as written</source>
        <translation>the rebuilt table could not be read back as written</translation>
    </message>
    <message>
        <source>The settings file %s could not be read; it has been kept as %s. The defaults are used, with the tables in %s.</source>
        <translation>The settings file %s could not be read; it has been kept as %s. The defaults are used, with the tables in %s.</translation>
    </message>
    <message>
        <source>The settings file %s could not be read. The defaults are used, with the tables in %s.</source>
        <translation>The settings file %s could not be read. The defaults are used, with the tables in %s.</translation>
    </message>
    <message>
        <source>No coin profile %s is stored</source>
        <translation>No coin profile %s is stored</translation>
    </message>
    <message>
        <source>An amount cannot be negative: %s was not stored.</source>
        <translation>An amount cannot be negative: %s was not stored.</translation>
    </message>
    <message>
        <source>The validator now holds a partly written configuration (written: %s); nothing already written was undone. Write it again before use.</source>
        <translation>The validator now holds a partly written configuration (written: %s); nothing already written was undone. Write it again before use.</translation>
    </message>
    <message>
        <source>Nothing was written: the validator holds what it held before.</source>
        <translation>Nothing was written: the validator holds what it held before.</translation>
    </message>
    <message>
        <source>The validator refused: %s.</source>
        <translation>The validator refused: %s.</translation>
    </message>
    <message>
        <source>No answer came after sending %s: the validator may or may not hold it.</source>
        <translation>No answer came after sending %s: the validator may or may not hold it.</translation>
    </message>
    <message>
        <source>Channel %d was not saved into the validator.</source>
        <translation>Channel %d was not saved into the validator.</translation>
    </message>
    <message>
        <source>Channel %d of the validator now holds %s.</source>
        <translation>Channel %d of the validator now holds %s.</translation>
    </message>
    <message>
        <source>%s is empty: it is not a firmware file. Nothing was sent.</source>
        <translation>%s is empty: it is not a firmware file. Nothing was sent.</translation>
    </message>
    <message>
        <source>%s is not a Motorola S-record firmware file: line %d %s. Nothing was sent.</source>
        <translation>%s is not a Motorola S-record firmware file: line %d %s. Nothing was sent.</translation>
    </message>
    <message>
        <source>does not begin with S0 to S9</source>
        <translation>does not begin with S0 to S9</translation>
    </message>
    <message>
        <source>holds a character that is not a hexadecimal digit</source>
        <translation>holds a character that is not a hexadecimal digit</translation>
    </message>
    <message>
        <source>has a byte count that does not match its length</source>
        <translation>has a byte count that does not match its length</translation>
    </message>
    <message>
        <source>has a wrong checksum</source>
        <translation>has a wrong checksum</translation>
    </message>
    <message>
        <source>The mini-programmer must be in its upgrade mode before the file is sent. Send %s now?</source>
        <translation>The mini-programmer must be in its upgrade mode before the file is sent. Send %s now?</translation>
    </message>
    <message>
        <source>%s holds %d bytes: sent byte by byte at 9600 baud, it takes hours. Send it all the same?</source>
        <translation>%s holds %d bytes: sent byte by byte at 9600 baud, it takes hours. Send it all the same?</translation>
    </message>
    <message>
        <source>The port was lost during the transfer: %d of %d bytes left the port: the upgrade is not complete.</source>
        <translation>The port was lost during the transfer: %d of %d bytes left the port: the upgrade is not complete.</translation>
    </message>
    <message>
        <source>%s is locked by %s: waiting at most %s s</source>
        <translation>%s is locked by %s: waiting at most %s s</translation>
    </message>
    <message>
        <source>%s: waited %s s for %s holding the lock; nothing read</source>
        <translation>%s: waited %s s for %s holding the lock; nothing read</translation>
    </message>
    <message>
        <source>%s is not a file (a folder, a pipe or a device): it is not opened</source>
        <translation>%s is not a file (a folder, a pipe or a device): it is not opened</translation>
    </message>
    <message>
        <source>The data directory %s cannot be read: %s</source>
        <translation>The data directory %s cannot be read: %s</translation>
    </message>
    <message>
        <source>%s holds %s channel rows of no stored validator: %s</source>
        <translation>%s holds %s channel rows of no stored validator: %s</translation>
    </message>
    <message>
        <source>%s holds validators without channel rows: %s; they are kept and open with every channel empty</source>
        <translation>%s holds validators without channel rows: %s; they are kept and open with every channel empty</translation>
    </message>
    <message>
        <source>%s: %s channel rows of no stored validator removed (copies in %s)</source>
        <translation>%s: %s channel rows of no stored validator removed (copies in %s)</translation>
    </message>
    <message>
        <source>Coin ignored: choose a channel first</source>
        <translation>Coin ignored: choose a channel first</translation>
    </message>
    <message>
        <source>Matched: %s</source>
        <translation>Matched: %s</translation>
    </message>
    <message>
        <source>Overlap with %s</source>
        <translation>Overlap with %s</translation>
    </message>
    <message>
        <source>The validator&apos;s own configuration could not be read before cloning: nothing was cloned.</source>
        <translation>The validator&apos;s own configuration could not be read before cloning: nothing was cloned.</translation>
    </message>
    <message>
        <source>The validator&apos;s own configuration could not be kept before cloning: %s. Clone all the same?</source>
        <translation>The validator&apos;s own configuration could not be kept before cloning: %s. Clone all the same?</translation>
    </message>
    <message>
        <source>The validator&apos;s own configuration was kept in %s.</source>
        <translation>The validator&apos;s own configuration was kept in %s.</translation>
    </message>
    <message>
        <source>Windows corrected for this validator&apos;s sensors: %s.</source>
        <translation>Windows corrected for this validator&apos;s sensors: %s.</translation>
    </message>
    <message>
        <source>Windows copied as they are: the source or this validator has no reference channel to correct them by.</source>
        <translation>Windows copied as they are: the source or this validator has no reference channel to correct them by.</translation>
    </message>
    <message>
        <source>Verifying... do not unplug the validator</source>
        <translation>Verifying... do not unplug the validator</translation>
    </message>
    <message>
        <source>The validator does not have %d changes this editor holds (see Changes). Store in the tables all the same?</source>
        <translation>The validator does not have %d changes this editor holds (see Changes). Store in the tables all the same?</translation>
    </message>
    <message>
        <source>The validator does not have %d changes this editor holds (see Changes); opening replaces them in the editor. Open all the same?</source>
        <translation>The validator does not have %d changes this editor holds (see Changes); opening replaces them in the editor. Open all the same?</translation>
    </message>
    <message>
        <source>What the validator holds is the configuration of a %s validator with %s channels, the one to write is of a %s validator with %s channels: nothing was written.</source>
        <translation>What the validator holds is the configuration of a %s validator with %s channels, the one to write is of a %s validator with %s channels: nothing was written.</translation>
    </message>
    <message>
        <source>This validator (serial %s) is not the one read (serial %s): nothing was written.</source>
        <translation>This validator (serial %s) is not the one read (serial %s): nothing was written.</translation>
    </message>
    <message>
        <source>This validator (serial %s) has %s firmware, the one read (serial %s) had %s: nothing was written.</source>
        <translation>This validator (serial %s) has %s firmware, the one read (serial %s) had %s: nothing was written.</translation>
    </message>
    <message>
        <source>Validator %s was programmed (%s) after what it holds was read: it was written elsewhere since. Read it again; nothing was written.</source>
        <translation>Validator %s was programmed (%s) after what it holds was read: it was written elsewhere since. Read it again; nothing was written.</translation>
    </message>
    <message>
        <source>The validator already holds this configuration: nothing was written.</source>
        <translation>The validator already holds this configuration: nothing was written.</translation>
    </message>
    <message>
        <source>What validator %s holds is not known (it was not read here): only the whole configuration can be written.</source>
        <translation>What validator %s holds is not known (it was not read here): only the whole configuration can be written.</translation>
    </message>
    <message>
        <source>Plug the next validator</source>
        <translation>Plug the next validator</translation>
    </message>
    <message>
        <source>Validator found: reading its identification...</source>
        <translation>Validator found: reading its identification...</translation>
    </message>
    <message>
        <source>Writing %s...</source>
        <translation>Writing %s...</translation>
    </message>
    <message>
        <source>Verifying %s...</source>
        <translation>Verifying %s...</translation>
    </message>
    <message>
        <source>%s verified: unplug it</source>
        <translation>%s verified: unplug it</translation>
    </message>
    <message>
        <source>%s does not hold what was written: unplug it</source>
        <translation>%s does not hold what was written: unplug it</translation>
    </message>
    <message>
        <source>%s failed: unplug it</source>
        <translation>%s failed: unplug it</translation>
    </message>
    <message>
        <source>%s was already done: unplug it</source>
        <translation>%s was already done: unplug it</translation>
    </message>
    <message>
        <source>%s is of another family: unplug it</source>
        <translation>%s is of another family: unplug it</translation>
    </message>
    <message>
        <source>Batch finished: %d verified, %d failed, %d skipped.</source>
        <translation>Batch finished: %d verified, %d failed, %d skipped.</translation>
    </message>
    <message>
        <source>No validator was plugged for %d s: the batch stopped.</source>
        <translation>No validator was plugged for %d s: the batch stopped.</translation>
    </message>
    <message>
        <source>The batch log could not be written (%s): the batch stopped.</source>
        <translation>The batch log could not be written (%s): the batch stopped.</translation>
    </message>
    <message>
        <source>Already verified in this batch at %s: not written again.</source>
        <translation>Already verified in this batch at %s: not written again.</translation>
    </message>
    <message>
        <source>A %s validator, the configuration is for %s: nothing was written.</source>
        <translation>A %s validator, the configuration is for %s: nothing was written.</translation>
    </message>
    <message>
        <source>Its own configuration could not be read: nothing was written.</source>
        <translation>Its own configuration could not be read: nothing was written.</translation>
    </message>
    <message>
        <source>Its own configuration could not be kept (%s): nothing was written.</source>
        <translation>Its own configuration could not be kept (%s): nothing was written.</translation>
    </message>
    <message>
        <source>It no longer answered before the write: nothing was written.</source>
        <translation>It no longer answered before the write: nothing was written.</translation>
    </message>
    <message>
        <source>Written, but it could not be read back to verify it.</source>
        <translation>Written, but it could not be read back to verify it.</translation>
    </message>
    <message>
        <source>No validator is stored as %s.</source>
        <translation>No validator is stored as %s.</translation>
    </message>
    <message>
        <source>Choose at least one group to write, or the full write.</source>
        <translation>Choose at least one group to write, or the full write.</translation>
    </message>
    <message>
        <source>How many validators: a number from 0 to 9999.</source>
        <translation>How many validators: a number from 0 to 9999.</translation>
    </message>
    <message>
        <source>Choose the configuration to write.</source>
        <translation>Choose the configuration to write.</translation>
    </message>
    <message>
        <source>The configuration sheet could not be written: %s</source>
        <translation>The configuration sheet could not be written: %s</translation>
    </message>
    <message>
        <source>The history could not be kept: %s</source>
        <translation>The history could not be kept: %s</translation>
    </message>
    <message>
        <source>No history is known for the serial number %s</source>
        <translation>No history is known for the serial number %s</translation>
    </message>
    <message>
        <source>This event holds no configuration to put back</source>
        <translation>This event holds no configuration to put back</translation>
    </message>
    <message>
        <source>Put the validator back as it was on %s? This changes:
%s</source>
        <translation>Put the validator back as it was on %s? This changes:
%s</translation>
    </message>
    <message>
        <source>The validator already holds the configuration of %s</source>
        <translation>The validator already holds the configuration of %s</translation>
    </message>
    <message>
        <source>The history could not be read: %s</source>
        <translation>The history could not be read: %s</translation>
    </message>
    <message>
        <source>The validator connected has the serial number %s, not %s: nothing was written</source>
        <translation>The validator connected has the serial number %s, not %s: nothing was written</translation>
    </message>
    <message>
        <source>No history notes the validator saved as %s: its history is known once it is saved after a read or a write</source>
        <translation>No history notes the validator saved as %s: its history is known once it is saved after a read or a write</translation>
    </message>
    <message>
        <source>The server %s cannot be reached: nothing was stored.</source>
        <translation>The server %s cannot be reached: nothing was stored.</translation>
    </message>
    <message>
        <source>The server %s cannot be reached.</source>
        <translation>The server %s cannot be reached.</translation>
    </message>
    <message>
        <source>The tables on the server %s were made by a later version (%d); this program knows version %d and changes nothing.</source>
        <translation>The tables on the server %s were made by a later version (%d); this program knows version %d and changes nothing.</translation>
    </message>
    <message>
        <source>The password is not kept in the settings: put it in ~/.pgpass or PGPASSWORD.</source>
        <translation>The password is not kept in the settings: put it in ~/.pgpass or PGPASSWORD.</translation>
    </message>
</context>
<context>
    <name>SimulatorPanel</name>
    <message>
        <source>Virtual validator</source>
        <translation>Virtual validator</translation>
    </message>
    <message>
        <source>Validator</source>
        <translation>Validator</translation>
    </message>
    <message>
        <source>Family :</source>
        <translation>Family :</translation>
    </message>
    <message>
        <source>Serial number :</source>
        <translation>Serial number :</translation>
    </message>
    <message>
        <source>Fit a new validator</source>
        <translation>Fit a new validator</translation>
    </message>
    <message>
        <source>Coins</source>
        <translation>Coins</translation>
    </message>
    <message>
        <source>Insert</source>
        <translation>Insert</translation>
    </message>
    <message>
        <source>Door open</source>
        <translation>Door open</translation>
    </message>
    <message>
        <source>Cable plugged in</source>
        <translation>Cable plugged in</translation>
    </message>
    <message>
        <source>Mini-programmer (firmware upgrade)</source>
        <translation>Mini-programmer (firmware upgrade)</translation>
    </message>
    <message>
        <source>Coins waiting : %1</source>
        <translation>Coins waiting : %1</translation>
    </message>
    <message>
        <source>Ask for firmware (code 11)</source>
        <translation>Ask for firmware (code 11)</translation>
    </message>
    <message>
        <source>Test mode</source>
        <translation>Test mode</translation>
    </message>
    <message>
        <source>Golden token</source>
        <translation>Golden token</translation>
    </message>
    <message>
        <source>Silver token</source>
        <translation>Silver token</translation>
    </message>
    <message>
        <source>Line</source>
        <translation>Line</translation>
    </message>
    <message>
        <source>9600 baud pacing</source>
        <translation>9600 baud pacing</translation>
    </message>
    <message>
        <source>Count echo after (ms) :</source>
        <translation>Count echo after (ms) :</translation>
    </message>
    <message>
        <source>Reply after (ms) :</source>
        <translation>Reply after (ms) :</translation>
    </message>
    <message>
        <source>Adapter bursts every (ms) :</source>
        <translation>Adapter bursts every (ms) :</translation>
    </message>
    <message>
        <source>Pause in replies after byte, for (ms) :</source>
        <translation>Pause in replies after byte, for (ms) :</translation>
    </message>
    <message>
        <source>Random seed :</source>
        <translation>Random seed :</translation>
    </message>
    <message>
        <source>Count echo after at most (ms)</source>
        <translation>Count echo after at most (ms)</translation>
    </message>
    <message>
        <source>Reply after at most (ms)</source>
        <translation>Reply after at most (ms)</translation>
    </message>
    <message>
        <source>Pause in replies (ms)</source>
        <translation>Pause in replies (ms)</translation>
    </message>
    <message>
        <source>Unplug</source>
        <translation>Unplug</translation>
    </message>
    <message>
        <source>Plug in this serial</source>
        <translation>Plug in this serial</translation>
    </message>
</context>
<context>
    <name>TCloningChk</name>
    <message>
        <source>Cloning</source>
        <translation>Cloning</translation>
    </message>
    <message>
        <source>Please! Be sure that validator is connected.</source>
        <translation>Please! Be sure that validator is connected.</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Options</translation>
    </message>
    <message>
        <source>Channels data</source>
        <translation>Channels data</translation>
    </message>
    <message>
        <source>Values table :</source>
        <translation>Values table :</translation>
    </message>
    <message>
        <source>Prices table :</source>
        <translation>Prices table :</translation>
    </message>
    <message>
        <source>Configuration :</source>
        <translation>Configuration :</translation>
    </message>
    <message>
        <source>Enable table :</source>
        <translation>Enable table :</translation>
    </message>
    <message>
        <source>&amp;OK</source>
        <translation>&amp;OK</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Cancel</translation>
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
        <translation>Port selection</translation>
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
        <translation>&amp;Exit</translation>
    </message>
</context>
<context>
    <name>TConnectForm</name>
    <message>
        <source>Mini-programmer</source>
        <translation>Mini-programmer</translation>
    </message>
</context>
<context>
    <name>TFormAvertissementDif</name>
    <message>
        <source>Warning</source>
        <translation>Warning</translation>
    </message>
    <message>
        <source>&amp;Continue</source>
        <translation>&amp;Continue</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Cancel</translation>
    </message>
</context>
<context>
    <name>TFormCAdjust</name>
    <message>
        <source>Channel to adjust</source>
        <translation>Channel to adjust</translation>
    </message>
    <message>
        <source>&amp;Channel :</source>
        <translation>&amp;Channel :</translation>
    </message>
    <message>
        <source>0 = searching for nearest</source>
        <translation>0 = searching for nearest</translation>
    </message>
    <message>
        <source>&amp;Automatic adjustment :</source>
        <translation>&amp;Automatic adjustment :</translation>
    </message>
    <message>
        <source>&amp;OK</source>
        <translation>&amp;OK</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Cancel</translation>
    </message>
</context>
<context>
    <name>TFormCondotto</name>
    <message>
        <source>Output</source>
        <translation>Output</translation>
    </message>
    <message>
        <source>Game</source>
        <translation>Game</translation>
    </message>
    <message>
        <source>Vending</source>
        <translation>Vending</translation>
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
        <translation>&amp;Parameters</translation>
    </message>
    <message>
        <source>&amp;Sound</source>
        <translation>&amp;Sound</translation>
    </message>
    <message>
        <source>&amp;Auto adjust</source>
        <translation>&amp;Auto adjust</translation>
    </message>
    <message>
        <source>&amp;Direct write</source>
        <translation>&amp;Direct write</translation>
    </message>
    <message>
        <source>&amp;Langage</source>
        <translation>&amp;Langage</translation>
    </message>
    <message>
        <source>&amp;Local</source>
        <translation>&amp;Local</translation>
    </message>
    <message>
        <source>Firmware upgrade...</source>
        <translation>Firmware upgrade...</translation>
    </message>
    <message>
        <source>&amp;Back</source>
        <translation>&amp;Back</translation>
    </message>
    <message>
        <source>&amp;Exit</source>
        <translation>&amp;Exit</translation>
    </message>
    <message>
        <source>&amp;Verify after write</source>
        <translation>&amp;Verify after write</translation>
    </message>
    <message>
        <source>Reads the validator back after each write and lists what it does not hold</source>
        <translation>Reads the validator back after each write and lists what it does not hold</translation>
    </message>
    <message>
        <source>Port &amp;time-out...</source>
        <translation>Port &amp;time-out...</translation>
    </message>
    <message>
        <source>How long to wait for the validator&apos;s first byte: raise it for Bluetooth or radio serial adapters</source>
        <translation>How long to wait for the validator&apos;s first byte: raise it for Bluetooth or radio serial adapters</translation>
    </message>
    <message>
        <source>Port time-out</source>
        <translation>Port time-out</translation>
    </message>
    <message>
        <source>Wait for a count echo or a reply&apos;s first byte, in milliseconds (%1 by default):</source>
        <translation>Wait for a count echo or a reply&apos;s first byte, in milliseconds (%1 by default):</translation>
    </message>
    <message>
        <source>&amp;Back up before cloning</source>
        <translation>&amp;Back up before cloning</translation>
    </message>
    <message>
        <source>Reads the validator a clone writes to and keeps its own configuration among the backups first</source>
        <translation>Reads the validator a clone writes to and keeps its own configuration among the backups first</translation>
    </message>
    <message>
        <source>Only for calibration: leaving a window, value, substitute or enable box of a channel writes that channel&apos;s change to the validator at once and checks it</source>
        <translation>Only for calibration: leaving a window, value, substitute or enable box of a channel writes that channel&apos;s change to the validator at once and checks it</translation>
    </message>
    <message>
        <source>Only for calibration</source>
        <translation>Only for calibration</translation>
    </message>
</context>
<context>
    <name>TFormProfilC</name>
    <message>
        <source>Coin Profile</source>
        <translation>Coin Profile</translation>
    </message>
    <message>
        <source>&amp;Name :</source>
        <translation>&amp;Name :</translation>
    </message>
    <message>
        <source>&amp;Description :</source>
        <translation>&amp;Description :</translation>
    </message>
    <message>
        <source>Substitution channel :</source>
        <translation>Substitution channel :</translation>
    </message>
    <message>
        <source>&amp;Enable</source>
        <translation>&amp;Enable</translation>
    </message>
    <message>
        <source>&amp;Value : </source>
        <translation>&amp;Value : </translation>
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
        <translation>Tolerances</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Description</translation>
    </message>
    <message>
        <source>Values</source>
        <translation>Values</translation>
    </message>
    <message>
        <source>Items</source>
        <translation>Items</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>&amp;Open</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Save</translation>
    </message>
    <message>
        <source>&amp;Exit</source>
        <translation>&amp;Exit</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Cancel</translation>
    </message>
    <message>
        <source>HFU low min.</source>
        <translation>HFU low min.</translation>
    </message>
    <message>
        <source>HFU low max.</source>
        <translation>HFU low max.</translation>
    </message>
    <message>
        <source>HFU high min.</source>
        <translation>HFU high min.</translation>
    </message>
    <message>
        <source>Hfu high max.</source>
        <translation>Hfu high max.</translation>
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
        <translation>HFL low min.</translation>
    </message>
    <message>
        <source>HFL low max.</source>
        <translation>HFL low max.</translation>
    </message>
    <message>
        <source>HFL high min.</source>
        <translation>HFL high min.</translation>
    </message>
    <message>
        <source>HFL high max.</source>
        <translation>HFL high max.</translation>
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
        <translation>Record navigator</translation>
    </message>
    <message>
        <source>First record</source>
        <translation>First record</translation>
    </message>
    <message>
        <source>Prior record</source>
        <translation>Prior record</translation>
    </message>
    <message>
        <source>Next record</source>
        <translation>Next record</translation>
    </message>
    <message>
        <source>Last record</source>
        <translation>Last record</translation>
    </message>
    <message>
        <source>Delete record</source>
        <translation>Delete record</translation>
    </message>
</context>
<context>
    <name>TFormProgCoin</name>
    <message>
        <source>Channels control</source>
        <translation>Channels control</translation>
    </message>
    <message>
        <source>&amp;Channel to control :</source>
        <translation>&amp;Channel to control :</translation>
    </message>
    <message>
        <source>Channel to calibra&amp;te :</source>
        <translation>Channel to calibra&amp;te :</translation>
    </message>
    <message>
        <source>Su&amp;bstitution  Channel :</source>
        <translation>Su&amp;bstitution  Channel :</translation>
    </message>
    <message>
        <source>&amp;Value : </source>
        <translation>&amp;Value : </translation>
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
        <translation>E&amp;nable :</translation>
    </message>
    <message>
        <source>Profile :</source>
        <translation>Profile :</translation>
    </message>
    <message>
        <source>Description :</source>
        <translation>Description :</translation>
    </message>
    <message>
        <source>Se&amp;lect...</source>
        <translation>Se&amp;lect...</translation>
    </message>
    <message>
        <source>Response level :</source>
        <translation>Response level :</translation>
    </message>
    <message>
        <source>Number of coins : </source>
        <translation>Number of coins : </translation>
    </message>
    <message>
        <source>Tolerance a&amp;uto :</source>
        <translation>Tolerance a&amp;uto :</translation>
    </message>
    <message>
        <source>&amp;OK</source>
        <translation>&amp;OK</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Save</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Cancel</translation>
    </message>
    <message>
        <source>Loa&amp;d</source>
        <translation>Loa&amp;d</translation>
    </message>
    <message>
        <source>&amp;Clear</source>
        <translation>&amp;Clear</translation>
    </message>
    <message>
        <source>&amp;Export...</source>
        <translation>&amp;Export...</translation>
    </message>
    <message>
        <source>&amp;Import...</source>
        <translation>&amp;Import...</translation>
    </message>
    <message>
        <source>&amp;Matched channel...</source>
        <translation>&amp;Matched channel...</translation>
    </message>
    <message>
        <source>Anal&amp;yse</source>
        <translation>Anal&amp;yse</translation>
    </message>
    <message>
        <source>HFU low</source>
        <translation>HFU low</translation>
    </message>
    <message>
        <source>HFU high</source>
        <translation>HFU high</translation>
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
        <translation>HFL low</translation>
    </message>
    <message>
        <source>HFL high</source>
        <translation>HFL high</translation>
    </message>
    <message>
        <source>AMP</source>
        <translation>AMP</translation>
    </message>
    <message>
        <source>%1 minimum: the lowest reading the channel takes</source>
        <translation>%1 minimum: the lowest reading the channel takes</translation>
    </message>
    <message>
        <source>%1 maximum: the highest reading the channel takes</source>
        <translation>%1 maximum: the highest reading the channel takes</translation>
    </message>
    <message>
        <source>%1: the reading of the last coin</source>
        <translation>%1: the reading of the last coin</translation>
    </message>
    <message>
        <source>%1: the width of the window (maximum - minimum)</source>
        <translation>%1: the width of the window (maximum - minimum)</translation>
    </message>
    <message>
        <source>%1: the last reading minus the minimum (below 0: under the window)</source>
        <translation>%1: the last reading minus the minimum (below 0: under the window)</translation>
    </message>
    <message>
        <source>%1: the last reading minus the maximum (above 0: over the window)</source>
        <translation>%1: the last reading minus the maximum (above 0: over the window)</translation>
    </message>
    <message>
        <source>%1: the last reading, and the window as a band</source>
        <translation>%1: the last reading, and the window as a band</translation>
    </message>
    <message>
        <source>The first stored channel whose windows hold the last coin</source>
        <translation>The first stored channel whose windows hold the last coin</translation>
    </message>
    <message>
        <source>Coins counted for the chosen channel</source>
        <translation>Coins counted for the chosen channel</translation>
    </message>
</context>
<context>
    <name>TFormRefChannel</name>
    <message>
        <source>Reference Channel</source>
        <translation>Reference Channel</translation>
    </message>
    <message>
        <source>Reference channel is empty</source>
        <translation>Reference channel is empty</translation>
    </message>
    <message>
        <source>Use the reference set of tokens.</source>
        <translation>Use the reference set of tokens.</translation>
    </message>
    <message>
        <source>- Insert 5 golden tokens.</source>
        <translation>- Insert 5 golden tokens.</translation>
    </message>
    <message>
        <source>- Ok</source>
        <translation>- Ok</translation>
    </message>
    <message>
        <source>- Insert 5 silver tokens.</source>
        <translation>- Insert 5 silver tokens.</translation>
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
        <translation>Overlapped channels list</translation>
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
        <translation>Values Table</translation>
    </message>
    <message>
        <source>Base Value</source>
        <translation>Base Value</translation>
    </message>
    <message>
        <source>Channels 1 to </source>
        <translation>Channels 1 to </translation>
    </message>
    <message>
        <source>Channels 31 to 60 : </source>
        <translation>Channels 31 to 60 : </translation>
    </message>
    <message>
        <source>Ratio : </source>
        <translation>Ratio : </translation>
    </message>
    <message>
        <source>Name : </source>
        <translation>Name : </translation>
    </message>
    <message>
        <source>Description : </source>
        <translation>Description : </translation>
    </message>
    <message>
        <source>Channels</source>
        <translation>Channels</translation>
    </message>
    <message>
        <source>Table name</source>
        <translation>Table name</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Description</translation>
    </message>
    <message>
        <source>Channel values</source>
        <translation>Channel values</translation>
    </message>
    <message>
        <source>Stored value tables</source>
        <translation>Stored value tables</translation>
    </message>
    <message>
        <source>Record navigator</source>
        <translation>Record navigator</translation>
    </message>
    <message>
        <source>&amp;Load</source>
        <translation>&amp;Load</translation>
    </message>
    <message>
        <source>Load value table from validator</source>
        <translation>Load value table from validator</translation>
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
        <translation>&amp;Apply</translation>
    </message>
    <message>
        <source>Aplly the value table</source>
        <translation>Aplly the value table</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Save</translation>
    </message>
    <message>
        <source>Save a record</source>
        <translation>Save a record</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>&amp;Open</translation>
    </message>
    <message>
        <source>Open a record</source>
        <translation>Open a record</translation>
    </message>
    <message>
        <source>&amp;Reset</source>
        <translation>&amp;Reset</translation>
    </message>
    <message>
        <source>Reseting value table</source>
        <translation>Reseting value table</translation>
    </message>
    <message>
        <source>&amp;Exit</source>
        <translation>&amp;Exit</translation>
    </message>
    <message>
        <source>First record</source>
        <translation>First record</translation>
    </message>
    <message>
        <source>Prior record</source>
        <translation>Prior record</translation>
    </message>
    <message>
        <source>Next record</source>
        <translation>Next record</translation>
    </message>
    <message>
        <source>Last record</source>
        <translation>Last record</translation>
    </message>
    <message>
        <source>Delete record</source>
        <translation>Delete record</translation>
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
        <translation>Firmware upgrade</translation>
    </message>
    <message>
        <source>Upgrade</source>
        <translation>Upgrade</translation>
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
        <translation>Validator setting</translation>
    </message>
    <message>
        <source>Serial Number :</source>
        <translation>Serial Number :</translation>
    </message>
    <message>
        <source>Outlet</source>
        <translation>Outlet</translation>
    </message>
    <message>
        <source>Game Fast</source>
        <translation>Game Fast</translation>
    </message>
    <message>
        <source>Game</source>
        <translation>Game</translation>
    </message>
    <message>
        <source>Vending anti-jam</source>
        <translation>Vending anti-jam</translation>
    </message>
    <message>
        <source>Vending</source>
        <translation>Vending</translation>
    </message>
    <message>
        <source>Resetable counter :</source>
        <translation>Resetable counter :</translation>
    </message>
    <message>
        <source>&amp;OK</source>
        <translation>&amp;OK</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Cancel</translation>
    </message>
</context>
<context>
    <name>TTarvikTolerance</name>
    <message>
        <source>Tolerances</source>
        <translation>Tolerances</translation>
    </message>
    <message>
        <source>Items</source>
        <translation>Items</translation>
    </message>
    <message>
        <source>Values</source>
        <translation>Values</translation>
    </message>
    <message>
        <source>HFU low min.</source>
        <translation>HFU low min.</translation>
    </message>
    <message>
        <source>HFU low max.</source>
        <translation>HFU low max.</translation>
    </message>
    <message>
        <source>HFU high min.</source>
        <translation>HFU high min.</translation>
    </message>
    <message>
        <source>HFU high max.</source>
        <translation>HFU high max.</translation>
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
        <translation>HFL low min.</translation>
    </message>
    <message>
        <source>HFL low max.</source>
        <translation>HFL low max.</translation>
    </message>
    <message>
        <source>HFL high min.</source>
        <translation>HFL high min.</translation>
    </message>
    <message>
        <source>HFL high max.</source>
        <translation>HFL high max.</translation>
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
        <translation>&amp;Cancel</translation>
    </message>
</context>
</TS>
