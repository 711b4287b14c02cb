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
    <message>
        <source>Scanning</source>
        <translation>Scanning...</translation>
    </message>
    <message>
        <source>Connecting</source>
        <translation>Connecting...</translation>
    </message>
    <message>
        <source>Input DeviceName</source>
        <translation>Enter a camera name.</translation>
    </message>
    <message>
        <source>Input IPAddress</source>
        <translation>Enter a valid IP address.</translation>
    </message>
</context>
</TS>
