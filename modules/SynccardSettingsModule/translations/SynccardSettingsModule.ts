<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" sourcelanguage="en">
<context>
    <name>SynccardDialog</name>
    <message>
        <source>internal generated signal</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>external video signal</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>external TTL signal</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>external inverted TTL signal</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>external TTL signal both edges</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>video</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>ttl</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>ttl inverted</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;b&gt;&lt;font color=red&gt;No Synccard available!&lt;/font&gt;&lt;/b&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Channel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delay [us]</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Active during idle</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Max delay</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Model</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Serial</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Warning</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error occured while performing the change</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>direct settings</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SynccardSettingsModule</name>
    <message>
        <source>GUI Synccard Settings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>H&amp;ardware</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Synccard</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Change Synccard settings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shift+F7</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>synccarddialog</name>
    <message>
        <source>Synccard Settings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Synccard settings dialog</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Available synccards</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Synccard input frequency</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>sync input</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>video/TTL signal</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>frequency [HZ]</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Synccard modes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;supported Synccard modes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Synccard source</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>sour&amp;ce</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Synccard frequency</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;frequency [Hz]</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Divisor for external signal</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;divisor for external signal</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;output</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Synccard channels</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Accept settings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>OK</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Discard settings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
</context>
</TS>
