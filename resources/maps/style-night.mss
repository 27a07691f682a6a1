<?xml version="1.0" encoding="UTF-8"?>
<map>
  <meta>
    <name>style-night</name>
    <title>Night</title>
    <description>For a dark room. Goes with the theme Night: land #141C24, sea #0B1118.</description>
    <author>Vyx Display</author>
    <version>1</version>
    <comment>Lines stand at 1.2 to 3 to 1 against land and sea, texts at 3 to 5, so that traffic is in front.</comment>
  </meta>
  <style>
    <class name="land">
      <color>#6B7F90</color>
      <pen>
        <color>#2C3A47</color>
        <line>solid</line>
        <width>1</width>
      </pen>
      <brush>
        <color>#141C24</color>
        <pattern>solid</pattern>
      </brush>
      <font>
        <family>DejaVu Sans</family>
        <point>9</point>
      </font>
    </class>
    <class name="water">
      <color>#5F7F9C</color>
      <pen>
        <color>#2C3A47</color>
        <line>solid</line>
        <width>1</width>
      </pen>
      <brush>
        <color>#0B1118</color>
        <pattern>solid</pattern>
      </brush>
      <font>
        <family>DejaVu Sans</family>
        <point>9</point>
      </font>
    </class>
    <class name="border">
      <color>#6B7F90</color>
      <pen>
        <color>#2A3743</color>
        <line>dashdot</line>
        <width>1</width>
      </pen>
      <brush>
        <color>#002A3743</color>
        <pattern>solid</pattern>
      </brush>
      <font>
        <family>DejaVu Sans</family>
        <point>9</point>
      </font>
    </class>
    <class name="fir">
      <color>#5F7F9C</color>
      <pen>
        <color>#31465A</color>
        <line>dash</line>
        <width>1</width>
      </pen>
      <brush>
        <color>#0031465A</color>
        <pattern>solid</pattern>
      </brush>
      <font>
        <family>DejaVu Sans</family>
        <point>9</point>
      </font>
    </class>
    <class name="airspace">
      <color>#5F7F9C</color>
      <pen>
        <color>#31465A</color>
        <line>solid</line>
        <width>1</width>
      </pen>
      <brush>
        <color>#0031465A</color>
        <pattern>solid</pattern>
      </brush>
      <font>
        <family>DejaVu Sans</family>
        <point>8</point>
      </font>
    </class>
    <class name="tma">
      <color>#5F7F9C</color>
      <pen>
        <color>#31465A</color>
        <line>solid</line>
        <width>1</width>
      </pen>
      <brush>
        <color>#0C31465A</color>
        <pattern>solid</pattern>
      </brush>
      <font>
        <family>DejaVu Sans</family>
        <point>8</point>
      </font>
    </class>
    <class name="ctr">
      <color>#5F7F9C</color>
      <pen>
        <color>#3B5670</color>
        <line>solid</line>
        <width>1</width>
      </pen>
      <brush>
        <color>#143B5670</color>
        <pattern>solid</pattern>
      </brush>
      <font>
        <family>DejaVu Sans</family>
        <point>8</point>
      </font>
    </class>
    <class name="restricted">
      <color>#B07A78</color>
      <pen>
        <color>#5A3A3C</color>
        <line>dash</line>
        <width>1</width>
      </pen>
      <brush>
        <color>#305A3A3C</color>
        <pattern>cross</pattern>
      </brush>
      <font>
        <family>DejaVu Sans</family>
        <point>8</point>
      </font>
    </class>
    <class name="danger">
      <color>#A08A60</color>
      <pen>
        <color>#5E4B2E</color>
        <line>dash</line>
        <width>1</width>
      </pen>
      <brush>
        <color>#305E4B2E</color>
        <pattern>cross</pattern>
      </brush>
      <font>
        <family>DejaVu Sans</family>
        <point>8</point>
      </font>
    </class>
    <class name="prohibited">
      <color>#B07A78</color>
      <pen>
        <color>#5A3A3C</color>
        <line>solid</line>
        <width>1</width>
      </pen>
      <brush>
        <color>#485A3A3C</color>
        <pattern>cross</pattern>
      </brush>
      <font>
        <family>DejaVu Sans</family>
        <point>8</point>
      </font>
    </class>
    <class name="route">
      <color>#6B7F90</color>
      <pen>
        <color>#263543</color>
        <line>solid</line>
        <width>1</width>
      </pen>
      <brush>
        <color>#00263543</color>
        <pattern>solid</pattern>
      </brush>
      <font>
        <family>DejaVu Sans</family>
        <point>8</point>
      </font>
    </class>
    <class name="approach">
      <color>#6B7F90</color>
      <pen>
        <color>#4A6377</color>
        <line>solid</line>
        <width>1</width>
      </pen>
      <brush>
        <color>#004A6377</color>
        <pattern>solid</pattern>
      </brush>
      <font>
        <family>DejaVu Sans</family>
        <point>8</point>
      </font>
    </class>
    <class name="runway">
      <color>#6B7F90</color>
      <pen>
        <color>#5A6B79</color>
        <line>solid</line>
        <width>1</width>
      </pen>
      <brush>
        <color>#2C3843</color>
        <pattern>solid</pattern>
      </brush>
      <font>
        <family>DejaVu Sans</family>
        <point>8</point>
      </font>
    </class>
    <class name="taxiway">
      <color>#6B7F90</color>
      <pen>
        <color>#2F3E4B</color>
        <line>solid</line>
        <width>1</width>
      </pen>
      <brush>
        <color>#212D38</color>
        <pattern>solid</pattern>
      </brush>
      <font>
        <family>DejaVu Sans</family>
        <point>8</point>
      </font>
    </class>
    <class name="apron">
      <color>#6B7F90</color>
      <pen>
        <color>#283642</color>
        <line>solid</line>
        <width>1</width>
      </pen>
      <brush>
        <color>#1B2630</color>
        <pattern>solid</pattern>
      </brush>
      <font>
        <family>DejaVu Sans</family>
        <point>8</point>
      </font>
    </class>
    <class name="road">
      <color>#6B7F90</color>
      <pen>
        <color>#2A3743</color>
        <line>dash</line>
        <width>1</width>
      </pen>
      <brush>
        <color>#002A3743</color>
        <pattern>solid</pattern>
      </brush>
      <font>
        <family>DejaVu Sans</family>
        <point>8</point>
      </font>
    </class>
    <class name="marking">
      <color>#6B7F90</color>
      <pen>
        <color>#566572</color>
        <line>dash</line>
        <width>1</width>
      </pen>
      <brush>
        <color>#00566572</color>
        <pattern>solid</pattern>
      </brush>
      <font>
        <family>DejaVu Sans</family>
        <point>8</point>
      </font>
    </class>
    <class name="holding">
      <color>#A08A60</color>
      <pen>
        <color>#5E4B2E</color>
        <line>solid</line>
        <width>1</width>
      </pen>
      <brush>
        <color>#005E4B2E</color>
        <pattern>solid</pattern>
      </brush>
      <font>
        <family>DejaVu Sans</family>
        <point>8</point>
      </font>
    </class>
    <class name="stand">
      <color>#6B7F90</color>
      <pen>
        <color>#3F4F5D</color>
        <line>solid</line>
        <width>1</width>
      </pen>
      <brush>
        <color>#003F4F5D</color>
        <pattern>solid</pattern>
      </brush>
      <font>
        <family>DejaVu Sans</family>
        <point>8</point>
      </font>
    </class>
    <class name="building">
      <color>#6B7F90</color>
      <pen>
        <color>#465664</color>
        <line>solid</line>
        <width>1</width>
      </pen>
      <brush>
        <color>#2A3642</color>
        <pattern>solid</pattern>
      </brush>
      <font>
        <family>DejaVu Sans</family>
        <point>8</point>
      </font>
    </class>
    <class name="airport">
      <color>#6B7F90</color>
      <pen>
        <color>#4F6272</color>
        <line>solid</line>
        <width>1</width>
      </pen>
      <brush>
        <color>#004F6272</color>
        <pattern>solid</pattern>
      </brush>
      <font>
        <family>DejaVu Sans</family>
        <point>8</point>
      </font>
    </class>
    <class name="navaid">
      <color>#6B7F90</color>
      <pen>
        <color>#4F6272</color>
        <line>solid</line>
        <width>1</width>
      </pen>
      <brush>
        <color>#004F6272</color>
        <pattern>solid</pattern>
      </brush>
      <font>
        <family>DejaVu Sans</family>
        <point>8</point>
      </font>
    </class>
    <class name="fix">
      <color>#6B7F90</color>
      <pen>
        <color>#4F6272</color>
        <line>solid</line>
        <width>1</width>
      </pen>
      <brush>
        <color>#004F6272</color>
        <pattern>solid</pattern>
      </brush>
      <font>
        <family>DejaVu Sans</family>
        <point>8</point>
      </font>
    </class>
    <class name="obstacle">
      <color>#A08A60</color>
      <pen>
        <color>#5E4B2E</color>
        <line>solid</line>
        <width>1</width>
      </pen>
      <brush>
        <color>#005E4B2E</color>
        <pattern>solid</pattern>
      </brush>
      <font>
        <family>DejaVu Sans</family>
        <point>8</point>
      </font>
    </class>
    <class name="nil">
      <color>#6B7F90</color>
      <pen>
        <color>#4F6272</color>
        <line>solid</line>
        <width>1</width>
      </pen>
      <brush>
        <color>#004F6272</color>
        <pattern>solid</pattern>
      </brush>
      <font>
        <family>DejaVu Sans</family>
        <point>8</point>
      </font>
    </class>
  </style>
</map>
