<?xml version="1.0" encoding="UTF-8"?>
<tileset version="1.8" tiledversion="1.8.2" name="tumbledeep" tilewidth="24" tileheight="24" tilecount="28" columns="4" objectalignment="topleft">
 <image source="tiles.png" width="96" height="168"/>
 <tile id="0" type="you"/>
 <tile id="1" type="harddirt"/>
 <tile id="2" type="dirt"/>
 <tile id="3" type="gem1type"/>
 <tile id="4" type="roundrock"/>
 <tile id="5" type="movingmineT"/>
 <tile id="6" type="factory">
  <properties>
   <property name="recipe" value="5:gem1type"/>
  </properties>
 </tile>
 <tile id="8" type="movingmineL">
  <properties>
   <property name="heading" value="U"/>
  </properties>
 </tile>
 <tile id="9" type="movingmineL">
  <properties>
   <property name="heading" value="D"/>
  </properties>
 </tile>
 <tile id="10" type="movingmineL">
  <properties>
   <property name="heading" value="L"/>
  </properties>
 </tile>
 <tile id="11" type="movingmineL">
  <properties>
   <property name="heading" value="R"/>
  </properties>
 </tile>
 <tile id="12" type="movingmineR">
  <properties>
   <property name="heading" value="U"/>
  </properties>
 </tile>
 <tile id="13" type="movingmineR">
  <properties>
   <property name="heading" value="D"/>
  </properties>
 </tile>
 <tile id="14" type="movingmineR">
  <properties>
   <property name="heading" value="L"/>
  </properties>
 </tile>
 <tile id="15" type="movingmineR">
  <properties>
   <property name="heading" value="R"/>
  </properties>
 </tile>
 <tile id="16" type="movingmineFL">
  <properties>
   <property name="heading" value="U"/>
  </properties>
 </tile>
 <tile id="17" type="movingmineFL">
  <properties>
   <property name="heading" value="D"/>
  </properties>
 </tile>
 <tile id="18" type="movingmineFL">
  <properties>
   <property name="heading" value="L"/>
  </properties>
 </tile>
 <tile id="19" type="movingmineFL">
  <properties>
   <property name="heading" value="R"/>
  </properties>
 </tile>
 <tile id="20" type="movingmineP">
  <properties>
   <property name="heading" value="U"/>
  </properties>
 </tile>
 <tile id="21" type="movingmineP">
  <properties>
   <property name="heading" value="D"/>
  </properties>
 </tile>
 <tile id="22" type="movingmineP">
  <properties>
   <property name="heading" value="L"/>
  </properties>
 </tile>
 <tile id="23" type="movingmineP">
  <properties>
   <property name="heading" value="R"/>
  </properties>
 </tile>
 <tile id="24" type="movingminePP">
  <properties>
   <property name="heading" value="U"/>
  </properties>
 </tile>
 <tile id="25" type="movingminePP">
  <properties>
   <property name="heading" value="D"/>
  </properties>
 </tile>
 <tile id="26" type="movingminePP">
  <properties>
   <property name="heading" value="L"/>
  </properties>
 </tile>
 <tile id="27" type="movingminePP">
  <properties>
   <property name="heading" value="R"/>
  </properties>
 </tile>
</tileset>
