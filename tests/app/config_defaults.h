#pragma once

// Every key of the settings file with its text in a file of defaults. %ZONE% stands for the system's time zone, %DATA%
// for the data directory, * for any opaque colour; colours are alpha and RGB.
inline constexpr char ConfigDefaults[] = R"(
displayCenterCoordinate=400300N1164400E displayLocalTimeZoneName=%ZONE% displayTheme=Classic displayStyle=windowsvista
displayLanguage=en displayToolbarText=true displayFontScale=100 settingsLock= logFileSize=4 logFileCount=5
inputAutoStart=false
inputComm=0 inputUdpMulticast1=true inputUdpMcastLanInterface1= inputUdpMcastAddress1=239.0.0.1
inputUdpPort1=50000 inputEnable2=false inputUdpMulticast2=true inputUdpMcastLanInterface2=
inputUdpMcastAddress2=239.0.0.2 inputUdpPort2=50001 inputSerialDevice= inputSerialBaudRate=9600
inputSerialDataBits=8 inputSerialParity=0 inputSerialStopBits=1 inputFileName= inputFileAutoRewind=false
processorType=0 processorAsterixFormat=0 processorAsterixUap=0 processorAsterixIgnoreWgs84Coordinates=false
processorAsterixIgnoreCartesianCoordinates=false processorAsterixCorrectLongitudeWrap=false
processorAsterixVerifySacSic=false processorModeSEncapsulation=beast processorModeSIgnoreTimeStamp=true
processorModeSBaroAltituteChecking=false processorModeSBaroAltituteCheckingTime=4
processorModeSBaroAltituteMaxChange=150 processorModeSNoUpdatedTargetDeletionTime=10 processorAleniaSirMFormat=0
sensorType=nil sensorName= sensorSac=0 sensorSic=0 sensorLocation= sensorRadarAntennaAltitude=0
sensorRadarRotationPeriod=4 sensorRadarIsPrimary=false sensorRadarIsSecondary=true sensorRadarIsModeS=true
sensorRadarCoveragePrimary=70 sensorRadarCoverageSecondary=250 sensorAdsbCoverage=250 sensorAdsbUpdateInterval=0
sensorMlatCoverage=250 sensorSdpsCoverage=512 sensorSdpsUpdateInterval=0 sensorSmrAntennaAltitude=0
sensorSmrRotationPeriod=1 sensorSmrCoverage=5 sensorDatabase=
mapSmoothPixmapTransform=false mapBackgroundColor=#ffadadad
mapTileConsent=false mapTileDimming=0 mapTileDesaturation=0 mapCustomTileUrl= mapCustomTileHeader=
mapCustomTileMaxLevel=18 mapCustomTileFile= mapBingTileServer= mapOpenAipTileServer=
mapGoogleTileServer= mapTiandituTileServer= mapFaaTileServer=
mapTileService=true mapTileVisible=true mapTileTopLayerEnable=false mapTileTopLayerProvider=openaip
mapTileBottomLayerProvider=bingmaps mapTileCacheDir=%DATA%/TileCache/ mapTileUseProxy=false
mapTileProxyHostname=localhost mapTileProxyPort=1080 mapTileProxyUser= mapTileProxyPassword=
mapTileProxyHostnameLookup=true
mapBingImagery=aerial mapBingCulture=en-US mapBingTileDir=%DATA%/BingMaps/ mapBingSaveTileFiles=true
mapBingOfflinePriority=true mapBingOfflineOnly=false
mapOpenAipApiKey= mapOpenAipTileDir=%DATA%/OpenAIP/ mapOpenAipSaveTileFiles=true mapOpenAipOfflinePriority=true
mapOpenAipOfflineOnly=false
mapGoogleLayer=r mapGoogleHostLanguage=en mapGoogleGeographyLocation=us mapGoogleHiDpiTiles=true
mapGoogleTileDir=%DATA%/GoogleMaps/ mapGoogleSaveTileFiles=true mapGoogleOfflinePriority=true
mapGoogleOfflineOnly=false
mapTiandituLayer=img mapTiandituApiKey= mapTiandituTileDir=%DATA%/Tianditu/ mapTiandituSaveTileFiles=true
mapTiandituOfflinePriority=true mapTiandituOfflineOnly=false
mapFaaChart=vfr-sectional mapFaaTileDir=%DATA%/FAA/ mapFaaSaveTileFiles=true mapFaaOfflinePriority=true
mapFaaOfflineOnly=false
mapWeatherVisible=false mapWeatherColor0=* mapWeatherColor1=* mapWeatherColor2=* mapWeatherColor3=*
mapWeatherColor4=* mapWeatherColor5=* mapWeatherColor6=* mapWeatherColor7=* mapWeatherOpacity=128
mapWeatherValidity=900 mapWeatherVectorWidth=0.35 mapWeatherAutoVectorWidth=true
mapWeatherIgnoreEmptyPicture=true
mapVideoVisible=false mapVideoHighColor=#ffffff00 mapVideoLowColor=#ffffffbe mapVideoHighOpacity=255
mapVideoLowOpacity=64 mapVideoThreshold=30 mapVideoValidity=5
mapIndex=map.idx mapStyleSheet=style.mss
mapStaticVisible=true mapStaticSymbolSize=32
mapSensorVisible=true mapSensorCoverageVisible=true mapSensorRadarNorthMarkerVisible=true
mapSensorRadarAntennaLineVisible=true mapSensorColor=#ff006633 mapSensorRadarNorthMarkerColor=#ffff0000
mapSensorRadarAntennaLineColor=#ff006633
mapRangeRingVisible=false mapRangeRingColor=#ff393f42 mapRangeRingNumber=5 mapRangeRingDistance=50
mapSensorNameVisible=true mapSensorRadarNorthMarkerShort=false
mapRangeRingLabelVisible=true mapRangeRingLabelColor=#ff393f42 mapCompassRoseVisible=false mapScaleBarVisible=false
mapKeyVisible=false mapPlotVisible=false mapPlotSeconds=0 mapPlotColor=#ff005a82
trackLabelLayout=0 trackLabelAutoPlace=false trackSymbolCasingColor=#ff000000 trackLeaderColor=#ff008fcc
trackCoastingColor=#ff008fcc trackCautionColor=#ffffb454 trackLabelDetailColor=#ffffffff
trackLabelAlertTextColor=#ffffffff
trackSymbolColor=#ff008fcc trackLabelColor=#ffffffff trackLabelSelectedColor=#ff00ff00
trackLabelAlertColor=#ffff0000 trackLabelBackgroundColor=#ff505050 trackLabelBackgroundOpacity=100
)";
