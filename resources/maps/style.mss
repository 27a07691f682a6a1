<?xml version="1.0" encoding="UTF-8"?>
<map>
  <meta>
    <name>style</name>
    <title>Grey</title>
    <description>For the default background colour, 173, 173, 173 (#ADADAD).</description>
    <author>Vyx Display</author>
    <version>1</version>
    <comment>Labels stand out 4.5 to 1 or better on land and on sea; lines and areas stay behind tracks.</comment>
  </meta>
  <style>
    <class name="land">
      <color>#3C4248</color>
      <pen>
        <color>#757B73</color>
        <line>solid</line>
        <width>1</width>
      </pen>
      <brush>
        <color>#BDBEB3</color>
        <pattern>solid</pattern>
      </brush>
      <font>
        <family>DejaVu Sans</family>
        <point>9</point>
      </font>
    </class>
    <class name="water">
      <color>#2B415A</color>
      <pen>
        <color>#757B73</color>
        <line>solid</line>
        <width>1</width>
      </pen>
      <brush>
        <color>#ADADAD</color>
        <pattern>solid</pattern>
      </brush>
      <font>
        <family>DejaVu Sans</family>
        <point>9</point>
      </font>
    </class>
    <class name="border">
      <color>#3C4248</color>
      <pen>
        <color>#92948A</color>
        <line>solid</line>
        <width>1</width>
      </pen>
      <brush>
        <color>#0092948A</color>
        <pattern>solid</pattern>
      </brush>
      <font>
        <family>DejaVu Sans</family>
        <point>9</point>
      </font>
    </class>
    <class name="fir">
      <color>#363E48</color>
      <pen>
        <color>#747C86</color>
        <line>dash</line>
        <width>1</width>
      </pen>
      <brush>
        <color>#00747C86</color>
        <pattern>solid</pattern>
      </brush>
      <font>
        <family>DejaVu Sans</family>
        <point>9</point>
      </font>
    </class>
    <class name="airspace">
      <color>#2D4156</color>
      <pen>
        <color>#5F7890</color>
        <line>solid</line>
        <width>1</width>
      </pen>
      <brush>
        <color>#005F7890</color>
        <pattern>solid</pattern>
      </brush>
      <font>
        <family>DejaVu Sans</family>
        <point>8</point>
      </font>
    </class>
    <class name="tma">
      <color>#224265</color>
      <pen>
        <color>#4C7299</color>
        <line>solid</line>
        <width>1</width>
      </pen>
      <brush>
        <color>#0C4C7299</color>
        <pattern>solid</pattern>
      </brush>
      <font>
        <family>DejaVu Sans</family>
        <point>8</point>
      </font>
    </class>
    <class name="ctr">
      <color>#173F6B</color>
      <pen>
        <color>#2F6296</color>
        <line>solid</line>
        <width>1</width>
      </pen>
      <brush>
        <color>#182F6296</color>
        <pattern>solid</pattern>
      </brush>
      <font>
        <family>DejaVu Sans</family>
        <point>8</point>
      </font>
    </class>
    <class name="restricted">
      <color>#6B2A1E</color>
      <pen>
        <color>#96503F</color>
        <line>dash</line>
        <width>1</width>
      </pen>
      <brush>
        <color>#3096503F</color>
        <pattern>cross</pattern>
      </brush>
      <font>
        <family>DejaVu Sans</family>
        <point>8</point>
      </font>
    </class>
    <class name="danger">
      <color>#62320E</color>
      <pen>
        <color>#98642F</color>
        <line>dash</line>
        <width>1</width>
      </pen>
      <brush>
        <color>#3098642F</color>
        <pattern>cross</pattern>
      </brush>
      <font>
        <family>DejaVu Sans</family>
        <point>8</point>
      </font>
    </class>
    <class name="prohibited">
      <color>#741620</color>
      <pen>
        <color>#9C3640</color>
        <line>solid</line>
        <width>2</width>
      </pen>
      <brush>
        <color>#489C3640</color>
        <pattern>cross</pattern>
      </brush>
      <font>
        <family>DejaVu Sans</family>
        <point>8</point>
      </font>
    </class>
    <class name="route">
      <color>#394149</color>
      <pen>
        <color>#7E878E</color>
        <line>dashdot</line>
        <width>1</width>
      </pen>
      <brush>
        <color>#007E878E</color>
        <pattern>solid</pattern>
      </brush>
      <font>
        <family>DejaVu Sans</family>
        <point>8</point>
      </font>
    </class>
    <class name="runway">
      <color>#33383D</color>
      <pen>
        <color>#4C5257</color>
        <line>solid</line>
        <width>2</width>
      </pen>
      <brush>
        <color>#FF4C5257</color>
        <pattern>solid</pattern>
      </brush>
      <font>
        <family>DejaVu Sans</family>
        <point>8</point>
      </font>
    </class>
    <class name="airport">
      <color>#33404C</color>
      <pen>
        <color>#33404C</color>
        <line>solid</line>
        <width>1</width>
      </pen>
      <brush>
        <color>#0033404C</color>
        <pattern>solid</pattern>
      </brush>
      <font>
        <family>DejaVu Sans</family>
        <point>8</point>
      </font>
    </class>
    <class name="navaid">
      <color>#214265</color>
      <pen>
        <color>#214265</color>
        <line>solid</line>
        <width>1</width>
      </pen>
      <brush>
        <color>#00214265</color>
        <pattern>solid</pattern>
      </brush>
      <font>
        <family>DejaVu Sans</family>
        <point>8</point>
      </font>
    </class>
    <class name="fix">
      <color>#2C4733</color>
      <pen>
        <color>#2C4733</color>
        <line>solid</line>
        <width>1</width>
      </pen>
      <brush>
        <color>#002C4733</color>
        <pattern>solid</pattern>
      </brush>
      <font>
        <family>DejaVu Sans</family>
        <point>8</point>
      </font>
    </class>
    <class name="obstacle">
      <color>#5C3A10</color>
      <pen>
        <color>#5C3A10</color>
        <line>solid</line>
        <width>1</width>
      </pen>
      <brush>
        <color>#005C3A10</color>
        <pattern>solid</pattern>
      </brush>
      <font>
        <family>DejaVu Sans</family>
        <point>8</point>
      </font>
    </class>
    <class name="nil">
      <color>#3A4046</color>
      <pen>
        <color>#5E656B</color>
        <line>solid</line>
        <width>1</width>
      </pen>
      <brush>
        <color>#005E656B</color>
        <pattern>solid</pattern>
      </brush>
      <font>
        <family>DejaVu Sans</family>
        <point>8</point>
      </font>
    </class>
    <class name="approach">
      <color>#394149</color>
      <pen>
        <color>#6A747C</color>
        <line>solid</line>
        <width>1</width>
      </pen>
      <brush>
        <color>#006A747C</color>
        <pattern>solid</pattern>
      </brush>
      <font>
        <family>DejaVu Sans</family>
        <point>8</point>
      </font>
    </class>
    <class name="apron">
      <color>#394149</color>
      <pen>
        <color>#A6A89F</color>
        <line>solid</line>
        <width>1</width>
      </pen>
      <brush>
        <color>#B2B3AA</color>
        <pattern>solid</pattern>
      </brush>
      <font>
        <family>DejaVu Sans</family>
        <point>8</point>
      </font>
    </class>
    <class name="taxiway">
      <color>#394149</color>
      <pen>
        <color>#9C9E96</color>
        <line>solid</line>
        <width>1</width>
      </pen>
      <brush>
        <color>#A6A8A0</color>
        <pattern>solid</pattern>
      </brush>
      <font>
        <family>DejaVu Sans</family>
        <point>8</point>
      </font>
    </class>
    <class name="road">
      <color>#394149</color>
      <pen>
        <color>#A0A29A</color>
        <line>dash</line>
        <width>1</width>
      </pen>
      <brush>
        <color>#00A0A29A</color>
        <pattern>solid</pattern>
      </brush>
      <font>
        <family>DejaVu Sans</family>
        <point>8</point>
      </font>
    </class>
    <class name="marking">
      <color>#33383D</color>
      <pen>
        <color>#C9CAC5</color>
        <line>dash</line>
        <width>1</width>
      </pen>
      <brush>
        <color>#00C9CAC5</color>
        <pattern>solid</pattern>
      </brush>
      <font>
        <family>DejaVu Sans</family>
        <point>8</point>
      </font>
    </class>
    <class name="building">
      <color>#394149</color>
      <pen>
        <color>#7D8078</color>
        <line>solid</line>
        <width>1</width>
      </pen>
      <brush>
        <color>#9A9C94</color>
        <pattern>solid</pattern>
      </brush>
      <font>
        <family>DejaVu Sans</family>
        <point>8</point>
      </font>
    </class>
    <class name="stand">
      <color>#394149</color>
      <pen>
        <color>#8A8C84</color>
        <line>solid</line>
        <width>1</width>
      </pen>
      <brush>
        <color>#008A8C84</color>
        <pattern>solid</pattern>
      </brush>
      <font>
        <family>DejaVu Sans</family>
        <point>8</point>
      </font>
    </class>
    <class name="holding">
      <color>#62320E</color>
      <pen>
        <color>#98642F</color>
        <line>solid</line>
        <width>2</width>
      </pen>
      <brush>
        <color>#0098642F</color>
        <pattern>solid</pattern>
      </brush>
      <font>
        <family>DejaVu Sans</family>
        <point>8</point>
      </font>
    </class>
  </style>
</map>
