<?xml version="1.0" encoding="UTF-8"?>
<map>
  <meta>
    <name>style-light</name>
    <title>Light</title>
    <description>For a bright room: background colour 217, 226, 232 (#D9E2E8).</description>
    <author>Vyx Display</author>
    <version>1</version>
    <comment>Labels stand out 4.5 to 1 or better on land and on sea; lines and areas stay behind tracks.</comment>
  </meta>
  <style>
    <class name="land">
      <color>#4E555B</color>
      <pen>
        <color>#A9B3B6</color>
        <line>solid</line>
        <width>1</width>
      </pen>
      <brush>
        <color>#F1EFE8</color>
        <pattern>solid</pattern>
      </brush>
      <font>
        <family>DejaVu Sans</family>
        <point>9</point>
      </font>
    </class>
    <class name="water">
      <color>#3C5A78</color>
      <pen>
        <color>#A9B3B6</color>
        <line>solid</line>
        <width>1</width>
      </pen>
      <brush>
        <color>#D9E2E8</color>
        <pattern>solid</pattern>
      </brush>
      <font>
        <family>DejaVu Sans</family>
        <point>9</point>
      </font>
    </class>
    <class name="border">
      <color>#4E555B</color>
      <pen>
        <color>#B7B6AC</color>
        <line>solid</line>
        <width>1</width>
      </pen>
      <brush>
        <color>#00B7B6AC</color>
        <pattern>solid</pattern>
      </brush>
      <font>
        <family>DejaVu Sans</family>
        <point>9</point>
      </font>
    </class>
    <class name="fir">
      <color>#4C5560</color>
      <pen>
        <color>#8F99A4</color>
        <line>dash</line>
        <width>1</width>
      </pen>
      <brush>
        <color>#008F99A4</color>
        <pattern>solid</pattern>
      </brush>
      <font>
        <family>DejaVu Sans</family>
        <point>9</point>
      </font>
    </class>
    <class name="airspace">
      <color>#3F5A74</color>
      <pen>
        <color>#7C95AC</color>
        <line>solid</line>
        <width>1</width>
      </pen>
      <brush>
        <color>#007C95AC</color>
        <pattern>solid</pattern>
      </brush>
      <font>
        <family>DejaVu Sans</family>
        <point>8</point>
      </font>
    </class>
    <class name="tma">
      <color>#2F5C8A</color>
      <pen>
        <color>#6C93BA</color>
        <line>solid</line>
        <width>1</width>
      </pen>
      <brush>
        <color>#0C6C93BA</color>
        <pattern>solid</pattern>
      </brush>
      <font>
        <family>DejaVu Sans</family>
        <point>8</point>
      </font>
    </class>
    <class name="ctr">
      <color>#1E5592</color>
      <pen>
        <color>#4580B8</color>
        <line>solid</line>
        <width>1</width>
      </pen>
      <brush>
        <color>#184580B8</color>
        <pattern>solid</pattern>
      </brush>
      <font>
        <family>DejaVu Sans</family>
        <point>8</point>
      </font>
    </class>
    <class name="restricted">
      <color>#8A3A2A</color>
      <pen>
        <color>#B87060</color>
        <line>dash</line>
        <width>1</width>
      </pen>
      <brush>
        <color>#30B87060</color>
        <pattern>cross</pattern>
      </brush>
      <font>
        <family>DejaVu Sans</family>
        <point>8</point>
      </font>
    </class>
    <class name="danger">
      <color>#83490F</color>
      <pen>
        <color>#BC8850</color>
        <line>dash</line>
        <width>1</width>
      </pen>
      <brush>
        <color>#30BC8850</color>
        <pattern>cross</pattern>
      </brush>
      <font>
        <family>DejaVu Sans</family>
        <point>8</point>
      </font>
    </class>
    <class name="prohibited">
      <color>#951E2B</color>
      <pen>
        <color>#BE5560</color>
        <line>solid</line>
        <width>2</width>
      </pen>
      <brush>
        <color>#48BE5560</color>
        <pattern>cross</pattern>
      </brush>
      <font>
        <family>DejaVu Sans</family>
        <point>8</point>
      </font>
    </class>
    <class name="route">
      <color>#505960</color>
      <pen>
        <color>#9BA4AB</color>
        <line>dashdot</line>
        <width>1</width>
      </pen>
      <brush>
        <color>#009BA4AB</color>
        <pattern>solid</pattern>
      </brush>
      <font>
        <family>DejaVu Sans</family>
        <point>8</point>
      </font>
    </class>
    <class name="runway">
      <color>#3F454A</color>
      <pen>
        <color>#5C6368</color>
        <line>solid</line>
        <width>2</width>
      </pen>
      <brush>
        <color>#FF5C6368</color>
        <pattern>solid</pattern>
      </brush>
      <font>
        <family>DejaVu Sans</family>
        <point>8</point>
      </font>
    </class>
    <class name="airport">
      <color>#3A4956</color>
      <pen>
        <color>#3A4956</color>
        <line>solid</line>
        <width>1</width>
      </pen>
      <brush>
        <color>#003A4956</color>
        <pattern>solid</pattern>
      </brush>
      <font>
        <family>DejaVu Sans</family>
        <point>8</point>
      </font>
    </class>
    <class name="navaid">
      <color>#2A5580</color>
      <pen>
        <color>#2A5580</color>
        <line>solid</line>
        <width>1</width>
      </pen>
      <brush>
        <color>#002A5580</color>
        <pattern>solid</pattern>
      </brush>
      <font>
        <family>DejaVu Sans</family>
        <point>8</point>
      </font>
    </class>
    <class name="fix">
      <color>#345A3E</color>
      <pen>
        <color>#345A3E</color>
        <line>solid</line>
        <width>1</width>
      </pen>
      <brush>
        <color>#00345A3E</color>
        <pattern>solid</pattern>
      </brush>
      <font>
        <family>DejaVu Sans</family>
        <point>8</point>
      </font>
    </class>
    <class name="obstacle">
      <color>#75500F</color>
      <pen>
        <color>#75500F</color>
        <line>solid</line>
        <width>1</width>
      </pen>
      <brush>
        <color>#0075500F</color>
        <pattern>solid</pattern>
      </brush>
      <font>
        <family>DejaVu Sans</family>
        <point>8</point>
      </font>
    </class>
    <class name="nil">
      <color>#4C5359</color>
      <pen>
        <color>#7C848A</color>
        <line>solid</line>
        <width>1</width>
      </pen>
      <brush>
        <color>#007C848A</color>
        <pattern>solid</pattern>
      </brush>
      <font>
        <family>DejaVu Sans</family>
        <point>8</point>
      </font>
    </class>
    <class name="approach">
      <color>#47525C</color>
      <pen>
        <color>#8C99A3</color>
        <line>solid</line>
        <width>1</width>
      </pen>
      <brush>
        <color>#008C99A3</color>
        <pattern>solid</pattern>
      </brush>
      <font>
        <family>DejaVu Sans</family>
        <point>8</point>
      </font>
    </class>
    <class name="apron">
      <color>#47525C</color>
      <pen>
        <color>#D3D6D2</color>
        <line>solid</line>
        <width>1</width>
      </pen>
      <brush>
        <color>#E6E8E4</color>
        <pattern>solid</pattern>
      </brush>
      <font>
        <family>DejaVu Sans</family>
        <point>8</point>
      </font>
    </class>
    <class name="taxiway">
      <color>#47525C</color>
      <pen>
        <color>#C3C7C3</color>
        <line>solid</line>
        <width>1</width>
      </pen>
      <brush>
        <color>#D9DCD8</color>
        <pattern>solid</pattern>
      </brush>
      <font>
        <family>DejaVu Sans</family>
        <point>8</point>
      </font>
    </class>
    <class name="road">
      <color>#47525C</color>
      <pen>
        <color>#C3C7C3</color>
        <line>dash</line>
        <width>1</width>
      </pen>
      <brush>
        <color>#00C3C7C3</color>
        <pattern>solid</pattern>
      </brush>
      <font>
        <family>DejaVu Sans</family>
        <point>8</point>
      </font>
    </class>
    <class name="marking">
      <color>#3C454D</color>
      <pen>
        <color>#F4F5F3</color>
        <line>dash</line>
        <width>1</width>
      </pen>
      <brush>
        <color>#00F4F5F3</color>
        <pattern>solid</pattern>
      </brush>
      <font>
        <family>DejaVu Sans</family>
        <point>8</point>
      </font>
    </class>
    <class name="building">
      <color>#47525C</color>
      <pen>
        <color>#A4AAA8</color>
        <line>solid</line>
        <width>1</width>
      </pen>
      <brush>
        <color>#C4C9C6</color>
        <pattern>solid</pattern>
      </brush>
      <font>
        <family>DejaVu Sans</family>
        <point>8</point>
      </font>
    </class>
    <class name="stand">
      <color>#47525C</color>
      <pen>
        <color>#A9AFAC</color>
        <line>solid</line>
        <width>1</width>
      </pen>
      <brush>
        <color>#00A9AFAC</color>
        <pattern>solid</pattern>
      </brush>
      <font>
        <family>DejaVu Sans</family>
        <point>8</point>
      </font>
    </class>
    <class name="holding">
      <color>#6E4412</color>
      <pen>
        <color>#B0803C</color>
        <line>solid</line>
        <width>2</width>
      </pen>
      <brush>
        <color>#00B0803C</color>
        <pattern>solid</pattern>
      </brush>
      <font>
        <family>DejaVu Sans</family>
        <point>8</point>
      </font>
    </class>
  </style>
</map>
