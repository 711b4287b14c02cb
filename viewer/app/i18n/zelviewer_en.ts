<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en">
<context>
    <name>zel4</name>
    <message>
        <source>p_livecontrol</source>
        <translation>Live control</translation>
    </message>
    <message>
        <source>livecontrol</source>
        <translation>Live control</translation>
    </message>
    <message>
        <source>Connected_wifi</source>
        <translation>Connected</translation>
    </message>
</context>
</TS>
