<?xml version="1.0" encoding="UTF-8"?>
<map>
  <meta>
    <name>style-dusk</name>
    <title>Dusk</title>
    <description>For a dimmed room. Goes with the theme Dusk: land #3A4651, sea #2E3943.</description>
    <author>Vyx Display</author>
    <version>1</version>
    <comment>Lines stand at 1.2 to 3 to 1 against land and sea, texts at 3 to 5, so that traffic is in front.</comment>
  </meta>
  <style>
    <class name="land">
      <color>#95A7B5</color>
      <pen>
        <color>#5A6875</color>
        <line>solid</line>
        <width>1</width>
      </pen>
      <brush>
        <color>#3A4651</color>
        <pattern>solid</pattern>
      </brush>
      <font>
        <family>DejaVu Sans</family>
        <point>9</point>
      </font>
    </class>
    <class name="water">
      <color>#93A8B8</color>
      <pen>
        <color>#5A6875</color>
        <line>solid</line>
        <width>1</width>
      </pen>
      <brush>
        <color>#2E3943</color>
        <pattern>solid</pattern>
      </brush>
      <font>
        <family>DejaVu Sans</family>
        <point>9</point>
      </font>
    </class>
    <class name="border">
      <color>#95A7B5</color>
      <pen>
        <color>#54626E</color>
        <line>dashdot</line>
        <width>1</width>
      </pen>
      <brush>
        <color>#0054626E</color>
        <pattern>solid</pattern>
      </brush>
      <font>
        <family>DejaVu Sans</family>
        <point>9</point>
      </font>
    </class>
    <class name="fir">
      <color>#93A8B8</color>
      <pen>
        <color>#5A6B79</color>
        <line>dash</line>
        <width>1</width>
      </pen>
      <brush>
        <color>#005A6B79</color>
        <pattern>solid</pattern>
      </brush>
      <font>
        <family>DejaVu Sans</family>
        <point>9</point>
      </font>
    </class>
    <class name="airspace">
      <color>#93A8B8</color>
      <pen>
        <color>#5A6B79</color>
        <line>solid</line>
        <width>1</width>
      </pen>
      <brush>
        <color>#005A6B79</color>
        <pattern>solid</pattern>
      </brush>
      <font>
        <family>DejaVu Sans</family>
        <point>8</point>
      </font>
    </class>
    <class name="tma">
      <color>#93A8B8</color>
      <pen>
        <color>#5A6B79</color>
        <line>solid</line>
        <width>1</width>
      </pen>
      <brush>
        <color>#0C5A6B79</color>
        <pattern>solid</pattern>
      </brush>
      <font>
        <family>DejaVu Sans</family>
        <point>8</point>
      </font>
    </class>
    <class name="ctr">
      <color>#93A8B8</color>
      <pen>
        <color>#63798B</color>
        <line>solid</line>
        <width>1</width>
      </pen>
      <brush>
        <color>#1463798B</color>
        <pattern>solid</pattern>
      </brush>
      <font>
        <family>DejaVu Sans</family>
        <point>8</point>
      </font>
    </class>
    <class name="restricted">
      <color>#CBA3A0</color>
      <pen>
        <color>#7A5A5E</color>
        <line>dash</line>
        <width>1</width>
      </pen>
      <brush>
        <color>#307A5A5E</color>
        <pattern>cross</pattern>
      </brush>
      <font>
        <family>DejaVu Sans</family>
        <point>8</point>
      </font>
    </class>
    <class name="danger">
      <color>#BFAF8C</color>
      <pen>
        <color>#7D6B4E</color>
        <line>dash</line>
        <width>1</width>
      </pen>
      <brush>
        <color>#307D6B4E</color>
        <pattern>cross</pattern>
      </brush>
      <font>
        <family>DejaVu Sans</family>
        <point>8</point>
      </font>
    </class>
    <class name="prohibited">
      <color>#CBA3A0</color>
      <pen>
        <color>#7A5A5E</color>
        <line>solid</line>
        <width>1</width>
      </pen>
      <brush>
        <color>#487A5A5E</color>
        <pattern>cross</pattern>
      </brush>
      <font>
        <family>DejaVu Sans</family>
        <point>8</point>
      </font>
    </class>
    <class name="route">
      <color>#95A7B5</color>
      <pen>
        <color>#4E5D69</color>
        <line>solid</line>
        <width>1</width>
      </pen>
      <brush>
        <color>#004E5D69</color>
        <pattern>solid</pattern>
      </brush>
      <font>
        <family>DejaVu Sans</family>
        <point>8</point>
      </font>
    </class>
    <class name="approach">
      <color>#95A7B5</color>
      <pen>
        <color>#7890A2</color>
        <line>solid</line>
        <width>1</width>
      </pen>
      <brush>
        <color>#007890A2</color>
        <pattern>solid</pattern>
      </brush>
      <font>
        <family>DejaVu Sans</family>
        <point>8</point>
      </font>
    </class>
    <class name="runway">
      <color>#95A7B5</color>
      <pen>
        <color>#788A98</color>
        <line>solid</line>
        <width>1</width>
      </pen>
      <brush>
        <color>#515F6B</color>
        <pattern>solid</pattern>
      </brush>
      <font>
        <family>DejaVu Sans</family>
        <point>8</point>
      </font>
    </class>
    <class name="taxiway">
      <color>#95A7B5</color>
      <pen>
        <color>#55636F</color>
        <line>solid</line>
        <width>1</width>
      </pen>
      <brush>
        <color>#475460</color>
        <pattern>solid</pattern>
      </brush>
      <font>
        <family>DejaVu Sans</family>
        <point>8</point>
      </font>
    </class>
    <class name="apron">
      <color>#95A7B5</color>
      <pen>
        <color>#4F5C68</color>
        <line>solid</line>
        <width>1</width>
      </pen>
      <brush>
        <color>#414D58</color>
        <pattern>solid</pattern>
      </brush>
      <font>
        <family>DejaVu Sans</family>
        <point>8</point>
      </font>
    </class>
    <class name="road">
      <color>#95A7B5</color>
      <pen>
        <color>#54626E</color>
        <line>dash</line>
        <width>1</width>
      </pen>
      <brush>
        <color>#0054626E</color>
        <pattern>solid</pattern>
      </brush>
      <font>
        <family>DejaVu Sans</family>
        <point>8</point>
      </font>
    </class>
    <class name="marking">
      <color>#95A7B5</color>
      <pen>
        <color>#7B8B98</color>
        <line>dash</line>
        <width>1</width>
      </pen>
      <brush>
        <color>#007B8B98</color>
        <pattern>solid</pattern>
      </brush>
      <font>
        <family>DejaVu Sans</family>
        <point>8</point>
      </font>
    </class>
    <class name="holding">
      <color>#BFAF8C</color>
      <pen>
        <color>#7D6B4E</color>
        <line>solid</line>
        <width>1</width>
      </pen>
      <brush>
        <color>#007D6B4E</color>
        <pattern>solid</pattern>
      </brush>
      <font>
        <family>DejaVu Sans</family>
        <point>8</point>
      </font>
    </class>
    <class name="stand">
      <color>#95A7B5</color>
      <pen>
        <color>#667683</color>
        <line>solid</line>
        <width>1</width>
      </pen>
      <brush>
        <color>#00667683</color>
        <pattern>solid</pattern>
      </brush>
      <font>
        <family>DejaVu Sans</family>
        <point>8</point>
      </font>
    </class>
    <class name="building">
      <color>#95A7B5</color>
      <pen>
        <color>#6C7B88</color>
        <line>solid</line>
        <width>1</width>
      </pen>
      <brush>
        <color>#4F5C68</color>
        <pattern>solid</pattern>
      </brush>
      <font>
        <family>DejaVu Sans</family>
        <point>8</point>
      </font>
    </class>
    <class name="airport">
      <color>#95A7B5</color>
      <pen>
        <color>#7A8A97</color>
        <line>solid</line>
        <width>1</width>
      </pen>
      <brush>
        <color>#007A8A97</color>
        <pattern>solid</pattern>
      </brush>
      <font>
        <family>DejaVu Sans</family>
        <point>8</point>
      </font>
    </class>
    <class name="navaid">
      <color>#95A7B5</color>
      <pen>
        <color>#7A8A97</color>
        <line>solid</line>
        <width>1</width>
      </pen>
      <brush>
        <color>#007A8A97</color>
        <pattern>solid</pattern>
      </brush>
      <font>
        <family>DejaVu Sans</family>
        <point>8</point>
      </font>
    </class>
    <class name="fix">
      <color>#95A7B5</color>
      <pen>
        <color>#7A8A97</color>
        <line>solid</line>
        <width>1</width>
      </pen>
      <brush>
        <color>#007A8A97</color>
        <pattern>solid</pattern>
      </brush>
      <font>
        <family>DejaVu Sans</family>
        <point>8</point>
      </font>
    </class>
    <class name="obstacle">
      <color>#BFAF8C</color>
      <pen>
        <color>#7D6B4E</color>
        <line>solid</line>
        <width>1</width>
      </pen>
      <brush>
        <color>#007D6B4E</color>
        <pattern>solid</pattern>
      </brush>
      <font>
        <family>DejaVu Sans</family>
        <point>8</point>
      </font>
    </class>
    <class name="nil">
      <color>#95A7B5</color>
      <pen>
        <color>#7A8A97</color>
        <line>solid</line>
        <width>1</width>
      </pen>
      <brush>
        <color>#007A8A97</color>
        <pattern>solid</pattern>
      </brush>
      <font>
        <family>DejaVu Sans</family>
        <point>8</point>
      </font>
    </class>
  </style>
</map>
