<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE" sourcelanguage="en">
<context>
    <name>Effect::Schema</name>
    <message>
        <source>-1 is only the sound, 1 is only the room, 0 is both at full level</source>
        <translation>-1 ist nur der Ton, 1 nur der Raum, 0 beides in voller Stärke</translation>
    </message>
    <message>
        <source>0 hides nothing, 1 hides the inside completely</source>
        <translation>0 verbirgt nichts, 1 verbirgt das Innere ganz</translation>
    </message>
    <message>
        <source>0 is invisible, 1 covers everything below</source>
        <translation>0 ist unsichtbar, 1 verdeckt alles darunter</translation>
    </message>
    <message>
        <source>0 leaves the surroundings visible, 1 covers them completely</source>
        <translation>0 lässt die Umgebung sichtbar, 1 verdeckt sie ganz</translation>
    </message>
    <message>
        <source>0 scatters none of the pixels, 1 all of them</source>
        <translation>0 streut keine Pixel, 1 alle</translation>
    </message>
    <message>
        <source>A frame on the picture that stays in place or follows a motion track.</source>
        <translation>Ein Rahmen im Bild, der an seinem Platz bleibt oder einer Bewegungsspur folgt.</translation>
    </message>
    <message>
        <source>Acoustic</source>
        <translation>Akustisch</translation>
    </message>
    <message>
        <source>Adds a copy of the sound with a wandering delay, which gives a sweeping whoosh.</source>
        <translation>Mischt eine Kopie mit wandernder Verzögerung hinzu, was ein rauschendes Auf und Ab ergibt.</translation>
    </message>
    <message>
        <source>Adds colour fringes towards the rim, as simple lenses do.</source>
        <translation>Fügt zum Rand hin Farbsäume hinzu wie ein einfaches Objektiv.</translation>
    </message>
    <message>
        <source>Adds glowing patches, as from light that fell into the camera.</source>
        <translation>Fügt leuchtende Flecken hinzu, wie von Licht, das in die Kamera fällt.</translation>
    </message>
    <message>
        <source>Adds the reflections of a bright light in the lens.</source>
        <translation>Fügt die Reflexe eines hellen Lichts im Objektiv hinzu.</translation>
    </message>
    <message>
        <source>Adjusts brightness, contrast and colours with nine sliders from -1 to 1. 0 changes nothing.</source>
        <translation>Passt Helligkeit, Kontrast und Farben mit neun Reglern von -1 bis 1 an. 0 ändert nichts.</translation>
    </message>
    <message>
        <source>An effect on pictures.</source>
        <translation>Ein Effekt für das Bild.</translation>
    </message>
    <message>
        <source>An effect on sound that runs as a filter.</source>
        <translation>Ein Effekt für den Ton, der als Filter läuft.</translation>
    </message>
    <message>
        <source>An effect on sound.</source>
        <translation>Ein Effekt für den Ton.</translation>
    </message>
    <message>
        <source>An effect that is carried out outside the render engine.</source>
        <translation>Ein Effekt, der außerhalb der Render-Engine ausgeführt wird.</translation>
    </message>
    <message>
        <source>Analysis size</source>
        <translation>Analysegröße</translation>
    </message>
    <message>
        <source>Angle</source>
        <translation>Winkel</translation>
    </message>
    <message>
        <source>Area of the frame that the picture fills</source>
        <translation>Fläche des Rahmens, die das Bild füllt</translation>
    </message>
    <message>
        <source>Area of the picture that is shown</source>
        <translation>Ausschnitt des Bildes, der zu sehen ist</translation>
    </message>
    <message>
        <source>Attack</source>
        <translation>Ansprechzeit</translation>
    </message>
    <message>
        <source>Attenuation</source>
        <translation>Absenkung</translation>
    </message>
    <message>
        <source>Audio</source>
        <translation>Audio</translation>
    </message>
    <message>
        <source>Background</source>
        <translation>Hintergrund</translation>
    </message>
    <message>
        <source>Background opacity</source>
        <translation>Deckkraft des Hintergrunds</translation>
    </message>
    <message>
        <source>Background softness</source>
        <translation>Weichheit des Hintergrunds</translation>
    </message>
    <message>
        <source>Balance</source>
        <translation>Balance</translation>
    </message>
    <message>
        <source>Balloon</source>
        <translation>Luftballon</translation>
    </message>
    <message>
        <source>Bands</source>
        <translation>Bänder</translation>
    </message>
    <message>
        <source>Beat</source>
        <translation>Beat</translation>
    </message>
    <message>
        <source>Below 0 lines bulge outwards, above 0 they bend inwards; the stock uses -0.35 to 0.2</source>
        <translation>Unter 0 wölben sich Linien nach außen, über 0 nach innen; die Vorlagen verwenden -0,35 bis 0,2</translation>
    </message>
    <message>
        <source>Bends straight lines outwards or inwards, as simple lenses do.</source>
        <translation>Krümmt gerade Linien nach außen oder innen wie ein einfaches Objektiv.</translation>
    </message>
    <message>
        <source>Black</source>
        <translation>Schwarz</translation>
    </message>
    <message>
        <source>Blend mode</source>
        <translation>Mischmodus</translation>
    </message>
    <message>
        <source>Blends the clip with the one below it.</source>
        <translation>Mischt den Clip mit dem darunterliegenden.</translation>
    </message>
    <message>
        <source>Blossom</source>
        <translation>Blüte</translation>
    </message>
    <message>
        <source>Blur</source>
        <translation>Unschärfe</translation>
    </message>
    <message>
        <source>Blurs moving parts of the picture.</source>
        <translation>Zeichnet bewegte Teile des Bildes unscharf.</translation>
    </message>
    <message>
        <source>Boost</source>
        <translation>Anhebung</translation>
    </message>
    <message>
        <source>Breaks the picture like a damaged video file.</source>
        <translation>Zerstört das Bild wie eine beschädigte Videodatei.</translation>
    </message>
    <message>
        <source>Bright voice</source>
        <translation>Helle Stimme</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>Helligkeit</translation>
    </message>
    <message>
        <source>Brightness of the dark parts</source>
        <translation>Helligkeit der dunklen Bereiche</translation>
    </message>
    <message>
        <source>Brightness of the light parts</source>
        <translation>Helligkeit der hellen Bereiche</translation>
    </message>
    <message>
        <source>Brightness of the midtones</source>
        <translation>Helligkeit der Mitteltöne</translation>
    </message>
    <message>
        <source>Brings quiet and loud recordings to the same loudness.</source>
        <translation>Bringt leise und laute Aufnahmen auf dieselbe Lautheit.</translation>
    </message>
    <message>
        <source>Brush</source>
        <translation>Pinsel</translation>
    </message>
    <message>
        <source>Brush 0</source>
        <translation>Pinsel 0</translation>
    </message>
    <message>
        <source>Brush 1</source>
        <translation>Pinsel 1</translation>
    </message>
    <message>
        <source>Brush radius</source>
        <translation>Pinselradius</translation>
    </message>
    <message>
        <source>Bunny</source>
        <translation>Hase</translation>
    </message>
    <message>
        <source>Burst</source>
        <translation>Zackenstern</translation>
    </message>
    <message>
        <source>Butterfly</source>
        <translation>Schmetterling</translation>
    </message>
    <message>
        <source>Centre of the band; the presets use 31 to 16000 Hz</source>
        <translation>Mitte des Bandes; die Vorlagen verwenden 31 bis 16000 Hz</translation>
    </message>
    <message>
        <source>Changes the colours with a lookup table from a file, such as a film look.</source>
        <translation>Ändert die Farben mit einer Farbtabelle aus einer Datei, etwa zu einem Filmlook.</translation>
    </message>
    <message>
        <source>Channel link</source>
        <translation>Kanalkopplung</translation>
    </message>
    <message>
        <source>Clear voice</source>
        <translation>Klare Stimme</translation>
    </message>
    <message>
        <source>Clover</source>
        <translation>Kleeblatt</translation>
    </message>
    <message>
        <source>Coefficient of x in a·x + b·y = c</source>
        <translation>Koeffizient von x in a·x + b·y = c</translation>
    </message>
    <message>
        <source>Coefficient of y in a·x + b·y = c</source>
        <translation>Koeffizient von y in a·x + b·y = c</translation>
    </message>
    <message>
        <source>Colour</source>
        <translation>Farbe</translation>
    </message>
    <message>
        <source>Colour between the dots; its alpha has no effect</source>
        <translation>Farbe zwischen den Punkten; ihr Alpha hat keine Wirkung</translation>
    </message>
    <message>
        <source>Colour of the dots; its alpha sets how opaque they are</source>
        <translation>Farbe der Punkte; ihr Alpha bestimmt deren Deckkraft</translation>
    </message>
    <message>
        <source>Colour, strength and form of the rim; any other number leaves them to the render engine</source>
        <translation>Farbe, Stärke und Form des Randes; bei jeder anderen Zahl entscheidet die Render-Engine</translation>
    </message>
    <message>
        <source>Colours</source>
        <translation>Farben</translation>
    </message>
    <message>
        <source>Constant distortion</source>
        <translation>Ständige Verzerrung</translation>
    </message>
    <message>
        <source>Contrast</source>
        <translation>Kontrast</translation>
    </message>
    <message>
        <source>Corrects brightness, contrast and colours in one step.</source>
        <translation>Korrigiert Helligkeit, Kontrast und Farben in einem Schritt.</translation>
    </message>
    <message>
        <source>Count</source>
        <translation>Anzahl</translation>
    </message>
    <message>
        <source>Covers the picture with random grain.</source>
        <translation>Überzieht das Bild mit zufälligem Korn.</translation>
    </message>
    <message>
        <source>Crackle precision</source>
        <translation>Knistergenauigkeit</translation>
    </message>
    <message>
        <source>Cupid</source>
        <translation>Amor</translation>
    </message>
    <message>
        <source>Curvature</source>
        <translation>Krümmung</translation>
    </message>
    <message>
        <source>Cutoff frequency</source>
        <translation>Grenzfrequenz</translation>
    </message>
    <message>
        <source>Cuts the background out of the picture with a trained model.</source>
        <translation>Schneidet den Hintergrund mit einem trainierten Modell aus dem Bild.</translation>
    </message>
    <message>
        <source>Dance</source>
        <translation>Dance</translation>
    </message>
    <message>
        <source>Darkens or tints the rim of the picture.</source>
        <translation>Dunkelt den Bildrand ab oder tönt ihn.</translation>
    </message>
    <message>
        <source>Darkens the corners of the picture</source>
        <translation>Dunkelt die Bildecken ab</translation>
    </message>
    <message>
        <source>Darkens the picture by burning its colours into each other.</source>
        <translation>Dunkelt das Bild ab, indem die Farben ineinander einbrennen.</translation>
    </message>
    <message>
        <source>Deep</source>
        <translation>Tief</translation>
    </message>
    <message>
        <source>Deep and airy</source>
        <translation>Tief und luftig</translation>
    </message>
    <message>
        <source>Delay</source>
        <translation>Verzögerung</translation>
    </message>
    <message>
        <source>Depth</source>
        <translation>Tiefe</translation>
    </message>
    <message>
        <source>Detection</source>
        <translation>Pegelerkennung</translation>
    </message>
    <message>
        <source>Detector 0</source>
        <translation>Detektor 0</translation>
    </message>
    <message>
        <source>Detector 1</source>
        <translation>Detektor 1</translation>
    </message>
    <message>
        <source>Diamond</source>
        <translation>Karo</translation>
    </message>
    <message>
        <source>Difference between light and dark; flatter below 0</source>
        <translation>Unterschied zwischen Hell und Dunkel; unter 0 flacher</translation>
    </message>
    <message>
        <source>Direction</source>
        <translation>Richtung</translation>
    </message>
    <message>
        <source>Direction 0</source>
        <translation>Richtung 0</translation>
    </message>
    <message>
        <source>Direction 1</source>
        <translation>Richtung 1</translation>
    </message>
    <message>
        <source>Disc</source>
        <translation>Scheibe</translation>
    </message>
    <message>
        <source>Distorts the picture like the poor signal of a surveillance camera.</source>
        <translation>Verzerrt das Bild wie das schlechte Signal einer Überwachungskamera.</translation>
    </message>
    <message>
        <source>Disturbs the picture like a worn video tape.</source>
        <translation>Stört das Bild wie ein abgenutztes Videoband.</translation>
    </message>
    <message>
        <source>Dot size</source>
        <translation>Punktgröße</translation>
    </message>
    <message>
        <source>Draws the edge of the frame</source>
        <translation>Zeichnet den Rand des Rahmens</translation>
    </message>
    <message>
        <source>Draws the picture with a shader file in the Interactive Shader Format.</source>
        <translation>Zeichnet das Bild mit einer Shader-Datei im Interactive Shader Format.</translation>
    </message>
    <message>
        <source>Draws the picture with a shader from a file, which can use a second picture.</source>
        <translation>Zeichnet das Bild mit einem Shader aus einer Datei, der ein zweites Bild verwenden kann.</translation>
    </message>
    <message>
        <source>Drive</source>
        <translation>Übersteuerung</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>Dauer</translation>
    </message>
    <message>
        <source>Edge hardness</source>
        <translation>Kantenhärte</translation>
    </message>
    <message>
        <source>Effects</source>
        <translation>Effekte</translation>
    </message>
    <message>
        <source>Electronic</source>
        <translation>Elektronisch</translation>
    </message>
    <message>
        <source>Ellipse</source>
        <translation>Ellipse</translation>
    </message>
    <message>
        <source>Envelope</source>
        <translation>Briefumschlag</translation>
    </message>
    <message>
        <source>Evens out the volume by turning down what is louder than the threshold.</source>
        <translation>Gleicht die Lautstärke aus, indem alles oberhalb des Schwellenwerts leiser wird.</translation>
    </message>
    <message>
        <source>Exchanges the colours of the picture for one.</source>
        <translation>Tauscht die Farben des Bildes gegen eine einzige.</translation>
    </message>
    <message>
        <source>Faint black</source>
        <translation>Schwarz, schwach</translation>
    </message>
    <message>
        <source>Faint black, mode 4</source>
        <translation>Schwarz, schwach, Modus 4</translation>
    </message>
    <message>
        <source>Faint black, mode 5</source>
        <translation>Schwarz, schwach, Modus 5</translation>
    </message>
    <message>
        <source>Faint pink</source>
        <translation>Rosa, schwach</translation>
    </message>
    <message>
        <source>Feedback</source>
        <translation>Rückkopplung</translation>
    </message>
    <message>
        <source>File of the trained model</source>
        <translation>Datei des trainierten Modells</translation>
    </message>
    <message>
        <source>Fill</source>
        <translation>Füllung</translation>
    </message>
    <message>
        <source>Fills the empty sides beside a video that was shot upright.</source>
        <translation>Füllt die leeren Seiten neben einem hochkant gefilmten Video.</translation>
    </message>
    <message>
        <source>Film</source>
        <translation>Film</translation>
    </message>
    <message>
        <source>Film 0</source>
        <translation>Film 0</translation>
    </message>
    <message>
        <source>Film 1</source>
        <translation>Film 1</translation>
    </message>
    <message>
        <source>Film 2</source>
        <translation>Film 2</translation>
    </message>
    <message>
        <source>Film 3</source>
        <translation>Film 3</translation>
    </message>
    <message>
        <source>First half</source>
        <translation>Erste Hälfte</translation>
    </message>
    <message>
        <source>Flat</source>
        <translation>Linear</translation>
    </message>
    <message>
        <source>Flower</source>
        <translation>Blume</translation>
    </message>
    <message>
        <source>Form of the framed area</source>
        <translation>Umriss des eingerahmten Bereichs</translation>
    </message>
    <message>
        <source>Forward voice</source>
        <translation>Stimme im Vordergrund</translation>
    </message>
    <message>
        <source>Frames that hide their inside, each in its own way</source>
        <translation>Rahmen, die ihr Inneres verbergen, jeder auf seine Art</translation>
    </message>
    <message>
        <source>Frames the picture with the perforated edges of a film.</source>
        <translation>Rahmt das Bild mit den perforierten Rändern eines Films.</translation>
    </message>
    <message>
        <source>Frames whose inside stays as it is</source>
        <translation>Rahmen, deren Inneres unverändert bleibt</translation>
    </message>
    <message>
        <source>Frequency</source>
        <translation>Frequenz</translation>
    </message>
    <message>
        <source>Further below 0 bends the picture more; the stock goes down to -0.12</source>
        <translation>Weiter unter 0 krümmt sich das Bild stärker; die Vorlagen gehen bis -0,12</translation>
    </message>
    <message>
        <source>Gain</source>
        <translation>Verstärkung</translation>
    </message>
    <message>
        <source>Gamma</source>
        <translation>Gamma</translation>
    </message>
    <message>
        <source>Ghost</source>
        <translation>Gespenst</translation>
    </message>
    <message>
        <source>Gift box</source>
        <translation>Geschenk</translation>
    </message>
    <message>
        <source>Gives a pale picture stronger colours.</source>
        <translation>Gibt einem blassen Bild kräftigere Farben.</translation>
    </message>
    <message>
        <source>Gives the picture one of the ready-made looks.</source>
        <translation>Gibt dem Bild einen der fertigen Looks.</translation>
    </message>
    <message>
        <source>Gives the picture the colours of an old film.</source>
        <translation>Gibt dem Bild die Farben eines alten Films.</translation>
    </message>
    <message>
        <source>Grain</source>
        <translation>Korn</translation>
    </message>
    <message>
        <source>Greener above 0, closer to magenta below</source>
        <translation>Über 0 grüner, darunter mehr Magenta</translation>
    </message>
    <message>
        <source>Groove</source>
        <translation>Groove</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>Gruppe</translation>
    </message>
    <message>
        <source>Grows the dark or the bright parts of the picture.</source>
        <translation>Lässt die dunklen oder die hellen Bildteile wachsen.</translation>
    </message>
    <message>
        <source>Half of the height that the mirror shows</source>
        <translation>Hälfte der Bildhöhe, die der Spiegel zeigt</translation>
    </message>
    <message>
        <source>Half of the width that the mirror shows</source>
        <translation>Hälfte der Bildbreite, die der Spiegel zeigt</translation>
    </message>
    <message>
        <source>Heart</source>
        <translation>Herz</translation>
    </message>
    <message>
        <source>Height of a level line, from 0 at the top to 1 at the bottom</source>
        <translation>Höhe einer waagerechten Linie, von 0 am oberen bis 1 am unteren Rand</translation>
    </message>
    <message>
        <source>Hidden areas</source>
        <translation>Verborgene Bereiche</translation>
    </message>
    <message>
        <source>Hides the picture inside the frame.</source>
        <translation>Verbirgt das Bild im Rahmen.</translation>
    </message>
    <message>
        <source>Higher adds more noise; the stock uses 0.05 to 0.15</source>
        <translation>Höhere Werte fügen mehr Rauschen hinzu; die Vorlagen verwenden 0,05 bis 0,15</translation>
    </message>
    <message>
        <source>Higher adds more traces of the projector&apos;s rollers; the stock goes up to 20</source>
        <translation>Höhere Werte ergeben mehr Spuren der Projektorrollen; die Vorlagen gehen bis 20</translation>
    </message>
    <message>
        <source>Higher also finds fainter outlines; the stock uses 0.6 to 1</source>
        <translation>Höhere Werte finden auch schwächere Umrisse; die Vorlagen verwenden 0,6 bis 1</translation>
    </message>
    <message>
        <source>Higher also keeps colours that differ more from the chosen one; the stock uses 40 to 80</source>
        <translation>Höhere Werte behalten auch Farben, die stärker von der gewählten abweichen; die Vorlagen verwenden 40 bis 80</translation>
    </message>
    <message>
        <source>Higher also lets more distant frequencies through; the stock uses 0.8 to 1.2 octaves</source>
        <translation>Höhere Werte lassen auch weiter entfernte Frequenzen durch; die Vorlagen verwenden 0,8 bis 1,2 Oktaven</translation>
    </message>
    <message>
        <source>Higher also removes colours that differ more from the key colour; the stock goes up to 100</source>
        <translation>Höhere Werte entfernen auch Farben, die stärker von der Schlüsselfarbe abweichen; die Vorlagen gehen bis 100</translation>
    </message>
    <message>
        <source>Higher also silences louder sounds; the stock uses -54 to -18.1 dB</source>
        <translation>Höhere Werte dämpfen auch lautere Töne; die Vorlagen verwenden -54 bis -18,1 dB</translation>
    </message>
    <message>
        <source>Higher bends the pane more; the stock uses 0.05 to 0.1</source>
        <translation>Höhere Werte krümmen die Scheibe stärker; die Vorlagen verwenden 0,05 bis 0,1</translation>
    </message>
    <message>
        <source>Higher bends the picture more all the time; the stock uses 0.15 to 0.3</source>
        <translation>Höhere Werte verbiegen das Bild durchgehend stärker; die Vorlagen verwenden 0,15 bis 0,3</translation>
    </message>
    <message>
        <source>Higher blurs the edge of the frame more; the stock goes up to 0.2</source>
        <translation>Höhere Werte machen den Rand des Rahmens weicher; die Vorlagen gehen bis 0,2</translation>
    </message>
    <message>
        <source>Higher blurs the edges of the highlighted areas more; the stock goes up to 0.5</source>
        <translation>Höhere Werte machen die Ränder der hervorgehobenen Bereiche weicher; die Vorlagen gehen bis 0,5</translation>
    </message>
    <message>
        <source>Higher damages the film more; the stock goes up to 40</source>
        <translation>Höhere Werte beschädigen den Film stärker; die Vorlagen gehen bis 40</translation>
    </message>
    <message>
        <source>Higher displaces the picture further; the stock uses 0.05 to 0.12</source>
        <translation>Höhere Werte verschieben das Bild weiter; die Vorlagen verwenden 0,05 bis 0,12</translation>
    </message>
    <message>
        <source>Higher drives the sound harder; the stock uses 0.1 to 0.45</source>
        <translation>Höhere Werte übersteuern den Ton stärker; die Vorlagen verwenden 0,1 bis 0,45</translation>
    </message>
    <message>
        <source>Higher enlarges the picture; the stock uses 0.3 to 0.5</source>
        <translation>Höhere Werte vergrößern das Bild; die Vorlagen verwenden 0,3 bis 0,5</translation>
    </message>
    <message>
        <source>Higher feeds more of the result back in; the stock goes up to 0.5</source>
        <translation>Höhere Werte führen mehr vom Ergebnis zurück; die Vorlagen gehen bis 0,5</translation>
    </message>
    <message>
        <source>Higher finds finer outlines and takes longer; the stock uses 256 and 512 px</source>
        <translation>Höhere Werte finden feinere Umrisse und dauern länger; die Vorlagen verwenden 256 und 512 px</translation>
    </message>
    <message>
        <source>Higher jolts the picture harder from time to time; the stock uses 1.4 to 2.6</source>
        <translation>Höhere Werte lassen das Bild ab und zu stärker zucken; die Vorlagen verwenden 1,4 bis 2,6</translation>
    </message>
    <message>
        <source>Higher keeps more of the high sounds; the bands lie at 32 to 16384 Hz</source>
        <translation>Höhere Werte behalten mehr von den hohen Tönen; die Bänder liegen bei 32 bis 16384 Hz</translation>
    </message>
    <message>
        <source>Higher lays more bands over the picture; the stock uses 12 to 32</source>
        <translation>Höhere Werte legen mehr Bänder über das Bild; die Vorlagen verwenden 12 bis 32</translation>
    </message>
    <message>
        <source>Higher leaves more and finer steps; the stock uses 3 to 12</source>
        <translation>Höhere Werte lassen mehr und feinere Stufen; die Vorlagen verwenden 3 bis 12</translation>
    </message>
    <message>
        <source>Higher leaves more of the sound as it is; the stock uses -28 to -3 dB</source>
        <translation>Höhere Werte lassen mehr vom Ton unverändert; die Vorlagen verwenden -28 bis -3 dB</translation>
    </message>
    <message>
        <source>Higher lets each movement last longer; the stock goes up to 0.6</source>
        <translation>Bei höheren Werten hält jede Bewegung länger an; die Vorlagen gehen bis 0,6</translation>
    </message>
    <message>
        <source>Higher lets more of the background show through</source>
        <translation>Höhere Werte lassen mehr vom Hintergrund durchscheinen</translation>
    </message>
    <message>
        <source>Higher lets more of the other colours show through</source>
        <translation>Höhere Werte lassen mehr von den anderen Farben durchscheinen</translation>
    </message>
    <message>
        <source>Higher lets the copy come later; the stock uses 0 to 1 ms</source>
        <translation>Höhere Werte lassen die Kopie später kommen; die Vorlagen verwenden 0 bis 1 ms</translation>
    </message>
    <message>
        <source>Higher lets the delay wander faster; the stock uses 0.2 to 0.5</source>
        <translation>Höhere Werte lassen die Verzögerung schneller wandern; die Vorlagen verwenden 0,2 bis 0,5</translation>
    </message>
    <message>
        <source>Higher lets the delay wander further; the stock uses 2 to 6 ms</source>
        <translation>Höhere Werte lassen die Verzögerung weiter wandern; die Vorlagen verwenden 2 bis 6 ms</translation>
    </message>
    <message>
        <source>Higher lets the repeat come later; the stock uses 90 to 1500</source>
        <translation>Höhere Werte lassen die Wiederholung später kommen; die Vorlagen verwenden 90 bis 1500</translation>
    </message>
    <message>
        <source>Higher makes a smoother transition around the threshold; the stock uses 2.83</source>
        <translation>Höhere Werte machen den Übergang um den Schwellenwert weicher; die Vorlagen verwenden 2,83</translation>
    </message>
    <message>
        <source>Higher makes contours stand out more; the stock uses 0.05 to 0.1</source>
        <translation>Höhere Werte heben Konturen stärker hervor; die Vorlagen verwenden 0,05 bis 0,1</translation>
    </message>
    <message>
        <source>Higher makes larger dots; 0.001 by default, the stock goes up to 0.008</source>
        <translation>Höhere Werte machen die Punkte größer; Standard ist 0,001, die Vorlagen gehen bis 0,008</translation>
    </message>
    <message>
        <source>Higher makes larger squares, relative to the picture; the stock uses 0.06 to 0.1</source>
        <translation>Höhere Werte ergeben größere Quadrate, bezogen auf das Bild; die Vorlagen verwenden 0,06 bis 0,1</translation>
    </message>
    <message>
        <source>Higher makes more tiles from left to right; the stock uses 10 to 96</source>
        <translation>Höhere Werte ergeben mehr Kacheln von links nach rechts; die Vorlagen verwenden 10 bis 96</translation>
    </message>
    <message>
        <source>Higher makes more tiles from top to bottom; the stock uses 9 to 54</source>
        <translation>Höhere Werte ergeben mehr Kacheln von oben nach unten; die Vorlagen verwenden 9 bis 54</translation>
    </message>
    <message>
        <source>Higher makes the bands stand out more; the stock uses 0.85 to 0.999</source>
        <translation>Höhere Werte heben die Bänder stärker hervor; die Vorlagen verwenden 0,85 bis 0,999</translation>
    </message>
    <message>
        <source>Higher makes the disturbance softer; the stock uses 0.07 to 0.12</source>
        <translation>Höhere Werte machen die Störung weicher; die Vorlagen verwenden 0,07 bis 0,12</translation>
    </message>
    <message>
        <source>Higher makes the edges of what remains harder</source>
        <translation>Höhere Werte machen die Kanten des verbleibenden Bildes härter</translation>
    </message>
    <message>
        <source>Higher makes the picture coarser; the stock goes up to 60</source>
        <translation>Höhere Werte machen das Bild gröber; die Vorlagen gehen bis 60</translation>
    </message>
    <message>
        <source>Higher makes the repeat louder; 1 is as loud as the voice</source>
        <translation>Höhere Werte machen die Wiederholung lauter; 1 ist so laut wie die Stimme</translation>
    </message>
    <message>
        <source>Higher makes the result brighter; the stock uses 0.5 to 0.7</source>
        <translation>Höhere Werte machen das Ergebnis heller; die Vorlagen verwenden 0,5 bis 0,7</translation>
    </message>
    <message>
        <source>Higher makes the result louder; 1 changes nothing</source>
        <translation>Höhere Werte machen das Ergebnis lauter; 1 ändert nichts</translation>
    </message>
    <message>
        <source>Higher makes the result louder; compressors of the stock go up to 9 dB</source>
        <translation>Höhere Werte machen das Ergebnis lauter; Vorlagen für Kompressoren gehen bis 9 dB</translation>
    </message>
    <message>
        <source>Higher makes the room brighter, up to half the sample rate; the stock uses 6500 to 16000 Hz</source>
        <translation>Höhere Werte machen den Raum heller, höchstens bis zur halben Abtastrate; die Vorlagen verwenden 6500 bis 16000 Hz</translation>
    </message>
    <message>
        <source>Higher makes the room larger and its answer longer; the stock uses 350 to 4500 ms</source>
        <translation>Höhere Werte machen den Raum größer und seinen Nachhall länger; die Vorlagen verwenden 350 bis 4500 ms</translation>
    </message>
    <message>
        <source>Higher makes the sound louder before it is processed</source>
        <translation>Höhere Werte machen den Ton vor der Bearbeitung lauter</translation>
    </message>
    <message>
        <source>Higher makes the stripes broader; the stock uses 0.35 to 0.7</source>
        <translation>Höhere Werte machen die Streifen breiter; die Vorlagen verwenden 0,35 bis 0,7</translation>
    </message>
    <message>
        <source>Higher makes the strokes broader; the stock uses 5 to 12</source>
        <translation>Höhere Werte machen die Striche breiter; die Vorlagen verwenden 5 bis 12</translation>
    </message>
    <message>
        <source>Higher makes the strokes coarser; the stock uses 10</source>
        <translation>Höhere Werte machen die Striche gröber; die Vorlagen verwenden 10</translation>
    </message>
    <message>
        <source>Higher makes the strokes larger; the stock uses 10</source>
        <translation>Höhere Werte machen die Striche größer; die Vorlagen verwenden 10</translation>
    </message>
    <message>
        <source>Higher makes the voice louder before it is repeated; 1 changes nothing</source>
        <translation>Höhere Werte machen die Stimme vor der Wiederholung lauter; 1 ändert nichts</translation>
    </message>
    <message>
        <source>Higher moves the channels further apart; the stock uses 25</source>
        <translation>Höhere Werte rücken die Kanäle weiter auseinander; die Vorlagen verwenden 25</translation>
    </message>
    <message>
        <source>Higher moves the disturbance faster; the stock uses 0.07 to 0.15</source>
        <translation>Höhere Werte bewegen die Störung schneller; die Vorlagen verwenden 0,07 bis 0,15</translation>
    </message>
    <message>
        <source>Higher moves the echoes faster; the stock goes up to 0.05</source>
        <translation>Höhere Werte bewegen die Echos schneller; die Vorlagen gehen bis 0,05</translation>
    </message>
    <message>
        <source>Higher moves the echoes further; the stock goes up to 0.07</source>
        <translation>Höhere Werte bewegen die Echos weiter; die Vorlagen gehen bis 0,07</translation>
    </message>
    <message>
        <source>Higher reacts more slowly; 0 counts as 0.01 ms, gates and compressors of the stock use 1 to 30 ms</source>
        <translation>Höhere Werte sprechen langsamer an; 0 zählt als 0,01 ms, Vorlagen für Gates und Kompressoren verwenden 1 bis 30 ms</translation>
    </message>
    <message>
        <source>Higher recovers more slowly; 0 counts as 0.01 ms, gates and compressors of the stock use 60 to 300 ms</source>
        <translation>Höhere Werte stellen sich langsamer zurück; 0 zählt als 0,01 ms, Vorlagen für Gates und Kompressoren verwenden 60 bis 300 ms</translation>
    </message>
    <message>
        <source>Higher removes more noise, from 3 % on</source>
        <translation>Höhere Werte entfernen mehr Rauschen, ab 3 %</translation>
    </message>
    <message>
        <source>Higher removes more of the low sounds; the bands lie at 32 to 16384 Hz</source>
        <translation>Höhere Werte entfernen mehr von den tiefen Tönen; die Bänder liegen bei 32 bis 16384 Hz</translation>
    </message>
    <message>
        <source>Higher scatters the pixels further; the stock uses 0.05 to 0.12</source>
        <translation>Höhere Werte streuen die Pixel weiter; die Vorlagen verwenden 0,05 bis 0,12</translation>
    </message>
    <message>
        <source>Higher shakes faster; the stock goes up to 7</source>
        <translation>Höhere Werte lassen das Bild schneller wackeln; die Vorlagen gehen bis 7</translation>
    </message>
    <message>
        <source>Higher sounds more like a machine; the stock uses 0.7 to 1</source>
        <translation>Höhere Werte klingen mehr nach Maschine; die Vorlagen verwenden 0,7 bis 1</translation>
    </message>
    <message>
        <source>Higher tolerates a noisier background; counted in 256ths</source>
        <translation>Höhere Werte dulden einen stärker verrauschten Hintergrund; in Schritten von 1/256</translation>
    </message>
    <message>
        <source>Higher tolerates more noise in the picture; counted in 256ths</source>
        <translation>Höhere Werte dulden mehr Bildrauschen; in Schritten von 1/256</translation>
    </message>
    <message>
        <source>Higher trembles faster; the stock uses 5 to 15 Hz</source>
        <translation>Höhere Werte zittern schneller; die Vorlagen verwenden 5 bis 15 Hz</translation>
    </message>
    <message>
        <source>Higher turns loud sounds down further; the stock uses 1.8 to 20</source>
        <translation>Höhere Werte senken laute Töne weiter ab; die Vorlagen verwenden 1,8 bis 20</translation>
    </message>
    <message>
        <source>Higher turns quiet sounds down further; the stock uses 2 to 6</source>
        <translation>Höhere Werte senken leise Töne weiter ab; die Vorlagen verwenden 2 bis 6</translation>
    </message>
    <message>
        <source>Higher turns the whole picture faster; the stock goes up to 0.25</source>
        <translation>Höhere Werte drehen das ganze Bild schneller; die Vorlagen gehen bis 0,25</translation>
    </message>
    <message>
        <source>Higher twists the middle faster; the stock goes up to 0.5</source>
        <translation>Höhere Werte verdrehen die Mitte schneller; die Vorlagen gehen bis 0,5</translation>
    </message>
    <message>
        <source>Higher voice above 1, lower below; the stock uses 0.7 to 1.9</source>
        <translation>Höhere Stimme über 1, tiefere darunter; die Vorlagen verwenden 0,7 bis 1,9</translation>
    </message>
    <message>
        <source>Higher voice above 1, lower below; the stock uses 0.75 to 1.1</source>
        <translation>Höhere Stimme über 1, tiefere darunter; die Vorlagen verwenden 0,75 bis 1,1</translation>
    </message>
    <message>
        <source>Highlighted areas</source>
        <translation>Hervorgehobene Bereiche</translation>
    </message>
    <message>
        <source>Highlights</source>
        <translation>Lichter</translation>
    </message>
    <message>
        <source>Highlights or hides areas of the picture. The areas can follow a motion track.</source>
        <translation>Hebt Bereiche des Bildes hervor oder verbirgt sie. Die Bereiche können einer Bewegungsspur folgen.</translation>
    </message>
    <message>
        <source>Horizontal</source>
        <translation>Horizontal</translation>
    </message>
    <message>
        <source>Horizontal repeat</source>
        <translation>Horizontale Wiederholung</translation>
    </message>
    <message>
        <source>Horizontal shift</source>
        <translation>Horizontale Verschiebung</translation>
    </message>
    <message>
        <source>Hot-air balloon</source>
        <translation>Heißluftballon</translation>
    </message>
    <message>
        <source>How far the middle is twisted at the beginning; the stock goes up to 0.4</source>
        <translation>Wie weit die Mitte zu Beginn verdreht ist; die Vorlagen gehen bis 0,4</translation>
    </message>
    <message>
        <source>How far the picture moves sideways; the stock goes up to 0.03</source>
        <translation>Wie weit sich das Bild seitwärts bewegt; die Vorlagen gehen bis 0,03</translation>
    </message>
    <message>
        <source>How far the picture moves up and down; the stock goes up to 0.04</source>
        <translation>Wie weit sich das Bild auf und ab bewegt; die Vorlagen gehen bis 0,04</translation>
    </message>
    <message>
        <source>How far the picture turns; the stock goes up to 1.5</source>
        <translation>Wie weit sich das Bild dreht; die Vorlagen gehen bis 1,5</translation>
    </message>
    <message>
        <source>How far the whole picture is turned at the beginning</source>
        <translation>Wie weit das ganze Bild zu Beginn gedreht ist</translation>
    </message>
    <message>
        <source>How long the effect lasts</source>
        <translation>Dauer des Effekts</translation>
    </message>
    <message>
        <source>How much grain is added; the stock uses 0.12 to 1</source>
        <translation>Wie viel Korn hinzukommt; die Vorlagen verwenden 0,12 bis 1</translation>
    </message>
    <message>
        <source>How much the rest is lowered; the stock uses 0 to 60 dB</source>
        <translation>Wie stark der Rest abgesenkt wird; die Vorlagen verwenden 0 bis 60 dB</translation>
    </message>
    <message>
        <source>How much the rest is lowered; the stock uses 40 to 60 dB</source>
        <translation>Wie stark der Rest abgesenkt wird; die Vorlagen verwenden 40 bis 60 dB</translation>
    </message>
    <message>
        <source>How much the rest is lowered; the stock uses 50 to 60 dB</source>
        <translation>Wie stark der Rest abgesenkt wird; die Vorlagen verwenden 50 bis 60 dB</translation>
    </message>
    <message>
        <source>How much what is let through is raised; the stock uses 0 to 8 dB</source>
        <translation>Wie stark das Durchgelassene angehoben wird; die Vorlagen verwenden 0 bis 8 dB</translation>
    </message>
    <message>
        <source>How much what is let through is raised; the stock uses 4 to 10 dB</source>
        <translation>Wie stark das Durchgelassene angehoben wird; die Vorlagen verwenden 4 bis 10 dB</translation>
    </message>
    <message>
        <source>How much what is let through is raised; the stock uses 6 to 10 dB</source>
        <translation>Wie stark das Durchgelassene angehoben wird; die Vorlagen verwenden 6 bis 10 dB</translation>
    </message>
    <message>
        <source>How outlines are found; any other number leaves all settings to the render engine</source>
        <translation>Wie Umrisse gefunden werden; jede andere Zahl überlässt alle Einstellungen der Render-Engine</translation>
    </message>
    <message>
        <source>How soft the picture becomes; full strength is 20, not 1</source>
        <translation>Wie weich das Bild wird; volle Stärke ist 20, nicht 1</translation>
    </message>
    <message>
        <source>How strong the effect is, where the shader supports it; 1 is full strength</source>
        <translation>Stärke des Effekts, sofern der Shader sie unterstützt; 1 ist volle Stärke</translation>
    </message>
    <message>
        <source>How strong the effect is; 0 is none, 1 is full strength</source>
        <translation>Stärke des Effekts; 0 ist ohne Wirkung, 1 ist volle Stärke</translation>
    </message>
    <message>
        <source>How the channels act on each other</source>
        <translation>Wie die Kanäle aufeinander wirken</translation>
    </message>
    <message>
        <source>How the crackle sounds; the stock uses 6 to 9</source>
        <translation>Wie das Knistern klingt; die Vorlagen verwenden 6 bis 9</translation>
    </message>
    <message>
        <source>How the delay wanders</source>
        <translation>Wie die Verzögerung wandert</translation>
    </message>
    <message>
        <source>How the inside is hidden</source>
        <translation>Art, in der das Innere verborgen wird</translation>
    </message>
    <message>
        <source>How the level of the sound is measured</source>
        <translation>Wie der Pegel des Tons gemessen wird</translation>
    </message>
    <message>
        <source>How the pattern recurs across the picture; the stock uses 0.08 to 0.25</source>
        <translation>Wie sich das Muster über die Breite wiederholt; die Vorlagen verwenden 0,08 bis 0,25</translation>
    </message>
    <message>
        <source>How the pattern recurs down the picture; the stock uses 0.25 to 1</source>
        <translation>Wie sich das Muster über die Höhe wiederholt; die Vorlagen verwenden 0,25 bis 1</translation>
    </message>
    <message>
        <source>How the sound is distorted</source>
        <translation>Wie der Ton verzerrt wird</translation>
    </message>
    <message>
        <source>How the two pictures are mixed</source>
        <translation>Art, in der die beiden Bilder gemischt werden</translation>
    </message>
    <message>
        <source>How values between the samples are found</source>
        <translation>Wie Werte zwischen den Abtastpunkten bestimmt werden</translation>
    </message>
    <message>
        <source>Hue</source>
        <translation>Farbton</translation>
    </message>
    <message>
        <source>Hue tolerance</source>
        <translation>Farbtontoleranz</translation>
    </message>
    <message>
        <source>Identifier</source>
        <translation>Bezeichner</translation>
    </message>
    <message>
        <source>Identifier of the track to follow; empty for a frame that stays in place</source>
        <translation>Bezeichner der Spur, der der Rahmen folgt; leer für einen festen Rahmen</translation>
    </message>
    <message>
        <source>Image</source>
        <translation type="vanished">Bild</translation>
    </message>
    <message>
        <source>Improves the sound of a voice with several effects at once.</source>
        <translation>Verbessert den Klang einer Stimme mit mehreren Effekten zugleich.</translation>
    </message>
    <message>
        <source>Initial rotation</source>
        <translation>Anfangsdrehung</translation>
    </message>
    <message>
        <source>Initial twist</source>
        <translation>Anfangsverdrehung</translation>
    </message>
    <message>
        <source>Ink</source>
        <translation>Druckfarbe</translation>
    </message>
    <message>
        <source>Input gain</source>
        <translation>Eingangsverstärkung</translation>
    </message>
    <message>
        <source>Input level</source>
        <translation>Eingangspegel</translation>
    </message>
    <message>
        <source>Inputs</source>
        <translation>Eingaben</translation>
    </message>
    <message>
        <source>Intensity</source>
        <translation>Intensität</translation>
    </message>
    <message>
        <source>Interface version</source>
        <translation>Schnittstellenversion</translation>
    </message>
    <message>
        <source>Interpolation</source>
        <translation>Interpolation</translation>
    </message>
    <message>
        <source>Interpolation 0</source>
        <translation>Interpolation 0</translation>
    </message>
    <message>
        <source>Interpolation 1</source>
        <translation>Interpolation 1</translation>
    </message>
    <message>
        <source>Jazz club</source>
        <translation>Jazzclub</translation>
    </message>
    <message>
        <source>Keeps a band of the picture sharp and softens what lies above and below, as in pictures of miniatures.</source>
        <translation>Hält einen Streifen des Bildes scharf und zeichnet weich, was darüber und darunter liegt, wie bei Aufnahmen von Modellen.</translation>
    </message>
    <message>
        <source>Keeps one colour and removes the others.</source>
        <translation>Behält eine Farbe und entfernt die anderen.</translation>
    </message>
    <message>
        <source>Keeps the picture inside the frame as it is, while the rest becomes background.</source>
        <translation>Lässt das Bild im Rahmen, wie es ist; der Rest wird zum Hintergrund.</translation>
    </message>
    <message>
        <source>Key colour</source>
        <translation>Schlüsselfarbe</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>Art</translation>
    </message>
    <message>
        <source>Kind 0</source>
        <translation>Art 0</translation>
    </message>
    <message>
        <source>Kind 1</source>
        <translation>Art 1</translation>
    </message>
    <message>
        <source>Kind 2</source>
        <translation>Art 2</translation>
    </message>
    <message>
        <source>Kind 3</source>
        <translation>Art 3</translation>
    </message>
    <message>
        <source>Kind 4</source>
        <translation>Art 4</translation>
    </message>
    <message>
        <source>Kind of noise</source>
        <translation>Rauschart</translation>
    </message>
    <message>
        <source>Knee</source>
        <translation>Knie</translation>
    </message>
    <message>
        <source>Lays a picture over the clip, such as a frame or a play of shadows.</source>
        <translation>Legt ein Bild über den Clip, etwa einen Rahmen oder ein Schattenspiel.</translation>
    </message>
    <message>
        <source>Lays parallel bands over the picture, like blinds.</source>
        <translation>Legt parallele Bänder wie eine Jalousie über das Bild.</translation>
    </message>
    <message>
        <source>Leaf</source>
        <translation>Blatt</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>Länge</translation>
    </message>
    <message>
        <source>Less bass</source>
        <translation>Weniger Bässe</translation>
    </message>
    <message>
        <source>Less treble</source>
        <translation>Weniger Höhen</translation>
    </message>
    <message>
        <source>Lets many copies of a small image fly through the picture.</source>
        <translation>Lässt viele Kopien eines kleinen Bildes durch das Bild fliegen.</translation>
    </message>
    <message>
        <source>Level</source>
        <translation>Pegel</translation>
    </message>
    <message>
        <source>Link 0</source>
        <translation>Kopplung 0</translation>
    </message>
    <message>
        <source>Link 1</source>
        <translation>Kopplung 1</translation>
    </message>
    <message>
        <source>Louder above 0, quieter below; the presets use -20 to 8.5 dB</source>
        <translation>Lauter über 0, leiser darunter; die Vorlagen verwenden -20 bis 8,5 dB</translation>
    </message>
    <message>
        <source>Lounge</source>
        <translation>Lounge</translation>
    </message>
    <message>
        <source>Lower frequency</source>
        <translation>Untere Frequenz</translation>
    </message>
    <message>
        <source>Lower line, a</source>
        <translation>Untere Linie, a</translation>
    </message>
    <message>
        <source>Lower line, b</source>
        <translation>Untere Linie, b</translation>
    </message>
    <message>
        <source>Lower line, c</source>
        <translation>Untere Linie, c</translation>
    </message>
    <message>
        <source>Makes a voice higher or lower.</source>
        <translation>Macht eine Stimme höher oder tiefer.</translation>
    </message>
    <message>
        <source>Makes a voice sound as if it came from a receiver, with crackle and noise.</source>
        <translation>Lässt eine Stimme wie aus einem Funkempfänger klingen, mit Knistern und Rauschen.</translation>
    </message>
    <message>
        <source>Makes a voice sound as if it came over the telephone.</source>
        <translation>Lässt eine Stimme wie am Telefon klingen.</translation>
    </message>
    <message>
        <source>Makes a voice sound as if it came through a wall.</source>
        <translation>Lässt eine Stimme wie durch eine Wand klingen.</translation>
    </message>
    <message>
        <source>Makes a voice sound like a machine.</source>
        <translation>Lässt eine Stimme wie eine Maschine klingen.</translation>
    </message>
    <message>
        <source>Makes edges and fine detail crisper.</source>
        <translation>Macht Kanten und feine Details schärfer.</translation>
    </message>
    <message>
        <source>Makes one colour transparent, such as the green of a green screen.</source>
        <translation>Macht eine Farbe durchsichtig, etwa das Grün eines Greenscreens.</translation>
    </message>
    <message>
        <source>Makes ranges of the sound louder or quieter, each on its own.</source>
        <translation>Macht einzelne Bereiche des Klangs lauter oder leiser.</translation>
    </message>
    <message>
        <source>Makes the picture jump and tremble</source>
        <translation>Lässt das Bild springen und zittern</translation>
    </message>
    <message>
        <source>Makes the picture unsteady, scratched and grainy, like an old film.</source>
        <translation>Macht das Bild unruhig, verkratzt und körnig wie einen alten Film.</translation>
    </message>
    <message>
        <source>Makes the pitch tremble.</source>
        <translation>Lässt die Tonhöhe zittern.</translation>
    </message>
    <message>
        <source>Makes the sound seem to come from a room.</source>
        <translation>Lässt den Ton wie in einem Raum klingen.</translation>
    </message>
    <message>
        <source>Makes the whole picture lighter or darker</source>
        <translation>Macht das ganze Bild heller oder dunkler</translation>
    </message>
    <message>
        <source>Makes the whole picture transparent, so that what lies below shows through.</source>
        <translation>Macht das ganze Bild durchsichtig, sodass darunter Liegendes durchscheint.</translation>
    </message>
    <message>
        <source>Matrix</source>
        <translation type="vanished">Matrix</translation>
    </message>
    <message>
        <source>Method</source>
        <translation>Verfahren</translation>
    </message>
    <message>
        <source>Method 0</source>
        <translation>Verfahren 0</translation>
    </message>
    <message>
        <source>Method 1</source>
        <translation>Verfahren 1</translation>
    </message>
    <message>
        <source>Mixes all channels down to one.</source>
        <translation>Mischt alle Kanäle auf einen herunter.</translation>
    </message>
    <message>
        <source>Mode 0</source>
        <translation>Modus 0</translation>
    </message>
    <message>
        <source>Mode 1</source>
        <translation>Modus 1</translation>
    </message>
    <message>
        <source>Mode 10</source>
        <translation>Modus 10</translation>
    </message>
    <message>
        <source>Mode 11</source>
        <translation>Modus 11</translation>
    </message>
    <message>
        <source>Mode 12</source>
        <translation>Modus 12</translation>
    </message>
    <message>
        <source>Mode 13</source>
        <translation>Modus 13</translation>
    </message>
    <message>
        <source>Mode 2</source>
        <translation>Modus 2</translation>
    </message>
    <message>
        <source>Mode 3</source>
        <translation>Modus 3</translation>
    </message>
    <message>
        <source>Mode 4</source>
        <translation>Modus 4</translation>
    </message>
    <message>
        <source>Mode 5</source>
        <translation>Modus 5</translation>
    </message>
    <message>
        <source>Mode 6</source>
        <translation>Modus 6</translation>
    </message>
    <message>
        <source>Mode 7</source>
        <translation>Modus 7</translation>
    </message>
    <message>
        <source>Mode 8</source>
        <translation>Modus 8</translation>
    </message>
    <message>
        <source>Mode 9</source>
        <translation>Modus 9</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>Modell</translation>
    </message>
    <message>
        <source>More bass</source>
        <translation>Mehr Bässe</translation>
    </message>
    <message>
        <source>More treble</source>
        <translation>Mehr Höhen</translation>
    </message>
    <message>
        <source>Motion track</source>
        <translation>Bewegungsspur</translation>
    </message>
    <message>
        <source>Name</source>
        <translation type="vanished">Name</translation>
    </message>
    <message>
        <source>Name of an image that the shader uses; may be empty</source>
        <translation>Name eines Bildes, das der Shader verwendet; kann leer sein</translation>
    </message>
    <message>
        <source>Name of the shader file; without one the picture stays as it is</source>
        <translation>Name der Shader-Datei; ohne sie bleibt das Bild, wie es ist</translation>
    </message>
    <message>
        <source>Name that distinguishes this preset from others of the effect</source>
        <translation>Name, der diese Vorlage von anderen desselben Effekts unterscheidet</translation>
    </message>
    <message>
        <source>Name under which the host registers the file</source>
        <translation type="vanished">Name, unter dem das Programm die Datei registriert</translation>
    </message>
    <message>
        <source>Neutral</source>
        <translation>Neutral</translation>
    </message>
    <message>
        <source>Neutral colour</source>
        <translation>Neutrale Farbe</translation>
    </message>
    <message>
        <source>Nine numbers, row by row; the last row moves the picture</source>
        <translation type="vanished">Neun Zahlen, Zeile für Zeile; die letzte Zeile verschiebt das Bild</translation>
    </message>
    <message>
        <source>No file</source>
        <translation type="vanished">Keine Datei</translation>
    </message>
    <message>
        <source>No rumble</source>
        <translation>Ohne Rumpeln</translation>
    </message>
    <message>
        <source>Noise level</source>
        <translation>Rauschpegel</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Keine</translation>
    </message>
    <message>
        <source>Number of terms in the formula of the curve; the stock uses 1 and 2</source>
        <translation>Anzahl der Glieder in der Formel der Kurve; die Vorlagen verwenden 1 und 2</translation>
    </message>
    <message>
        <source>Object</source>
        <translation>Objekt</translation>
    </message>
    <message>
        <source>One band of the equalizer.</source>
        <translation>Ein Band des Equalizers.</translation>
    </message>
    <message>
        <source>One repeat of the voice.</source>
        <translation>Eine Wiederholung der Stimme.</translation>
    </message>
    <message>
        <source>Opacity</source>
        <translation>Deckkraft</translation>
    </message>
    <message>
        <source>Opaque black</source>
        <translation>Schwarz, deckend</translation>
    </message>
    <message>
        <source>Opaque black, mode 4</source>
        <translation>Schwarz, deckend, Modus 4</translation>
    </message>
    <message>
        <source>Orchestra</source>
        <translation>Orchester</translation>
    </message>
    <message>
        <source>Other file</source>
        <translation type="vanished">Andere Datei</translation>
    </message>
    <message>
        <source>Outline</source>
        <translation>Umrandung</translation>
    </message>
    <message>
        <source>Output gain</source>
        <translation>Ausgangsverstärkung</translation>
    </message>
    <message>
        <source>Output level</source>
        <translation>Ausgangspegel</translation>
    </message>
    <message>
        <source>Overdrives the sound until it becomes rough.</source>
        <translation>Übersteuert den Ton, bis er rau klingt.</translation>
    </message>
    <message>
        <source>Paints the picture in strokes.</source>
        <translation>Malt das Bild in Strichen.</translation>
    </message>
    <message>
        <source>Paper</source>
        <translation>Papier</translation>
    </message>
    <message>
        <source>Paper plane</source>
        <translation>Papierflieger</translation>
    </message>
    <message>
        <source>Part of the clip that the effect covers; the whole clip if not set</source>
        <translation>Teil des Clips, auf den der Effekt wirkt; ohne Angabe der ganze Clip</translation>
    </message>
    <message>
        <source>Percussion</source>
        <translation>Schlagwerk</translation>
    </message>
    <message>
        <source>Persistence</source>
        <translation>Persistenz</translation>
    </message>
    <message>
        <source>Phase</source>
        <translation>Phase</translation>
    </message>
    <message>
        <source>Piano</source>
        <translation>Klavier</translation>
    </message>
    <message>
        <source>Pick something in the picture that is white or grey in reality</source>
        <translation>Etwas im Bild wählen, das in Wirklichkeit weiß oder grau ist</translation>
    </message>
    <message>
        <source>Pitch</source>
        <translation>Tonhöhe</translation>
    </message>
    <message>
        <source>Pixel size</source>
        <translation>Pixelgröße</translation>
    </message>
    <message>
        <source>Pixelate</source>
        <translation>Verpixelung</translation>
    </message>
    <message>
        <source>Placement</source>
        <translation>Platzierung</translation>
    </message>
    <message>
        <source>Placement on track</source>
        <translation>Platzierung auf der Spur</translation>
    </message>
    <message>
        <source>Preset</source>
        <translation>Vorlage</translation>
    </message>
    <message>
        <source>Preset 0</source>
        <translation>Vorlage 0</translation>
    </message>
    <message>
        <source>Preset 1</source>
        <translation>Vorlage 1</translation>
    </message>
    <message>
        <source>Preset 10</source>
        <translation>Vorlage 10</translation>
    </message>
    <message>
        <source>Preset 11</source>
        <translation>Vorlage 11</translation>
    </message>
    <message>
        <source>Preset 12</source>
        <translation>Vorlage 12</translation>
    </message>
    <message>
        <source>Preset 13</source>
        <translation>Vorlage 13</translation>
    </message>
    <message>
        <source>Preset 14</source>
        <translation>Vorlage 14</translation>
    </message>
    <message>
        <source>Preset 15</source>
        <translation>Vorlage 15</translation>
    </message>
    <message>
        <source>Preset 16</source>
        <translation>Vorlage 16</translation>
    </message>
    <message>
        <source>Preset 17</source>
        <translation>Vorlage 17</translation>
    </message>
    <message>
        <source>Preset 18</source>
        <translation>Vorlage 18</translation>
    </message>
    <message>
        <source>Preset 19</source>
        <translation>Vorlage 19</translation>
    </message>
    <message>
        <source>Preset 2</source>
        <translation>Vorlage 2</translation>
    </message>
    <message>
        <source>Preset 20</source>
        <translation>Vorlage 20</translation>
    </message>
    <message>
        <source>Preset 21</source>
        <translation>Vorlage 21</translation>
    </message>
    <message>
        <source>Preset 22</source>
        <translation>Vorlage 22</translation>
    </message>
    <message>
        <source>Preset 23</source>
        <translation>Vorlage 23</translation>
    </message>
    <message>
        <source>Preset 24</source>
        <translation>Vorlage 24</translation>
    </message>
    <message>
        <source>Preset 25</source>
        <translation>Vorlage 25</translation>
    </message>
    <message>
        <source>Preset 26</source>
        <translation>Vorlage 26</translation>
    </message>
    <message>
        <source>Preset 27</source>
        <translation>Vorlage 27</translation>
    </message>
    <message>
        <source>Preset 28</source>
        <translation>Vorlage 28</translation>
    </message>
    <message>
        <source>Preset 29</source>
        <translation>Vorlage 29</translation>
    </message>
    <message>
        <source>Preset 3</source>
        <translation>Vorlage 3</translation>
    </message>
    <message>
        <source>Preset 30</source>
        <translation>Vorlage 30</translation>
    </message>
    <message>
        <source>Preset 31</source>
        <translation>Vorlage 31</translation>
    </message>
    <message>
        <source>Preset 32</source>
        <translation>Vorlage 32</translation>
    </message>
    <message>
        <source>Preset 33</source>
        <translation>Vorlage 33</translation>
    </message>
    <message>
        <source>Preset 34</source>
        <translation>Vorlage 34</translation>
    </message>
    <message>
        <source>Preset 35</source>
        <translation>Vorlage 35</translation>
    </message>
    <message>
        <source>Preset 4</source>
        <translation>Vorlage 4</translation>
    </message>
    <message>
        <source>Preset 5</source>
        <translation>Vorlage 5</translation>
    </message>
    <message>
        <source>Preset 6</source>
        <translation>Vorlage 6</translation>
    </message>
    <message>
        <source>Preset 7</source>
        <translation>Vorlage 7</translation>
    </message>
    <message>
        <source>Preset 8</source>
        <translation>Vorlage 8</translation>
    </message>
    <message>
        <source>Preset 9</source>
        <translation>Vorlage 9</translation>
    </message>
    <message>
        <source>Preset name</source>
        <translation>Name der Vorlage</translation>
    </message>
    <message>
        <source>Prints the picture in dots, like a newspaper.</source>
        <translation>Druckt das Bild in Rasterpunkten wie in einer Zeitung.</translation>
    </message>
    <message>
        <source>Probability</source>
        <translation>Wahrscheinlichkeit</translation>
    </message>
    <message>
        <source>Random distortion</source>
        <translation>Zufällige Verzerrung</translation>
    </message>
    <message>
        <source>Range</source>
        <translation>Bereich</translation>
    </message>
    <message>
        <source>Ranges of the sound and how loud they are</source>
        <translation>Klangbereiche und ihre Lautstärke</translation>
    </message>
    <message>
        <source>Ratio</source>
        <translation>Verhältnis</translation>
    </message>
    <message>
        <source>Rectangle</source>
        <translation>Rechteck</translation>
    </message>
    <message>
        <source>Reduces the number of colours, so that smooth shades become steps.</source>
        <translation>Verringert die Anzahl der Farben, sodass aus weichen Verläufen Stufen werden.</translation>
    </message>
    <message>
        <source>Reduces the picture to a few flat colours, like a screen print.</source>
        <translation>Reduziert das Bild auf wenige Farbflächen wie bei einem Siebdruck.</translation>
    </message>
    <message>
        <source>Release</source>
        <translation>Rückstellzeit</translation>
    </message>
    <message>
        <source>Relief</source>
        <translation>Relief</translation>
    </message>
    <message>
        <source>Removes a colour cast by making one colour of the picture neutral.</source>
        <translation>Entfernt einen Farbstich, indem eine Farbe des Bildes neutral wird.</translation>
    </message>
    <message>
        <source>Removes noise from the sound with a trained model.</source>
        <translation>Entfernt Rauschen aus dem Ton mit einem trainierten Modell.</translation>
    </message>
    <message>
        <source>Removes noise from the sound.</source>
        <translation>Entfernt Rauschen aus dem Ton.</translation>
    </message>
    <message>
        <source>Repeats</source>
        <translation>Wiederholungen</translation>
    </message>
    <message>
        <source>Repeats one half of the picture in the other half as in a mirror.</source>
        <translation>Wiederholt eine Bildhälfte wie in einem Spiegel in der anderen.</translation>
    </message>
    <message>
        <source>Repeats the voice, as a rock face does.</source>
        <translation>Wiederholt die Stimme wie eine Felswand.</translation>
    </message>
    <message>
        <source>Resource</source>
        <translation>Ressource</translation>
    </message>
    <message>
        <source>Resource path</source>
        <translation>Ressourcenpfad</translation>
    </message>
    <message>
        <source>Rock band</source>
        <translation>Rockband</translation>
    </message>
    <message>
        <source>Roller tracks</source>
        <translation>Rollenspuren</translation>
    </message>
    <message>
        <source>Rose</source>
        <translation>Rose</translation>
    </message>
    <message>
        <source>Rotates the picture around its centre, by a quarter turn or any other angle.</source>
        <translation>Dreht das Bild um seine Mitte, um eine Vierteldrehung oder jeden anderen Winkel.</translation>
    </message>
    <message>
        <source>Rotation</source>
        <translation>Drehung</translation>
    </message>
    <message>
        <source>Rotation speed</source>
        <translation>Drehgeschwindigkeit</translation>
    </message>
    <message>
        <source>Roughness</source>
        <translation>Rauheit</translation>
    </message>
    <message>
        <source>Saturation</source>
        <translation>Sättigung</translation>
    </message>
    <message>
        <source>Scale</source>
        <translation>Skalierung</translation>
    </message>
    <message>
        <source>Scatters the pixels, as frosted glass does.</source>
        <translation>Streut die Pixel wie Milchglas.</translation>
    </message>
    <message>
        <source>Scratches</source>
        <translation>Kratzer</translation>
    </message>
    <message>
        <source>Screen angle</source>
        <translation>Rasterwinkel</translation>
    </message>
    <message>
        <source>Second half</source>
        <translation>Zweite Hälfte</translation>
    </message>
    <message>
        <source>Second picture</source>
        <translation>Zweites Bild</translation>
    </message>
    <message>
        <source>Sensitivity</source>
        <translation>Empfindlichkeit</translation>
    </message>
    <message>
        <source>Several effects that are stored and applied together.</source>
        <translation>Mehrere Effekte, die zusammen gespeichert und angewendet werden.</translation>
    </message>
    <message>
        <source>Shader</source>
        <translation>Shader</translation>
    </message>
    <message>
        <source>Shadows</source>
        <translation>Schatten</translation>
    </message>
    <message>
        <source>Shake</source>
        <translation>Wackeln</translation>
    </message>
    <message>
        <source>Shakes the picture as if the camera were held in an unsteady hand.</source>
        <translation>Verwackelt das Bild, als würde die Kamera in unruhiger Hand gehalten.</translation>
    </message>
    <message>
        <source>Shape</source>
        <translation>Form</translation>
    </message>
    <message>
        <source>Shape 0</source>
        <translation>Form 0</translation>
    </message>
    <message>
        <source>Shape 1</source>
        <translation>Form 1</translation>
    </message>
    <message>
        <source>Shift</source>
        <translation>Versatz</translation>
    </message>
    <message>
        <source>Shows a part of the picture and cuts off the rest.</source>
        <translation>Zeigt einen Ausschnitt des Bildes und schneidet den Rest ab.</translation>
    </message>
    <message>
        <source>Shows a part of the picture in a part of the frame, so that clips can share the screen.</source>
        <translation>Zeigt einen Teil des Bildes in einem Teil des Rahmens, sodass sich mehrere Clips den Bildschirm teilen.</translation>
    </message>
    <message>
        <source>Shows a small picture on top of another one.</source>
        <translation>Zeigt ein kleines Bild über einem anderen.</translation>
    </message>
    <message>
        <source>Shows only the outlines in the picture.</source>
        <translation>Zeigt nur die Umrisse im Bild.</translation>
    </message>
    <message>
        <source>Shows the picture as if through a patterned pane.</source>
        <translation>Zeigt das Bild wie durch eine gemusterte Scheibe.</translation>
    </message>
    <message>
        <source>Shows the picture as on an old tube set, with stripes across it.</source>
        <translation>Zeigt das Bild wie auf einem alten Röhrengerät, von Streifen durchzogen.</translation>
    </message>
    <message>
        <source>Shows the picture as through a fish-eye lens.</source>
        <translation>Zeigt das Bild wie durch ein Fischaugenobjektiv.</translation>
    </message>
    <message>
        <source>Silences the pauses by turning down what is quieter than the threshold.</source>
        <translation>Beruhigt Pausen, indem alles unterhalb des Schwellenwerts leiser wird.</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Größe</translation>
    </message>
    <message>
        <source>Size and position of the frame while it follows no track</source>
        <translation>Größe und Lage des Rahmens, solange er keiner Spur folgt</translation>
    </message>
    <message>
        <source>Size and position of the frame within the tracked rectangle</source>
        <translation>Größe und Lage des Rahmens im verfolgten Rechteck</translation>
    </message>
    <message>
        <source>Size and position of the inner picture; by default it fills the frame</source>
        <translation>Größe und Lage des inneren Bildes; anfangs füllt es den Rahmen</translation>
    </message>
    <message>
        <source>Size and position of the picture in the frame; what lies outside is cut off</source>
        <translation>Größe und Lage des Bildes im Rahmen; was außerhalb liegt, wird abgeschnitten</translation>
    </message>
    <message>
        <source>Small speakers</source>
        <translation>Kleine Lautsprecher</translation>
    </message>
    <message>
        <source>Smoothness</source>
        <translation>Glättung</translation>
    </message>
    <message>
        <source>Snow crystal</source>
        <translation>Schneekristall</translation>
    </message>
    <message>
        <source>Softens the picture and turns points of light into hearts, stars or other shapes.</source>
        <translation>Zeichnet das Bild weich und macht aus Lichtpunkten Herzen, Sterne oder andere Formen.</translation>
    </message>
    <message>
        <source>Softens the whole picture evenly.</source>
        <translation>Zeichnet das ganze Bild gleichmäßig weich.</translation>
    </message>
    <message>
        <source>Softness</source>
        <translation>Weichheit</translation>
    </message>
    <message>
        <source>Source</source>
        <translation>Quelle</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Geschwindigkeit</translation>
    </message>
    <message>
        <source>Spinning snowflake</source>
        <translation>Rotierende Schneeflocke</translation>
    </message>
    <message>
        <source>Splits the picture into tiles.</source>
        <translation>Teilt das Bild in Kacheln.</translation>
    </message>
    <message>
        <source>Spread</source>
        <translation>Streuung</translation>
    </message>
    <message>
        <source>Spreads the tones of the picture from full black to full white.</source>
        <translation>Spreizt die Tonwerte des Bildes von vollem Schwarz bis zu vollem Weiß.</translation>
    </message>
    <message>
        <source>Star</source>
        <translation>Stern</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Beginn</translation>
    </message>
    <message>
        <source>Strength</source>
        <translation>Stärke</translation>
    </message>
    <message>
        <source>Strength of the colours; -1 is grey, 1 is three times as strong</source>
        <translation>Kraft der Farben; -1 ist grau, 1 ist dreifach so kräftig</translation>
    </message>
    <message>
        <source>Strip</source>
        <translation>Filmstreifen</translation>
    </message>
    <message>
        <source>Strip 0</source>
        <translation>Streifen 0</translation>
    </message>
    <message>
        <source>Strip 1</source>
        <translation>Streifen 1</translation>
    </message>
    <message>
        <source>Strip 2</source>
        <translation>Streifen 2</translation>
    </message>
    <message>
        <source>Stripe width</source>
        <translation>Streifenbreite</translation>
    </message>
    <message>
        <source>Strong black</source>
        <translation>Schwarz, stark</translation>
    </message>
    <message>
        <source>Strong black, mode 5</source>
        <translation>Schwarz, stark, Modus 5</translation>
    </message>
    <message>
        <source>Strong white</source>
        <translation>Weiß, stark</translation>
    </message>
    <message>
        <source>Supports intensity</source>
        <translation>Unterstützt Intensität</translation>
    </message>
    <message>
        <source>Surrounds the picture with turning echoes of itself.</source>
        <translation>Umgibt das Bild mit drehenden Echos seiner selbst.</translation>
    </message>
    <message>
        <source>Swaps left and right</source>
        <translation>Vertauscht links und rechts</translation>
    </message>
    <message>
        <source>Swinging snowflake</source>
        <translation>Pendelnde Schneeflocke</translation>
    </message>
    <message>
        <source>Tag</source>
        <translation>Kennung</translation>
    </message>
    <message>
        <source>Takes the transparency of the picture from a second picture.</source>
        <translation>Übernimmt die Transparenz des Bildes aus einem zweiten Bild.</translation>
    </message>
    <message>
        <source>Target</source>
        <translation>Ziel</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>Farbtemperatur</translation>
    </message>
    <message>
        <source>Terms</source>
        <translation>Glieder</translation>
    </message>
    <message>
        <source>The file that the effect uses</source>
        <translation>Datei, die der Effekt verwendet</translation>
    </message>
    <message>
        <source>The file with the lookup table</source>
        <translation>Datei mit der Farbtabelle</translation>
    </message>
    <message>
        <source>The shader file</source>
        <translation>Shader-Datei</translation>
    </message>
    <message>
        <source>Threshold</source>
        <translation>Schwellenwert</translation>
    </message>
    <message>
        <source>Tiles across</source>
        <translation>Kacheln waagerecht</translation>
    </message>
    <message>
        <source>Tiles down</source>
        <translation>Kacheln senkrecht</translation>
    </message>
    <message>
        <source>Time before the room answers; the stock uses 3 to 45 ms</source>
        <translation>Zeit, bis der Raum antwortet; die Vorlagen verwenden 3 bis 45 ms</translation>
    </message>
    <message>
        <source>Tint</source>
        <translation>Tönung</translation>
    </message>
    <message>
        <source>Tone</source>
        <translation>Klangfarbe</translation>
    </message>
    <message>
        <source>Transparency</source>
        <translation>Transparenz</translation>
    </message>
    <message>
        <source>Turns all colours around the colour wheel; 1 and -1 are half a turn</source>
        <translation>Dreht alle Farben im Farbkreis; 1 und -1 sind eine halbe Drehung</translation>
    </message>
    <message>
        <source>Turns the colours into their opposites, like a photographic negative.</source>
        <translation>Kehrt die Farben um wie bei einem Fotonegativ.</translation>
    </message>
    <message>
        <source>Turns the pattern; the stock uses 0 to 0.5</source>
        <translation>Dreht das Muster; die Vorlagen verwenden 0 bis 0,5</translation>
    </message>
    <message>
        <source>Turns the picture clockwise; 360 is a full turn</source>
        <translation>Dreht das Bild im Uhrzeigersinn; 360 ist eine volle Drehung</translation>
    </message>
    <message>
        <source>Turns the picture into strokes of a brush.</source>
        <translation>Verwandelt das Bild in Pinselstriche.</translation>
    </message>
    <message>
        <source>Turns the picture upside down</source>
        <translation>Stellt das Bild auf den Kopf</translation>
    </message>
    <message>
        <source>Turns the picture upside down or swaps left and right.</source>
        <translation>Stellt das Bild auf den Kopf oder vertauscht links und rechts.</translation>
    </message>
    <message>
        <source>Turns the rows of dots; 360 is a full turn</source>
        <translation>Dreht die Punktreihen; 360 ist eine volle Drehung</translation>
    </message>
    <message>
        <source>Turns the strokes; 360 is a full turn</source>
        <translation>Dreht die Striche; 360 ist eine volle Drehung</translation>
    </message>
    <message>
        <source>Twist speed</source>
        <translation>Verdrehgeschwindigkeit</translation>
    </message>
    <message>
        <source>Twists the picture around its centre like a whirlpool.</source>
        <translation>Verdreht das Bild um seine Mitte wie ein Strudel.</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Typ</translation>
    </message>
    <message>
        <source>Umbrella</source>
        <translation>Regenschirm</translation>
    </message>
    <message>
        <source>Under which group the effect is offered</source>
        <translation>Gruppe, unter der der Effekt angeboten wird</translation>
    </message>
    <message>
        <source>Upper frequency</source>
        <translation>Obere Frequenz</translation>
    </message>
    <message>
        <source>Upper line, a</source>
        <translation>Obere Linie, a</translation>
    </message>
    <message>
        <source>Upper line, b</source>
        <translation>Obere Linie, b</translation>
    </message>
    <message>
        <source>Upper line, c</source>
        <translation>Obere Linie, c</translation>
    </message>
    <message>
        <source>Values of the shader&apos;s own controls; empty for those in the file</source>
        <translation>Werte der eigenen Regler des Shaders; leer für die Werte in der Datei</translation>
    </message>
    <message>
        <source>Vertical</source>
        <translation>Vertikal</translation>
    </message>
    <message>
        <source>Vertical repeat</source>
        <translation>Vertikale Wiederholung</translation>
    </message>
    <message>
        <source>Vertical shift</source>
        <translation>Vertikale Verschiebung</translation>
    </message>
    <message>
        <source>Video</source>
        <translation>Video</translation>
    </message>
    <message>
        <source>Vignetting</source>
        <translation>Vignettierung</translation>
    </message>
    <message>
        <source>Warmer above 0, colder below</source>
        <translation>Über 0 wärmer, darunter kälter</translation>
    </message>
    <message>
        <source>Wave shape</source>
        <translation>Wellenform</translation>
    </message>
    <message>
        <source>What becomes transparent</source>
        <translation>Was durchsichtig wird</translation>
    </message>
    <message>
        <source>What covers the picture outside of the highlighted areas</source>
        <translation>Was das Bild außerhalb der hervorgehobenen Bereiche bedeckt</translation>
    </message>
    <message>
        <source>What flies; any other number takes the nearest image and leaves its flight to the render engine</source>
        <translation>Was fliegt; jede andere Zahl nimmt das nächstliegende Objekt und überlässt dessen Flug der Render-Engine</translation>
    </message>
    <message>
        <source>What is kept</source>
        <translation>Was erhalten bleibt</translation>
    </message>
    <message>
        <source>What is let through best; the stock uses 180 to 1000 Hz</source>
        <translation>Was am besten durchgelassen wird; die Vorlagen verwenden 180 bis 1000 Hz</translation>
    </message>
    <message>
        <source>What is shown for the preset</source>
        <translation>Was für die Vorlage angezeigt wird</translation>
    </message>
    <message>
        <source>What points of light turn into</source>
        <translation>Was aus Lichtpunkten wird</translation>
    </message>
    <message>
        <source>What replaces the others</source>
        <translation>Ersetzt die anderen</translation>
    </message>
    <message>
        <source>What the edges look like; any other number leaves the choice to the render engine</source>
        <translation>Aussehen der Ränder; bei jeder anderen Zahl entscheidet die Render-Engine</translation>
    </message>
    <message>
        <source>What the file contains; LUTs and shaders are other files</source>
        <translation type="vanished">Inhalt der Datei; LUTs und Shader sind andere Dateien</translation>
    </message>
    <message>
        <source>What the glow looks like</source>
        <translation>Aussehen des Leuchtens</translation>
    </message>
    <message>
        <source>What the grain looks like</source>
        <translation>Aussehen des Korns</translation>
    </message>
    <message>
        <source>What the holder contains, in the order in which it was added</source>
        <translation>Inhalt in der Reihenfolge, in der er hinzugefügt wurde</translation>
    </message>
    <message>
        <source>What the reflections look like</source>
        <translation>Aussehen der Reflexe</translation>
    </message>
    <message>
        <source>What the shader expects of the render engine</source>
        <translation>Was der Shader von der Render-Engine erwartet</translation>
    </message>
    <message>
        <source>What the strokes look like</source>
        <translation>Aussehen der Striche</translation>
    </message>
    <message>
        <source>What the tiles look like</source>
        <translation>Aussehen der Kacheln</translation>
    </message>
    <message>
        <source>When the voice comes back, and how loud</source>
        <translation>Wann und wie laut die Stimme wiederkehrt</translation>
    </message>
    <message>
        <source>Where that file is on disk</source>
        <translation>Speicherort dieser Datei</translation>
    </message>
    <message>
        <source>Where the bands come from; only the bands themselves change the sound</source>
        <translation>Woher die Bänder stammen; nur die Bänder selbst verändern den Klang</translation>
    </message>
    <message>
        <source>Where the effect begins in the clip</source>
        <translation>Stelle im Clip, an der der Effekt beginnt</translation>
    </message>
    <message>
        <source>Whether the effect works on pictures or on sound</source>
        <translation>Ob der Effekt auf das Bild oder auf den Ton wirkt</translation>
    </message>
    <message>
        <source>Whether the strength of the shader can be set</source>
        <translation>Ob sich die Stärke des Shaders einstellen lässt</translation>
    </message>
    <message>
        <source>Which effect it is; decides what the render engine does</source>
        <translation>Legt fest, welcher Effekt es ist und was die Render-Engine tut</translation>
    </message>
    <message>
        <source>Which look the picture gets</source>
        <translation>Look, den das Bild erhält</translation>
    </message>
    <message>
        <source>Which of the variants is used; any other number leaves the choice to the render engine</source>
        <translation>Verwendete Variante; bei jeder anderen Zahl entscheidet die Render-Engine</translation>
    </message>
    <message>
        <source>Which parts grow; any other number leaves all settings to the render engine</source>
        <translation>Welche Teile wachsen; jede andere Zahl überlässt alle Einstellungen der Render-Engine</translation>
    </message>
    <message>
        <source>Whose colours the picture takes</source>
        <translation>Wessen Farben das Bild annimmt</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>Breite</translation>
    </message>
    <message>
        <source>Width of the transition at both edges; the stock uses 0.2 to 0.3</source>
        <translation>Breite des Übergangs an beiden Kanten; die Vorlagen verwenden 0,2 bis 0,3</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>Zoom</translation>
    </message>
</context>
</TS>
