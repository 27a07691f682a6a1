<?xml version="1.0" encoding="UTF-8"?>
<map>
  <meta>
    <name>style-day</name>
    <title>Day</title>
    <description>For a bright room. Goes with the theme Day: land #E9EDF0, sea #D3E0EA.</description>
    <author>Vyx Display</author>
    <version>1</version>
    <comment>Lines stand at 1.2 to 3 to 1 against land and sea, texts at 3 to 5, so that traffic is in front.</comment>
  </meta>
  <style>
    <class name="land">
      <color>#607482</color>
      <pen>
        <color>#A9B8C4</color>
        <line>solid</line>
        <width>1</width>
      </pen>
      <brush>
        <color>#E9EDF0</color>
        <pattern>solid</pattern>
      </brush>
      <font>
        <family>DejaVu Sans</family>
        <point>9</point>
      </font>
    </class>
    <class name="water">
      <color>#5E7485</color>
      <pen>
        <color>#A9B8C4</color>
        <line>solid</line>
        <width>1</width>
      </pen>
      <brush>
        <color>#D3E0EA</color>
        <pattern>solid</pattern>
      </brush>
      <font>
        <family>DejaVu Sans</family>
        <point>9</point>
      </font>
    </class>
    <class name="border">
      <color>#607482</color>
      <pen>
        <color>#B3C0CA</color>
        <line>dashdot</line>
        <width>1</width>
      </pen>
      <brush>
        <color>#00B3C0CA</color>
        <pattern>solid</pattern>
      </brush>
      <font>
        <family>DejaVu Sans</family>
        <point>9</point>
      </font>
    </class>
    <class name="fir">
      <color>#5E7485</color>
      <pen>
        <color>#B4C2CD</color>
        <line>dash</line>
        <width>1</width>
      </pen>
      <brush>
        <color>#00B4C2CD</color>
        <pattern>solid</pattern>
      </brush>
      <font>
        <family>DejaVu Sans</family>
        <point>9</point>
      </font>
    </class>
    <class name="airspace">
      <color>#5E7485</color>
      <pen>
        <color>#B4C2CD</color>
        <line>solid</line>
        <width>1</width>
      </pen>
      <brush>
        <color>#00B4C2CD</color>
        <pattern>solid</pattern>
      </brush>
      <font>
        <family>DejaVu Sans</family>
        <point>8</point>
      </font>
    </class>
    <class name="tma">
      <color>#5E7485</color>
      <pen>
        <color>#B4C2CD</color>
        <line>solid</line>
        <width>1</width>
      </pen>
      <brush>
        <color>#0CB4C2CD</color>
        <pattern>solid</pattern>
      </brush>
      <font>
        <family>DejaVu Sans</family>
        <point>8</point>
      </font>
    </class>
    <class name="ctr">
      <color>#5E7485</color>
      <pen>
        <color>#98AFC0</color>
        <line>solid</line>
        <width>1</width>
      </pen>
      <brush>
        <color>#1498AFC0</color>
        <pattern>solid</pattern>
      </brush>
      <font>
        <family>DejaVu Sans</family>
        <point>8</point>
      </font>
    </class>
    <class name="restricted">
      <color>#8A5A5A</color>
      <pen>
        <color>#CD9C9C</color>
        <line>dash</line>
        <width>1</width>
      </pen>
      <brush>
        <color>#30CD9C9C</color>
        <pattern>cross</pattern>
      </brush>
      <font>
        <family>DejaVu Sans</family>
        <point>8</point>
      </font>
    </class>
    <class name="danger">
      <color>#75653C</color>
      <pen>
        <color>#C3A877</color>
        <line>dash</line>
        <width>1</width>
      </pen>
      <brush>
        <color>#30C3A877</color>
        <pattern>cross</pattern>
      </brush>
      <font>
        <family>DejaVu Sans</family>
        <point>8</point>
      </font>
    </class>
    <class name="prohibited">
      <color>#8A5A5A</color>
      <pen>
        <color>#CD9C9C</color>
        <line>solid</line>
        <width>1</width>
      </pen>
      <brush>
        <color>#48CD9C9C</color>
        <pattern>cross</pattern>
      </brush>
      <font>
        <family>DejaVu Sans</family>
        <point>8</point>
      </font>
    </class>
    <class name="route">
      <color>#607482</color>
      <pen>
        <color>#BCC9D2</color>
        <line>solid</line>
        <width>1</width>
      </pen>
      <brush>
        <color>#00BCC9D2</color>
        <pattern>solid</pattern>
      </brush>
      <font>
        <family>DejaVu Sans</family>
        <point>8</point>
      </font>
    </class>
    <class name="approach">
      <color>#607482</color>
      <pen>
        <color>#8CA2B2</color>
        <line>solid</line>
        <width>1</width>
      </pen>
      <brush>
        <color>#008CA2B2</color>
        <pattern>solid</pattern>
      </brush>
      <font>
        <family>DejaVu Sans</family>
        <point>8</point>
      </font>
    </class>
    <class name="runway">
      <color>#607482</color>
      <pen>
        <color>#8A99A5</color>
        <line>solid</line>
        <width>1</width>
      </pen>
      <brush>
        <color>#C6CFD6</color>
        <pattern>solid</pattern>
      </brush>
      <font>
        <family>DejaVu Sans</family>
        <point>8</point>
      </font>
    </class>
    <class name="taxiway">
      <color>#607482</color>
      <pen>
        <color>#B9C4CC</color>
        <line>solid</line>
        <width>1</width>
      </pen>
      <brush>
        <color>#D4DBE0</color>
        <pattern>solid</pattern>
      </brush>
      <font>
        <family>DejaVu Sans</family>
        <point>8</point>
      </font>
    </class>
    <class name="apron">
      <color>#607482</color>
      <pen>
        <color>#BFC9D0</color>
        <line>solid</line>
        <width>1</width>
      </pen>
      <brush>
        <color>#DDE3E7</color>
        <pattern>solid</pattern>
      </brush>
      <font>
        <family>DejaVu Sans</family>
        <point>8</point>
      </font>
    </class>
    <class name="road">
      <color>#607482</color>
      <pen>
        <color>#B3C0CA</color>
        <line>dash</line>
        <width>1</width>
      </pen>
      <brush>
        <color>#00B3C0CA</color>
        <pattern>solid</pattern>
      </brush>
      <font>
        <family>DejaVu Sans</family>
        <point>8</point>
      </font>
    </class>
    <class name="marking">
      <color>#607482</color>
      <pen>
        <color>#8695A1</color>
        <line>dash</line>
        <width>1</width>
      </pen>
      <brush>
        <color>#008695A1</color>
        <pattern>solid</pattern>
      </brush>
      <font>
        <family>DejaVu Sans</family>
        <point>8</point>
      </font>
    </class>
    <class name="holding">
      <color>#75653C</color>
      <pen>
        <color>#C3A877</color>
        <line>solid</line>
        <width>1</width>
      </pen>
      <brush>
        <color>#00C3A877</color>
        <pattern>solid</pattern>
      </brush>
      <font>
        <family>DejaVu Sans</family>
        <point>8</point>
      </font>
    </class>
    <class name="stand">
      <color>#607482</color>
      <pen>
        <color>#A3B0BB</color>
        <line>solid</line>
        <width>1</width>
      </pen>
      <brush>
        <color>#00A3B0BB</color>
        <pattern>solid</pattern>
      </brush>
      <font>
        <family>DejaVu Sans</family>
        <point>8</point>
      </font>
    </class>
    <class name="building">
      <color>#607482</color>
      <pen>
        <color>#A2AFBA</color>
        <line>solid</line>
        <width>1</width>
      </pen>
      <brush>
        <color>#CBD3D9</color>
        <pattern>solid</pattern>
      </brush>
      <font>
        <family>DejaVu Sans</family>
        <point>8</point>
      </font>
    </class>
    <class name="airport">
      <color>#607482</color>
      <pen>
        <color>#8696A2</color>
        <line>solid</line>
        <width>1</width>
      </pen>
      <brush>
        <color>#008696A2</color>
        <pattern>solid</pattern>
      </brush>
      <font>
        <family>DejaVu Sans</family>
        <point>8</point>
      </font>
    </class>
    <class name="navaid">
      <color>#607482</color>
      <pen>
        <color>#8696A2</color>
        <line>solid</line>
        <width>1</width>
      </pen>
      <brush>
        <color>#008696A2</color>
        <pattern>solid</pattern>
      </brush>
      <font>
        <family>DejaVu Sans</family>
        <point>8</point>
      </font>
    </class>
    <class name="fix">
      <color>#607482</color>
      <pen>
        <color>#8696A2</color>
        <line>solid</line>
        <width>1</width>
      </pen>
      <brush>
        <color>#008696A2</color>
        <pattern>solid</pattern>
      </brush>
      <font>
        <family>DejaVu Sans</family>
        <point>8</point>
      </font>
    </class>
    <class name="obstacle">
      <color>#75653C</color>
      <pen>
        <color>#C3A877</color>
        <line>solid</line>
        <width>1</width>
      </pen>
      <brush>
        <color>#00C3A877</color>
        <pattern>solid</pattern>
      </brush>
      <font>
        <family>DejaVu Sans</family>
        <point>8</point>
      </font>
    </class>
    <class name="nil">
      <color>#607482</color>
      <pen>
        <color>#8696A2</color>
        <line>solid</line>
        <width>1</width>
      </pen>
      <brush>
        <color>#008696A2</color>
        <pattern>solid</pattern>
      </brush>
      <font>
        <family>DejaVu Sans</family>
        <point>8</point>
      </font>
    </class>
  </style>
</map>
