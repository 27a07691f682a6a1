<?xml version="1.0" encoding="UTF-8"?>
<map>
  <meta>
    <name>style-dark</name>
    <title>Dark</title>
    <description>For a dark scope: background colour 13, 19, 26 (#0D131A).</description>
    <author>Vyx Display</author>
    <version>1</version>
    <comment>Labels stand out 4.5 to 1 or better on land and on sea; lines and areas stay behind tracks.</comment>
  </meta>
  <style>
    <class name="land">
      <color>#8C9AA6</color>
      <pen>
        <color>#34434F</color>
        <line>solid</line>
        <width>1</width>
      </pen>
      <brush>
        <color>#18212A</color>
        <pattern>solid</pattern>
      </brush>
      <font>
        <family>DejaVu Sans</family>
        <point>9</point>
      </font>
    </class>
    <class name="water">
      <color>#7F9BB5</color>
      <pen>
        <color>#34434F</color>
        <line>solid</line>
        <width>1</width>
      </pen>
      <brush>
        <color>#0D131A</color>
        <pattern>solid</pattern>
      </brush>
      <font>
        <family>DejaVu Sans</family>
        <point>9</point>
      </font>
    </class>
    <class name="border">
      <color>#8C9AA6</color>
      <pen>
        <color>#2E3B46</color>
        <line>solid</line>
        <width>1</width>
      </pen>
      <brush>
        <color>#002E3B46</color>
        <pattern>solid</pattern>
      </brush>
      <font>
        <family>DejaVu Sans</family>
        <point>9</point>
      </font>
    </class>
    <class name="fir">
      <color>#8A97A4</color>
      <pen>
        <color>#465563</color>
        <line>dash</line>
        <width>1</width>
      </pen>
      <brush>
        <color>#00465563</color>
        <pattern>solid</pattern>
      </brush>
      <font>
        <family>DejaVu Sans</family>
        <point>9</point>
      </font>
    </class>
    <class name="airspace">
      <color>#8AA0B4</color>
      <pen>
        <color>#3E566B</color>
        <line>solid</line>
        <width>1</width>
      </pen>
      <brush>
        <color>#003E566B</color>
        <pattern>solid</pattern>
      </brush>
      <font>
        <family>DejaVu Sans</family>
        <point>8</point>
      </font>
    </class>
    <class name="tma">
      <color>#84A6C6</color>
      <pen>
        <color>#35587A</color>
        <line>solid</line>
        <width>1</width>
      </pen>
      <brush>
        <color>#0C35587A</color>
        <pattern>solid</pattern>
      </brush>
      <font>
        <family>DejaVu Sans</family>
        <point>8</point>
      </font>
    </class>
    <class name="ctr">
      <color>#7FB0DC</color>
      <pen>
        <color>#3D6F9E</color>
        <line>solid</line>
        <width>1</width>
      </pen>
      <brush>
        <color>#183D6F9E</color>
        <pattern>solid</pattern>
      </brush>
      <font>
        <family>DejaVu Sans</family>
        <point>8</point>
      </font>
    </class>
    <class name="restricted">
      <color>#D0917F</color>
      <pen>
        <color>#7A4537</color>
        <line>dash</line>
        <width>1</width>
      </pen>
      <brush>
        <color>#307A4537</color>
        <pattern>cross</pattern>
      </brush>
      <font>
        <family>DejaVu Sans</family>
        <point>8</point>
      </font>
    </class>
    <class name="danger">
      <color>#CFA070</color>
      <pen>
        <color>#7D5A30</color>
        <line>dash</line>
        <width>1</width>
      </pen>
      <brush>
        <color>#307D5A30</color>
        <pattern>cross</pattern>
      </brush>
      <font>
        <family>DejaVu Sans</family>
        <point>8</point>
      </font>
    </class>
    <class name="prohibited">
      <color>#E08A90</color>
      <pen>
        <color>#8E343E</color>
        <line>solid</line>
        <width>2</width>
      </pen>
      <brush>
        <color>#488E343E</color>
        <pattern>cross</pattern>
      </brush>
      <font>
        <family>DejaVu Sans</family>
        <point>8</point>
      </font>
    </class>
    <class name="route">
      <color>#8794A0</color>
      <pen>
        <color>#3A4854</color>
        <line>dashdot</line>
        <width>1</width>
      </pen>
      <brush>
        <color>#003A4854</color>
        <pattern>solid</pattern>
      </brush>
      <font>
        <family>DejaVu Sans</family>
        <point>8</point>
      </font>
    </class>
    <class name="runway">
      <color>#A0A9B2</color>
      <pen>
        <color>#7D8893</color>
        <line>solid</line>
        <width>2</width>
      </pen>
      <brush>
        <color>#FF3A4652</color>
        <pattern>solid</pattern>
      </brush>
      <font>
        <family>DejaVu Sans</family>
        <point>8</point>
      </font>
    </class>
    <class name="airport">
      <color>#8291A0</color>
      <pen>
        <color>#6F7E8B</color>
        <line>solid</line>
        <width>1</width>
      </pen>
      <brush>
        <color>#006F7E8B</color>
        <pattern>solid</pattern>
      </brush>
      <font>
        <family>DejaVu Sans</family>
        <point>8</point>
      </font>
    </class>
    <class name="navaid">
      <color>#8FB0CE</color>
      <pen>
        <color>#7595B2</color>
        <line>solid</line>
        <width>1</width>
      </pen>
      <brush>
        <color>#007595B2</color>
        <pattern>solid</pattern>
      </brush>
      <font>
        <family>DejaVu Sans</family>
        <point>8</point>
      </font>
    </class>
    <class name="fix">
      <color>#93B39A</color>
      <pen>
        <color>#76967E</color>
        <line>solid</line>
        <width>1</width>
      </pen>
      <brush>
        <color>#0076967E</color>
        <pattern>solid</pattern>
      </brush>
      <font>
        <family>DejaVu Sans</family>
        <point>8</point>
      </font>
    </class>
    <class name="obstacle">
      <color>#C8A46C</color>
      <pen>
        <color>#A5844F</color>
        <line>solid</line>
        <width>1</width>
      </pen>
      <brush>
        <color>#00A5844F</color>
        <pattern>solid</pattern>
      </brush>
      <font>
        <family>DejaVu Sans</family>
        <point>8</point>
      </font>
    </class>
    <class name="nil">
      <color>#96A2AC</color>
      <pen>
        <color>#5A6772</color>
        <line>solid</line>
        <width>1</width>
      </pen>
      <brush>
        <color>#005A6772</color>
        <pattern>solid</pattern>
      </brush>
      <font>
        <family>DejaVu Sans</family>
        <point>8</point>
      </font>
    </class>
    <class name="approach">
      <color>#8794A0</color>
      <pen>
        <color>#4A5A68</color>
        <line>solid</line>
        <width>1</width>
      </pen>
      <brush>
        <color>#004A5A68</color>
        <pattern>solid</pattern>
      </brush>
      <font>
        <family>DejaVu Sans</family>
        <point>8</point>
      </font>
    </class>
    <class name="apron">
      <color>#8794A0</color>
      <pen>
        <color>#31404C</color>
        <line>solid</line>
        <width>1</width>
      </pen>
      <brush>
        <color>#202C37</color>
        <pattern>solid</pattern>
      </brush>
      <font>
        <family>DejaVu Sans</family>
        <point>8</point>
      </font>
    </class>
    <class name="taxiway">
      <color>#8794A0</color>
      <pen>
        <color>#3D4B58</color>
        <line>solid</line>
        <width>1</width>
      </pen>
      <brush>
        <color>#2D3A46</color>
        <pattern>solid</pattern>
      </brush>
      <font>
        <family>DejaVu Sans</family>
        <point>8</point>
      </font>
    </class>
    <class name="road">
      <color>#8794A0</color>
      <pen>
        <color>#34414D</color>
        <line>dash</line>
        <width>1</width>
      </pen>
      <brush>
        <color>#0034414D</color>
        <pattern>solid</pattern>
      </brush>
      <font>
        <family>DejaVu Sans</family>
        <point>8</point>
      </font>
    </class>
    <class name="marking">
      <color>#A0A9B2</color>
      <pen>
        <color>#6B7883</color>
        <line>dash</line>
        <width>1</width>
      </pen>
      <brush>
        <color>#006B7883</color>
        <pattern>solid</pattern>
      </brush>
      <font>
        <family>DejaVu Sans</family>
        <point>8</point>
      </font>
    </class>
    <class name="building">
      <color>#8794A0</color>
      <pen>
        <color>#51606D</color>
        <line>solid</line>
        <width>1</width>
      </pen>
      <brush>
        <color>#384552</color>
        <pattern>solid</pattern>
      </brush>
      <font>
        <family>DejaVu Sans</family>
        <point>8</point>
      </font>
    </class>
    <class name="stand">
      <color>#8794A0</color>
      <pen>
        <color>#51606D</color>
        <line>solid</line>
        <width>1</width>
      </pen>
      <brush>
        <color>#0042505D</color>
        <pattern>solid</pattern>
      </brush>
      <font>
        <family>DejaVu Sans</family>
        <point>8</point>
      </font>
    </class>
    <class name="holding">
      <color>#CFA070</color>
      <pen>
        <color>#7D5A30</color>
        <line>solid</line>
        <width>2</width>
      </pen>
      <brush>
        <color>#007D5A30</color>
        <pattern>solid</pattern>
      </brush>
      <font>
        <family>DejaVu Sans</family>
        <point>8</point>
      </font>
    </class>
  </style>
</map>
