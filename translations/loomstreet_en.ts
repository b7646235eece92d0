<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en_US" sourcelanguage="en_US">
<context>
    <name>Loomstreet</name>
    <message numerus="yes">
        <source>%Ln new messages</source>
        <translation>
            <numerusform>%Ln new message</numerusform>
            <numerusform>%Ln new messages</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln pieces</source>
        <translation>
            <numerusform>%Ln piece</numerusform>
            <numerusform>%Ln pieces</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln alerts</source>
        <translation>
            <numerusform>%Ln alert</numerusform>
            <numerusform>%Ln alerts</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>We won&apos;t email you about them.</source>
        <translation>
            <numerusform>We won&apos;t email you about it.</numerusform>
            <numerusform>We won&apos;t email you about them.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1, %Ln pieces</source>
        <translation>
            <numerusform>%1, %Ln piece</numerusform>
            <numerusform>%1, %Ln pieces</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln designers</source>
        <translation>
            <numerusform>%Ln designer</numerusform>
            <numerusform>%Ln designers</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln reviews</source>
        <translation>
            <numerusform>%Ln review</numerusform>
            <numerusform>%Ln reviews</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln sold</source>
        <translation>
            <numerusform>%Ln sold</numerusform>
            <numerusform>%Ln sold</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Your earlier cart has expired. %Ln items were in it.</source>
        <translation>
            <numerusform>Your earlier cart has expired. %Ln item was in it.</numerusform>
            <numerusform>Your earlier cart has expired. %Ln items were in it.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln new in the last 30 days</source>
        <translation>
            <numerusform>%Ln new in the last 30 days</numerusform>
            <numerusform>%Ln new in the last 30 days</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln pieces saved</source>
        <translation>
            <numerusform>%Ln piece saved</numerusform>
            <numerusform>%Ln pieces saved</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Show all %Ln</source>
        <translation>
            <numerusform>Show all %Ln</numerusform>
            <numerusform>Show all %Ln</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Show %Ln pieces</source>
        <translation>
            <numerusform>Show %Ln piece</numerusform>
            <numerusform>Show %Ln pieces</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln chosen, %L1 can be compared</source>
        <translation>
            <numerusform>%Ln chosen, %L1 can be compared</numerusform>
            <numerusform>%Ln chosen, %L1 can be compared</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln chosen</source>
        <translation>
            <numerusform>%Ln chosen</numerusform>
            <numerusform>%Ln chosen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>You&apos;ve seen all %Ln</source>
        <translation>
            <numerusform>You&apos;ve seen all %Ln</numerusform>
            <numerusform>You&apos;ve seen all %Ln</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%L1 of %Ln pieces</source>
        <translation>
            <numerusform>%L1 of %Ln piece</numerusform>
            <numerusform>%L1 of %Ln pieces</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>See the look: %Ln pieces, each in your size</source>
        <translation>
            <numerusform>See the look: %Ln piece, in your size</numerusform>
            <numerusform>See the look: %Ln pieces, each in your size</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln chosen, the most there can be</source>
        <translation>
            <numerusform>%Ln chosen, the most there can be</numerusform>
            <numerusform>%Ln chosen, the most there can be</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Packages</source>
        <translation>
            <numerusform>Package</numerusform>
            <numerusform>Packages</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln pieces cost less than when you saw them</source>
        <translation>
            <numerusform>%Ln piece costs less than when you saw it</numerusform>
            <numerusform>%Ln pieces cost less than when you saw them</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>After %Ln days: %1</source>
        <translation>
            <numerusform>After a day: %1</numerusform>
            <numerusform>After %Ln days: %1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln results for “%1”</source>
        <translation>
            <numerusform>%Ln result for “%1”</numerusform>
            <numerusform>%Ln results for “%1”</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln packages</source>
        <translation>
            <numerusform>%Ln package</numerusform>
            <numerusform>%Ln packages</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 and %Ln more</source>
        <translation>
            <numerusform>%1 and %Ln more</numerusform>
            <numerusform>%1 and %Ln more</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Use at most %Ln characters.</source>
        <translation>
            <numerusform>Use at most %Ln character.</numerusform>
            <numerusform>Use at most %Ln characters.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Only %Ln left</source>
        <translation>
            <numerusform>Only %Ln left</numerusform>
            <numerusform>Only %Ln left</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln items in your cart</source>
        <translation>
            <numerusform>%Ln item in your cart</numerusform>
            <numerusform>%Ln items in your cart</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln pieces  ·  confirmation sent to your email</source>
        <translation>
            <numerusform>%Ln piece  ·  confirmation sent to your email</numerusform>
            <numerusform>%Ln pieces  ·  confirmation sent to your email</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln more notifications are waiting in your inbox.</source>
        <translation>
            <numerusform>%Ln more notification is waiting in your inbox.</numerusform>
            <numerusform>%Ln more notifications are waiting in your inbox.</numerusform>
        </translation>
    </message>
</context>
</TS>
