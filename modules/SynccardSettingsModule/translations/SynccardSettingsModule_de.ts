<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>SynccardDialog</name>
    <message>
        <source>internal generated signal</source>
        <translation>intern erzeugtes Signal</translation>
    </message>
    <message>
        <source>external video signal</source>
        <translation>externes Videosignal</translation>
    </message>
    <message>
        <source>external TTL signal</source>
        <translation>externes TTL-Signal</translation>
    </message>
    <message>
        <source>external inverted TTL signal</source>
        <translation>externes invertiertes TTL-Signal</translation>
    </message>
    <message>
        <source>external TTL signal both edges</source>
        <translation>externes TTL-Signal, beide Flanken</translation>
    </message>
    <message>
        <source>video</source>
        <translation>Video</translation>
    </message>
    <message>
        <source>ttl</source>
        <translation>TTL</translation>
    </message>
    <message>
        <source>ttl inverted</source>
        <translation>TTL invertiert</translation>
    </message>
    <message>
        <source>&lt;b&gt;&lt;font color=red&gt;No Synccard available!&lt;/font&gt;&lt;/b&gt;</source>
        <translation>&lt;b&gt;&lt;font color=red&gt;Keine Synccard vorhanden!&lt;/font&gt;&lt;/b&gt;</translation>
    </message>
    <message>
        <source>Channel</source>
        <translation>Kanal</translation>
    </message>
    <message>
        <source>Delay [us]</source>
        <translation>Verzög. [µs]</translation>
    </message>
    <message>
        <source>Active during idle</source>
        <translation>im Leerlauf aktiv</translation>
    </message>
    <message>
        <source>Max delay</source>
        <translation>max. Verzögerung</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>Modell</translation>
    </message>
    <message>
        <source>Serial</source>
        <translation>Seriennummer</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Warnung</translation>
    </message>
    <message>
        <source>Error occured while performing the change</source>
        <translation>Bei der Änderung ist ein Fehler aufgetreten</translation>
    </message>
    <message>
        <source>direct settings</source>
        <translation>direkte Einstellungen</translation>
    </message>
</context>
<context>
    <name>SynccardSettingsModule</name>
    <message>
        <source>GUI Synccard Settings</source>
        <translation>GUI Synccard-Einstellungen</translation>
    </message>
    <message>
        <source>H&amp;ardware</source>
        <translation>H&amp;ardware</translation>
    </message>
    <message>
        <source>&amp;Synccard</source>
        <translation>&amp;Synccard</translation>
    </message>
    <message>
        <source>Change Synccard settings</source>
        <translation>Synccard-Einstellungen ändern</translation>
    </message>
    <message>
        <source>Shift+F7</source>
        <translation>Shift+F7</translation>
    </message>
</context>
<context>
    <name>synccarddialog</name>
    <message>
        <source>Synccard Settings</source>
        <translation>Synccard-Einstellungen</translation>
    </message>
    <message>
        <source>Synccard settings dialog</source>
        <translation>Dialog mit den Einstellungen der Synccard</translation>
    </message>
    <message>
        <source>Available synccards</source>
        <translation>Vorhandene Synccards</translation>
    </message>
    <message>
        <source>Synccard input frequency</source>
        <translation>Eingangsfrequenz der Synccard</translation>
    </message>
    <message>
        <source>sync input</source>
        <translation>Sync-Eingang</translation>
    </message>
    <message>
        <source>video/TTL signal</source>
        <translation>Video-/TTL-Signal</translation>
    </message>
    <message>
        <source>frequency [HZ]</source>
        <translation>Frequenz [Hz]</translation>
    </message>
    <message>
        <source>Synccard modes</source>
        <translation>Modi der Synccard</translation>
    </message>
    <message>
        <source>&amp;supported Synccard modes</source>
        <translation>unterstützte Synccard-&amp;Modi</translation>
    </message>
    <message>
        <source>Synccard source</source>
        <translation>Quelle der Synccard</translation>
    </message>
    <message>
        <source>sour&amp;ce</source>
        <translation>&amp;Quelle</translation>
    </message>
    <message>
        <source>Synccard frequency</source>
        <translation>Frequenz der Synccard</translation>
    </message>
    <message>
        <source>&amp;frequency [Hz]</source>
        <translation>&amp;Frequenz [Hz]</translation>
    </message>
    <message>
        <source>Divisor for external signal</source>
        <translation>Teiler für externes Signal</translation>
    </message>
    <message>
        <source>&amp;divisor for external signal</source>
        <translation>&amp;Teiler für ext. Signal</translation>
    </message>
    <message>
        <source>&amp;output</source>
        <translation>&amp;Ausgang</translation>
    </message>
    <message>
        <source>Synccard channels</source>
        <translation>Kanäle der Synccard</translation>
    </message>
    <message>
        <source>Accept settings</source>
        <translation>Einstellungen übernehmen</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Discard settings</source>
        <translation>Einstellungen verwerfen</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
</context>
</TS>
