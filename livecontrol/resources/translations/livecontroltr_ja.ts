<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja_JP" sourcelanguage="en">
<context>
    <name>livecontrol</name>
    <message>
        <source>Camera</source>
        <translation>カメラ</translation>
    </message>
    <message>
        <source>Frame Rate</source>
        <translation>撮影速度</translation>
    </message>
    <message>
        <source>Low Light</source>
        <translation>ローライト</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>解像度</translation>
    </message>
    <message>
        <source>Shutter</source>
        <translation>シャッター速度</translation>
    </message>
    <message>
        <source>Trigger Mode</source>
        <translation>トリガーモード</translation>
    </message>
    <message>
        <source>livecontrol</source>
        <translation>ライブカメラコントロール</translation>
    </message>
</context>
</TS>
