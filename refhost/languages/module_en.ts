<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="cs">
<context>
    <name></name>
    <message id="KORDAN30\MESSAGEBOX\OK">
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message id="KORDAN30\MESSAGEBOX\YES">
        <source>&amp;Ano</source>
        <translation>&amp;Yes</translation>
    </message>
    <message id="KORDAN30\MESSAGEBOX\NO">
        <source>&amp;Ne</source>
        <translation>&amp;No</translation>
    </message>
    <message id="KORDAN30\MelvarkEditorSelectWin\CancelBtn\Caption">
        <source>&amp;Zrušit</source>
        <translation>&amp;Cancel</translation>
    </message>
</context>
</TS>
