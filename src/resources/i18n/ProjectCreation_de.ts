<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE">
<context>
    <name>BatchFile</name>
    <message>
        <source>A batch file can not be given an argument with a line break: %1</source>
        <translation>Einer Stapeldatei kann kein Argument mit einem Zeilenumbruch übergeben werden: %1</translation>
    </message>
</context>
<context>
    <name>ActionPage</name>
    <message>
        <source>&amp;Stop</source>
        <translation>An&amp;halten</translation>
    </message>
    <message>
        <source>Create the Project</source>
        <translation>Projekt erstellen</translation>
    </message>
    <message>
        <source>Conversion in progress...</source>
        <translation>Die Konvertierung läuft...</translation>
    </message>
    <message>
        <source>Stop the conversion program and everything it started</source>
        <translation>Das Konvertierungsprogramm und alles, was es gestartet hat, anhalten</translation>
    </message>
    <message>
        <source>Output of the conversion</source>
        <translation>Ausgabe der Konvertierung</translation>
    </message>
    <message>
        <source>Error: No project conversion available</source>
        <translation>Fehler: Keine Projektkonvertierung verfügbar</translation>
    </message>
    <message>
        <source>Converting Project Progress:</source>
        <translation>Fortschritt der Projektkonvertierung:</translation>
    </message>
    <message>
        <source>Conversion Started
</source>
        <translation>Konvertierung gestartet
</translation>
    </message>
    <message numerus="yes">
        <source>[%n line(s) not shown]</source>
        <translation>
            <numerusform>[%n Zeile nicht angezeigt]</numerusform>
            <numerusform>[%n Zeilen nicht angezeigt]</numerusform>
        </translation>
    </message>
    <message>
        <source>Complete output, until the wizard is closed: %1</source>
        <translation>Vollständige Ausgabe, solange der Assistent geöffnet ist: %1</translation>
    </message>
    <message>
        <source>Conversion Operation Finished</source>
        <translation>Die Konvertierung ist beendet</translation>
    </message>
    <message>
        <source>Converting Project Status:</source>
        <translation>Status der Projektkonvertierung:</translation>
    </message>
    <message>
        <source>Conversion Complete
</source>
        <translation>Konvertierung abgeschlossen
</translation>
    </message>
    <message>
        <source>Progress of the conversion</source>
        <translation>Fortschritt der Konvertierung</translation>
    </message>
    <message>
        <source>Output, without its end, until the wizard is closed: %1</source>
        <translation>Ausgabe ohne ihr Ende, solange der Assistent geöffnet ist: %1</translation>
    </message>
</context>
<context>
    <name>AppRegistry</name>
    <message>
        <source>Version</source>
        <translation>Version</translation>
    </message>
    <message>
        <source>-file &lt;file.xml&gt;: use &lt;file.xml&gt; instead of settings.xml</source>
        <translation>-file &lt;file.xml&gt;: use &lt;file.xml&gt; instead of settings.xml</translation>
    </message>
    <message>
        <source>-tracefile: %1 is no trace and is not overwritten</source>
        <translation>-tracefile: %1 ist keine Ablaufverfolgung und wird nicht überschrieben</translation>
    </message>
</context>
<context>
    <name>ApplicationWindow</name>
    <message>
        <source>Orv C</source>
        <translation>Orv C</translation>
    </message>
    <message>
        <source>Orv C++</source>
        <translation>Orv C++</translation>
    </message>
    <message>
        <source>Conversion in progress</source>
        <translation>Konvertierung läuft</translation>
    </message>
    <message>
        <source>The conversion is still running. Closing the wizard stops it, and the new project file will not be created.
Do you wish to close the wizard?</source>
        <translation>Die Konvertierung läuft noch. Wenn Sie den Assistenten schließen, wird sie angehalten und die neue Projektdatei nicht erstellt.
Möchten Sie den Assistenten schließen?</translation>
    </message>
    <message>
        <source>Output of the conversion</source>
        <translation>Ausgabe der Konvertierung</translation>
    </message>
    <message>
        <source>The conversion program printed nothing.</source>
        <translation>Das Konvertierungsprogramm hat nichts ausgegeben.</translation>
    </message>
    <message>
        <source>The output could not be kept: the temporary folder %1 is full or can not be written. Make room there and convert again.</source>
        <translation>Die Ausgabe konnte nicht aufbewahrt werden: Der temporäre Ordner %1 ist voll oder nicht beschreibbar. Schaffen Sie dort Platz und konvertieren Sie noch einmal.</translation>
    </message>
    <message>
        <source>-tools: the name of a project file must follow.</source>
        <translation>-tools: Es muss der Name einer Projektdatei folgen.</translation>
    </message>
    <message>
        <source>%1 is not a file. Choose a project file (.prj).</source>
        <translation>%1 ist keine Datei. Wählen Sie eine Projektdatei (.prj).</translation>
    </message>
    <message>
        <source>The project file %1 does not exist. Check its name and folder.</source>
        <translation>Die Projektdatei %1 existiert nicht. Prüfen Sie Namen und Ordner.</translation>
    </message>
    <message>
        <source>The project file %1 can not be read: %2</source>
        <translation>Die Projektdatei %1 kann nicht gelesen werden: %2</translation>
    </message>
    <message>
        <source>%1 holds no project. Create the project anew, or choose another file.</source>
        <translation>%1 enthält kein Projekt. Erstellen Sie das Projekt neu oder wählen Sie eine andere Datei.</translation>
    </message>
    <message>
        <source>The definitions file %1 declares no tools, so there is nothing to open %2 with.</source>
        <translation>Die Definitionsdatei %1 enthält keine Werkzeuge, mit denen %2 geöffnet werden könnte.</translation>
    </message>
    <message>
        <source>the conversion</source>
        <translation>die Konvertierung</translation>
    </message>
    <message>
        <source>This project type declares nothing to convert: Finish closes the wizard, and no project is created.</source>
        <translation>Diese Projektart sieht nichts zu konvertieren vor: Abschließen beendet den Assistenten, ohne dass ein Projekt entsteht.</translation>
    </message>
    <message>
        <source>The project is there, but what you have entered on the pages before will be forgotten. Finish keeps it for the next time.</source>
        <translation>Das Projekt ist erstellt, aber Ihre Eingaben auf den vorigen Seiten werden vergessen. Mit Abschließen bleiben sie für das nächste Mal erhalten.</translation>
    </message>
</context>
<context>
    <name>ArgumentSubstitution</name>
    <message>
        <source>Warning: &quot;%1&quot; holds %2, which this conversion type replaces: the conversion program gets another text. Choose a name without it.</source>
        <translation>Warnung: „%1“ enthält %2, was diese Konvertierungsart ersetzt: Das Konvertierungsprogramm bekommt einen anderen Text. Wählen Sie einen Namen ohne dieses Zeichen.</translation>
    </message>
</context>
<context>
    <name>AssistantClient</name>
    <message>
        <source>The help viewer %1 could not be started: %2</source>
        <translation>Die Hilfeanzeige %1 konnte nicht gestartet werden: %2</translation>
    </message>
    <message>
        <source>The help viewer %1 has ended unexpectedly. Ask for help again to restart it.</source>
        <translation>Die Hilfeanzeige %1 wurde unerwartet beendet. Rufen Sie die Hilfe erneut auf, um sie neu zu starten.</translation>
    </message>
    <message>
        <source>The help viewer %1 has ended with an error: %2</source>
        <translation>Der Hilfebetrachter %1 hat sich mit einem Fehler beendet: %2</translation>
    </message>
</context>
<context>
    <name>BatchArguments</name>
    <message>
        <source>-input wants &lt;name&gt;=&lt;value&gt;, not &quot;%1&quot;</source>
        <translation>-input erwartet &lt;Name&gt;=&lt;Wert&gt;, nicht „%1“</translation>
    </message>
    <message>
        <source>-prj &lt;file&gt; is missing: the project file to be created</source>
        <translation>-prj &lt;Datei&gt; fehlt: die zu erstellende Projektdatei</translation>
    </message>
    <message>
        <source>-type &lt;name&gt; is missing: the conversion type; -batch -list-types lists them</source>
        <translation>-type &lt;Name&gt; fehlt: die Konvertierungsart; -batch -list-types führt sie auf</translation>
    </message>
    <message>
        <source>%1 wants a value</source>
        <translation>%1 erwartet einen Wert</translation>
    </message>
    <message>
        <source>unknown argument &quot;%1&quot;; -batch -help lists them</source>
        <translation>unbekanntes Argument „%1“; -batch -help führt sie auf</translation>
    </message>
    <message>
        <source>%1 is given twice</source>
        <translation>%1 ist zweimal angegeben</translation>
    </message>
    <message>
        <source>%1 does not go with %2</source>
        <translation>%1 passt nicht zu %2</translation>
    </message>
    <message>
        <source>-timeout wants a number of seconds from 1 to %1, not &quot;%2&quot;</source>
        <translation>-timeout braucht eine Zahl von Sekunden von 1 bis %1, nicht „%2“</translation>
    </message>
    <message>
        <source>-prj &lt;file&gt; is missing: the project file that the launcher works on</source>
        <translation>-prj &lt;Datei&gt; fehlt: die Projektdatei, mit der das Werkzeug arbeitet</translation>
    </message>
    <message>
        <source>Usage: ProjectCreation -batch -prj &lt;file&gt; -type &lt;name&gt; [options]
  Converts a build description to a project file without a window.
  -prj &lt;file&gt;            project file to be created
  -type &lt;name&gt;           conversion type
  -input &lt;name&gt;=&lt;value&gt;  value of an input of that type; may be repeated
  -c, -cpp               analyser, where the type and the installation leave it open
  -mp, -ap, -cp &lt;file&gt;   message, analyser and compiler personality
  -module &lt;name&gt;         compliance module that gives the personalities
  -overwrite             replace an existing project file
  -dry-run               say what would run, and run nothing
  -timeout &lt;seconds&gt;     stop the conversion after that time
  -quiet                 say nothing unless something fails
  --json                 the result as JSON on standard output
  -file &lt;file&gt;           definitions file
  -trace, -tracefile &lt;file&gt;
       ProjectCreation -batch -list-types [--json]
       ProjectCreation -batch -list-inputs &lt;type&gt; [--json]
       ProjectCreation -batch -check &lt;file&gt;
  Looks for mistakes in a definitions file.
       ProjectCreation -batch -run &lt;launcher&gt; -prj &lt;file&gt; [-c | -cpp] [-timeout &lt;seconds&gt;]
  Runs a tool of the suite on a project; the exit status is the tool&apos;s.
Exit status: 0 the conversion program ended with 0 and the project file was created, 1 it failed
or the output could not be written, 2 wrong arguments.
</source>
        <translation>Aufruf: ProjectCreation -batch -prj &lt;Datei&gt; -type &lt;Name&gt; [Optionen]
  Konvertiert ohne Fenster eine Build-Beschreibung in eine Projektdatei.
  -prj &lt;Datei&gt;           Projektdatei, die erstellt werden soll
  -type &lt;Name&gt;           Konvertierungsart
  -input &lt;Name&gt;=&lt;Wert&gt;   Wert einer Eingabe dieser Art; mehrfach möglich
  -c, -cpp               Analysator, wo Art und Installation ihn offen lassen
  -mp, -ap, -cp &lt;Datei&gt;  Meldungs-, Analysator- und Compilerkonfiguration
  -module &lt;Name&gt;         Regelwerk, das die Konfigurationen vorgibt
  -overwrite             eine vorhandene Projektdatei ersetzen
  -dry-run               sagen, was laufen würde, und nichts ausführen
  -timeout &lt;Sekunden&gt;    die Konvertierung nach dieser Zeit anhalten
  -quiet                 nur sprechen, wenn etwas scheitert
  --json                 das Ergebnis als JSON auf der Standardausgabe
  -file &lt;Datei&gt;          Definitionsdatei
  -trace, -tracefile &lt;Datei&gt;
       ProjectCreation -batch -list-types [--json]
       ProjectCreation -batch -list-inputs &lt;Art&gt; [--json]
       ProjectCreation -batch -check &lt;Datei&gt;
  Sucht Fehler in einer Definitionsdatei.
       ProjectCreation -batch -run &lt;Werkzeug&gt; -prj &lt;Datei&gt; [-c | -cpp] [-timeout &lt;Sekunden&gt;]
  Führt ein Werkzeug der Suite mit einem Projekt aus; der Endestatus ist der des Werkzeugs.
Endestatus: 0 das Konvertierungsprogramm endete mit 0 und die Projektdatei wurde erstellt, 1 es scheiterte
oder die Ausgabe konnte nicht geschrieben werden, 2 falsche Argumente.
</translation>
    </message>
</context>
<context>
    <name>BatchCheck</name>
    <message>
        <source>the program of &quot;%1&quot; is not found: %2</source>
        <translation>das Programm von „%1“ wird nicht gefunden: %2</translation>
    </message>
    <message>
        <source>the configuration file of &quot;%1&quot; does not exist: %2</source>
        <translation>die Konfigurationsdatei von „%1“ existiert nicht: %2</translation>
    </message>
    <message>
        <source>it is not a file</source>
        <translation>es ist keine Datei</translation>
    </message>
    <message>
        <source>-check: %1 can not be read: %2</source>
        <translation>-check: %1 kann nicht gelesen werden: %2</translation>
    </message>
    <message>
        <source>reading ends here: %1</source>
        <translation>hier endet das Lesen: %1</translation>
    </message>
</context>
<context>
    <name>BatchConversion</name>
    <message>
        <source>-type: there is no conversion type &quot;%1&quot;; -batch -list-types lists them</source>
        <translation>-type: Es gibt keine Konvertierungsart „%1“; -batch -list-types führt sie auf</translation>
    </message>
    <message>
        <source>the conversion type serves both analysers: choose with -c or -cpp</source>
        <translation>die Konvertierungsart dient beiden Analysatoren: Wählen Sie mit -c oder -cpp</translation>
    </message>
    <message>
        <source>-input: &quot;%1&quot; must name an existing file</source>
        <translation>-input: „%1“ muss eine vorhandene Datei nennen</translation>
    </message>
    <message>
        <source>-input: &quot;%1&quot; must be given</source>
        <translation>-input: „%1“ muss angegeben werden</translation>
    </message>
    <message>
        <source>%1: the configuration file %2 does not exist</source>
        <translation>%1: Die Konfigurationsdatei %2 existiert nicht</translation>
    </message>
    <message>
        <source>%1: the configuration file %2 is for the other analyser</source>
        <translation>%1: Die Konfigurationsdatei %2 gehört zum anderen Analysator</translation>
    </message>
    <message>
        <source>-prj: %1 already exists; -overwrite replaces it</source>
        <translation>-prj: %1 existiert bereits; -overwrite ersetzt die Datei</translation>
    </message>
    <message>
        <source>%1: this conversion type or installation allows only the other analyser</source>
        <translation>%1: diese Konvertierungsart oder Installation erlaubt nur den anderen Analysator</translation>
    </message>
    <message>
        <source>-prj: %1 can not be the project file; it would become %2</source>
        <translation>-prj: %1 kann nicht die Projektdatei sein; es würde %2 daraus</translation>
    </message>
    <message>
        <source>there are no KOVRA Analysers installed on this machine</source>
        <translation>auf diesem Rechner sind keine KOVRA-Analysatoren installiert</translation>
    </message>
    <message>
        <source>%1 does not go with -module: &quot;%2&quot; has that file</source>
        <translation>%1 passt nicht zu -module: „%2“ hat diese Datei</translation>
    </message>
    <message>
        <source>-module: there is no compliance module &quot;%1&quot; for this analyser; installed are: %2</source>
        <translation>-module: Es gibt für diesen Analysator kein Regelwerk „%1“; installiert sind: %2</translation>
    </message>
    <message>
        <source>-prj: %1 is a link to %2, which does not exist; -overwrite replaces it</source>
        <translation>-prj: %1 ist ein Verweis auf %2, das nicht existiert; -overwrite ersetzt ihn</translation>
    </message>
    <message numerus="yes">
        <source>-timeout: the conversion took longer than %n second(s)</source>
        <translation>
            <numerusform>-timeout: Die Konvertierung dauerte länger als %n Sekunde</numerusform>
            <numerusform>-timeout: Die Konvertierung dauerte länger als %n Sekunden</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 was left by a conversion that failed</source>
        <translation>%1 stammt von einer Konvertierung, die gescheitert ist</translation>
    </message>
    <message>
        <source>-prj: can not create file %1: %2</source>
        <translation>-prj: Die Datei %1 kann nicht erstellt werden: %2</translation>
    </message>
    <message>
        <source>-prj: the folder %1 can not be created: %2</source>
        <translation>-prj: Der Ordner %1 kann nicht erstellt werden: %2</translation>
    </message>
</context>
<context>
    <name>BatchInputs</name>
    <message>
        <source>the conversion type has no input &quot;%1&quot;; -batch -list-inputs &lt;type&gt; lists them</source>
        <translation>die Konvertierungsart hat keine Eingabe „%1“; -batch -list-inputs &lt;Art&gt; führt sie auf</translation>
    </message>
    <message>
        <source>several inputs are called &quot;%1&quot;; name the one you mean as group/input</source>
        <translation>mehrere Eingaben heißen „%1“; nennen Sie die gewünschte in der Form Gruppe/Eingabe</translation>
    </message>
    <message>
        <source>the input &quot;%1&quot; is a switch: give it 1 or 0, not &quot;%2&quot;</source>
        <translation>die Eingabe „%1“ ist ein Schalter: Geben Sie 1 oder 0 an, nicht „%2“</translation>
    </message>
    <message>
        <source>the input &quot;%1&quot; is for the other analyser</source>
        <translation>die Eingabe „%1“ gehört zum anderen Analysator</translation>
    </message>
    <message>
        <source>the input &quot;%1&quot; is one of a choice: give 1 to the one you want</source>
        <translation>die Eingabe „%1“ ist Teil einer Auswahl: Geben Sie der gewünschten den Wert 1</translation>
    </message>
</context>
<context>
    <name>BatchLauncher</name>
    <message>
        <source>-run: there is no launcher &quot;%1&quot;; known are: %2</source>
        <translation>-run: Es gibt kein Werkzeug „%1“; bekannt sind: %2</translation>
    </message>
    <message>
        <source>-prj: %1 is no project file: %2</source>
        <translation>-prj: %1 ist keine Projektdatei: %2</translation>
    </message>
    <message>
        <source>-run: &quot;%1&quot; has no program for this analyser</source>
        <translation>-run: „%1“ hat kein Programm für diesen Analysator</translation>
    </message>
    <message>
        <source>-run: &quot;%1&quot; can not run: %2 is not found</source>
        <translation>-run: „%1“ kann nicht laufen: %2 wird nicht gefunden</translation>
    </message>
    <message>
        <source>A temporary file can not be written in %1. Make room there or make it writable.</source>
        <translation>In %1 kann keine temporäre Datei geschrieben werden. Schaffen Sie dort Platz, oder machen Sie den Ordner beschreibbar.</translation>
    </message>
    <message>
        <source>%1 can not be started: %2</source>
        <translation>%1 kann nicht gestartet werden: %2</translation>
    </message>
    <message>
        <source>%1 was stopped</source>
        <translation>%1 wurde angehalten</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
</context>
<context>
    <name>BatchListing</name>
    <message>
        <source>must exist</source>
        <translation>muss existieren</translation>
    </message>
    <message>
        <source>must be set</source>
        <translation>Pflichtangabe</translation>
    </message>
    <message>
        <source>Orv C only</source>
        <translation>nur Orv C</translation>
    </message>
    <message>
        <source>Orv C++ only</source>
        <translation>nur Orv C++</translation>
    </message>
    <message>
        <source>default &quot;%1&quot;</source>
        <translation>Vorgabe „%1“</translation>
    </message>
    <message>
        <source>default for C &quot;%1&quot;</source>
        <translation>Vorgabe für C „%1“</translation>
    </message>
    <message>
        <source>default for C++ &quot;%1&quot;</source>
        <translation>Vorgabe für C++ „%1“</translation>
    </message>
    <message>
        <source>message personality</source>
        <translation>Meldungskonfiguration</translation>
    </message>
    <message>
        <source>analyser personality</source>
        <translation>Analysatorkonfiguration</translation>
    </message>
    <message>
        <source>compiler personality</source>
        <translation>Compilerkonfiguration</translation>
    </message>
</context>
<context>
    <name>BatchMode</name>
    <message>
        <source>there is no conversion type &quot;%1&quot;; -batch -list-types lists them</source>
        <translation>es gibt keine Konvertierungsart „%1“; -batch -list-types führt sie auf</translation>
    </message>
    <message>
        <source>note: %1</source>
        <translation>Hinweis: %1</translation>
    </message>
    <message>
        <source>no conversion types: the definitions file %1 is missing or not of the correct format; -trace tells more</source>
        <translation>keine Konvertierungsarten: Die Definitionsdatei %1 fehlt oder hat nicht das richtige Format; -trace sagt mehr</translation>
    </message>
</context>
<context>
    <name>BatchOutput</name>
    <message>
        <source>standard output can not be written</source>
        <translation>die Standardausgabe kann nicht geschrieben werden</translation>
    </message>
    <message>
        <source>warning: %1</source>
        <translation>Warnung: %1</translation>
    </message>
</context>
<context>
    <name>BusyDialog</name>
    <message>
        <source>&quot;%1&quot; is running.</source>
        <translation>„%1“ läuft.</translation>
    </message>
    <message>
        <source>&amp;Stop</source>
        <translation>An&amp;halten</translation>
    </message>
    <message>
        <source>Progress of %1</source>
        <translation>Fortschritt von %1</translation>
    </message>
</context>
<context>
    <name>ConfPage</name>
    <message>
        <source>Select Compiler Configuration Options</source>
        <translation>Konfiguration für den Compiler auswählen</translation>
    </message>
    <message>
        <source>Select Project Configuration Options</source>
        <translation>Konfiguration für das Projekt auswählen</translation>
    </message>
    <message>
        <source>Select Message Configuration Options</source>
        <translation>Konfiguration für die Meldungen auswählen</translation>
    </message>
    <message>
        <source>Compiler Configuration File:</source>
        <translation>Konfigurationsdatei für den Compiler:</translation>
    </message>
    <message>
        <source>Project Configuration Template File:</source>
        <translation>Vorlagendatei für die Projektkonfiguration:</translation>
    </message>
    <message>
        <source>Message Configuration File:</source>
        <translation>Konfigurationsdatei für die Meldungen:</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Keines</translation>
    </message>
    <message>
        <source>Compliance Modules:</source>
        <translation>Compliance-Module:</translation>
    </message>
    <message>
        <source>Configuration Files:</source>
        <translation>Konfigurationsdateien:</translation>
    </message>
    <message>
        <source>%1 Configuration Information</source>
        <translation>Angaben zur Konfiguration für %1</translation>
    </message>
    <message>
        <source>Specify configuration information required by the new %1 project file</source>
        <translation>Geben Sie die Konfiguration an, die die neue Projektdatei für %1 benötigt</translation>
    </message>
    <message>
        <source>To continue, name an existing file as &quot;%1&quot;.</source>
        <translation>Um fortzufahren, geben Sie unter „%1“ eine vorhandene Datei an.</translation>
    </message>
    <message>
        <source>Incorrect Configuration File Selected</source>
        <translation>Falsche Konfigurationsdatei ausgewählt</translation>
    </message>
    <message>
        <source>A %1 configuration file can not be selected when using the %2 analyser</source>
        <translation>Eine Konfigurationsdatei für %1 kann nicht ausgewählt werden, wenn der Analysator %2 verwendet wird</translation>
    </message>
</context>
<context>
    <name>ConversionRun</name>
    <message>
        <source>New project file: </source>
        <translation>Neue Projektdatei: </translation>
    </message>
    <message>
        <source>Error: Project file [%1] not created</source>
        <translation>Fehler: Projektdatei [%1] wurde nicht erstellt</translation>
    </message>
    <message>
        <source>Error: Could not run conversion process</source>
        <translation>Fehler: Das Konvertierungsprogramm konnte nicht ausgeführt werden</translation>
    </message>
    <message>
        <source>Error: Conversion Process Failed</source>
        <translation>Fehler: Die Konvertierung ist fehlgeschlagen</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>The conversion program did not end.</source>
        <translation>Das Konvertierungsprogramm hat sich nicht beendet.</translation>
    </message>
    <message>
        <source>The conversion was stopped.</source>
        <translation>Die Konvertierung wurde angehalten.</translation>
    </message>
    <message>
        <source>The conversion program ended with exit code %1.</source>
        <translation>Das Konvertierungsprogramm endete mit dem Exit-Code %1.</translation>
    </message>
    <message>
        <source>The conversion program ended with exit code %1. The project may be incomplete.</source>
        <translation>Das Konvertierungsprogramm endete mit dem Exit-Code %1. Das Projekt ist vielleicht unvollständig.</translation>
    </message>
    <message>
        <source>The project file that it left is empty.</source>
        <translation>Die Projektdatei, die es hinterließ, ist leer.</translation>
    </message>
    <message>
        <source>The project file that was there before is kept.</source>
        <translation>Die Projektdatei, die vorher da war, bleibt erhalten.</translation>
    </message>
    <message>
        <source>The project file that was there before is kept as %1.</source>
        <translation>Die Projektdatei, die vorher da war, bleibt als %1 erhalten.</translation>
    </message>
</context>
<context>
    <name>DefinitionsReader</name>
    <message>
        <source>%1 in &lt;exeargs&gt; stands for nothing: no input of &quot;%2&quot; has it in its &lt;argDef&gt;</source>
        <translation>%1 in &lt;exeargs&gt; steht für nichts: Keine Eingabe von „%2“ hat es in ihrem &lt;argDef&gt;</translation>
    </message>
    <message>
        <source>the value of the input &quot;%1&quot; reaches no argument: %2 is not in &lt;exeargs&gt;</source>
        <translation>der Wert der Eingabe „%1“ erreicht kein Argument: %2 steht nicht in &lt;exeargs&gt;</translation>
    </message>
    <message>
        <source>&lt;projectCreator&gt; has no &lt;name&gt; and can not be chosen</source>
        <translation>&lt;projectCreator&gt; hat kein &lt;name&gt; und kann nicht gewählt werden</translation>
    </message>
    <message>
        <source>&lt;projectCreator&gt; has no &lt;exe&gt; and can not be run</source>
        <translation>&lt;projectCreator&gt; hat kein &lt;exe&gt; und kann nicht laufen</translation>
    </message>
    <message>
        <source>&lt;projectCreator&gt; serves no analyser: neither &lt;orvcProject&gt; nor &lt;orvcppProject&gt; is 1</source>
        <translation>&lt;projectCreator&gt; dient keinem Analysator: Weder &lt;orvcProject&gt; noch &lt;orvcppProject&gt; ist 1</translation>
    </message>
    <message>
        <source>&lt;%1&gt; is not known in &lt;%2&gt; and is passed over</source>
        <translation>&lt;%1&gt; ist in &lt;%2&gt; nicht bekannt und wird übergangen</translation>
    </message>
    <message>
        <source>%1=&quot;%2&quot; counts as absent; known are %3</source>
        <translation>%1=„%2“ gilt als nicht angegeben; bekannt sind %3</translation>
    </message>
    <message>
        <source>&lt;%1&gt; wants a number; &quot;%2&quot; counts as 0</source>
        <translation>&lt;%1&gt; braucht eine Zahl; „%2“ gilt als 0</translation>
    </message>
    <message>
        <source>&lt;inputType&gt; &quot;%1&quot; is not known and counts as absent</source>
        <translation>&lt;inputType&gt; „%1“ ist nicht bekannt und gilt als nicht angegeben</translation>
    </message>
    <message>
        <source>&lt;mustBeSet&gt; wants FILE_MUST_EXIST, 1 or 0; &quot;%1&quot; counts as 0</source>
        <translation>&lt;mustBeSet&gt; braucht FILE_MUST_EXIST, 1 oder 0; „%1“ gilt als 0</translation>
    </message>
    <message>
        <source>&lt;inputData&gt; has no &lt;displayName&gt;</source>
        <translation>&lt;inputData&gt; hat kein &lt;displayName&gt;</translation>
    </message>
    <message>
        <source>&lt;application&gt; has no name</source>
        <translation>&lt;application&gt; hat keinen Namen</translation>
    </message>
</context>
<context>
    <name>DisplayCheck</name>
    <message>
        <source>not set</source>
        <translation>nicht gesetzt</translation>
    </message>
    <message>
        <source>no display to open a window on (%1; DISPLAY is %2). Start it in a desktop session, or convert without a window: -batch -help tells how.</source>
        <translation>keine Anzeige, auf der sich ein Fenster öffnen lässt (%1; DISPLAY ist %2). Starten Sie das Programm in einer Desktop-Sitzung, oder konvertieren Sie ohne Fenster: -batch -help sagt, wie.</translation>
    </message>
</context>
<context>
    <name>DisplayDialog</name>
    <message>
        <source>Back</source>
        <translation>Zurück</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>Vorwärts</translation>
    </message>
    <message>
        <source>Print...</source>
        <translation>Drucken...</translation>
    </message>
    <message>
        <source>Print Report</source>
        <translation>Bericht drucken</translation>
    </message>
    <message>
        <source>[Only the beginning of the report is shown here]</source>
        <translation>[Hier wird nur der Anfang des Berichts gezeigt]</translation>
    </message>
    <message>
        <source>&amp;Open in the browser</source>
        <translation>Im &amp;Browser öffnen</translation>
    </message>
    <message>
        <source>[This is only the beginning: the report is too long for this window, and no temporary file could be written for the browser]</source>
        <translation>[Dies ist nur der Anfang: Der Bericht ist zu lang für dieses Fenster, und für den Browser konnte keine temporäre Datei geschrieben werden]</translation>
    </message>
    <message>
        <source>[This is only the beginning: the report is too long for this window. Until the wizard is closed it is in %1]</source>
        <translation>[Dies ist nur der Anfang: Der Bericht ist zu lang für dieses Fenster. Solange der Assistent geöffnet ist, steht er in %1]</translation>
    </message>
    <message>
        <source>No browser could be started. The report is in %1; open it with a program of your choice.</source>
        <translation>Es konnte kein Browser gestartet werden. Der Bericht steht in %1; öffnen Sie ihn mit einem Programm Ihrer Wahl.</translation>
    </message>
    <message>
        <source>it is no file that holds text</source>
        <translation>das ist keine Datei mit Text</translation>
    </message>
    <message>
        <source>&amp;Find...</source>
        <translation>S&amp;uchen...</translation>
    </message>
</context>
<context>
    <name>DisplayOptionsPage</name>
    <message>
        <source>Analyse and Display Operations</source>
        <translation>Analyse und Anzeige</translation>
    </message>
    <message>
        <source>Now that the project is created launch an application to analyse and display the project information</source>
        <translation>Das Projekt ist erstellt. Starten Sie nun eine Anwendung, um die Projektinformationen zu analysieren und anzuzeigen</translation>
    </message>
    <message>
        <source>New Project Conversion</source>
        <translation>Neue Projektkonvertierung</translation>
    </message>
    <message>
        <source>Show the &amp;conversion&apos;s output...</source>
        <translation>&amp;Ausgabe der Konvertierung zeigen...</translation>
    </message>
    <message>
        <source>Launch an application to analyse and display the project information</source>
        <translation>Starten Sie eine Anwendung, um die Projektinformationen zu analysieren und anzuzeigen</translation>
    </message>
    <message>
        <source>Project: %1</source>
        <translation>Projekt: %1</translation>
    </message>
</context>
<context>
    <name>FindDialog</name>
    <message>
        <source>Nothing found.</source>
        <translation>Nichts gefunden.</translation>
    </message>
    <message>
        <source>Files found: %1.</source>
        <translation>Gefundene Dateien: %1.</translation>
    </message>
    <message>
        <source>The search was stopped.</source>
        <translation>Die Suche wurde angehalten.</translation>
    </message>
    <message>
        <source>searching:</source>
        <translation>suche in:</translation>
    </message>
    <message>
        <source>&amp;Search</source>
        <translation>&amp;Suchen</translation>
    </message>
    <message>
        <source>&amp;Ok</source>
        <translation>&amp;OK</translation>
    </message>
    <message>
        <source>Search for file</source>
        <translation>Datei suchen</translation>
    </message>
    <message>
        <source>Files Located</source>
        <translation>Gefundene Dateien</translation>
    </message>
    <message>
        <source>Search location:</source>
        <translation>Suchen in:</translation>
    </message>
    <message>
        <source>B&amp;rowse</source>
        <translation>&amp;Durchsuchen</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Abbrechen</translation>
    </message>
    <message>
        <source>Starting Directory</source>
        <translation>Startordner</translation>
    </message>
    <message>
        <source>Unable to search for files</source>
        <translation>Dateisuche nicht möglich</translation>
    </message>
    <message>
        <source>The specified search location does not exist</source>
        <translation>Der angegebene Suchort existiert nicht</translation>
    </message>
    <message>
        <source>The specified search location must be a directory</source>
        <translation>Der angegebene Suchort muss ein Ordner sein</translation>
    </message>
    <message>
        <source>Searching:</source>
        <translation>Suche:</translation>
    </message>
    <message>
        <source>Stop Search</source>
        <translation>Suche anhalten</translation>
    </message>
    <message>
        <source>Find Files</source>
        <translation>Dateien suchen</translation>
    </message>
    <message>
        <source>Shown: %1.</source>
        <translation>Angezeigt: %1.</translation>
    </message>
    <message>
        <source>Show only paths with these words</source>
        <translation>Nur Pfade mit diesen Wörtern zeigen</translation>
    </message>
    <message>
        <source>%1
Name a folder, or choose one with Browse.</source>
        <translation>%1
Nennen Sie einen Ordner, oder wählen Sie einen mit Durchsuchen.</translation>
    </message>
</context>
<context>
    <name>HelpManager</name>
    <message>
        <source>The help page %1 is not there. Install the suite&apos;s help again.</source>
        <translation>Die Hilfeseite %1 ist nicht vorhanden. Installieren Sie die Hilfe der Suite erneut.</translation>
    </message>
    <message>
        <source>Assistant Error</source>
        <translation>Fehler der Hilfeanzeige</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
</context>
<context>
    <name>HelpViewer</name>
    <message>
        <source>Help</source>
        <translation>Hilfe</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Zurück</translation>
    </message>
</context>
<context>
    <name>LauncherOutput</name>
    <message>
        <source>[The output is longer than this and could not be kept]</source>
        <translation>[Die Ausgabe ist länger und konnte nicht aufbewahrt werden]</translation>
    </message>
    <message>
        <source>[The output is longer than this. Until the wizard is closed it is, without its end, in %1]</source>
        <translation>[Die Ausgabe ist länger. Solange der Assistent geöffnet ist, steht sie ohne ihr Ende in %1]</translation>
    </message>
    <message>
        <source>[The output is longer than this. Until the wizard is closed it is in %1]</source>
        <translation>[Die Ausgabe ist länger. Solange der Assistent geöffnet ist, steht sie in %1]</translation>
    </message>
</context>
<context>
    <name>MessageBox</name>
    <message>
        <source>Meanwhile:</source>
        <translation>Inzwischen:</translation>
    </message>
    <message numerus="yes">
        <source>... and %n more</source>
        <translation>
            <numerusform>... und %n weiterer</numerusform>
            <numerusform>... und %n weitere</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>OrvWizardWindow</name>
    <message>
        <source>&amp;Print</source>
        <translation>&amp;Drucken</translation>
    </message>
    <message>
        <source>Child Applications Still Running</source>
        <translation>Gestartete Anwendungen laufen noch</translation>
    </message>
    <message>
        <source>Closing this application will kill child applications.
Do you wish to close this application?</source>
        <translation>Wenn Sie diese Anwendung schließen, werden die von ihr gestarteten Anwendungen beendet.
Möchten Sie diese Anwendung schließen?</translation>
    </message>
    <message>
        <source>a program that a tool has left running</source>
        <translation>ein Programm, das ein Werkzeug laufen ließ</translation>
    </message>
    <message>
        <source>window &quot;%1&quot;</source>
        <translation>Fenster „%1“</translation>
    </message>
    <message>
        <source>Still open: %1</source>
        <translation>Noch offen: %1</translation>
    </message>
    <message>
        <source>Do you wish to close the wizard?</source>
        <translation>Möchten Sie den Assistenten schließen?</translation>
    </message>
</context>
<context>
    <name>PageData</name>
    <message>
        <source>%1 (what it started)</source>
        <translation>%1 (was es gestartet hat)</translation>
    </message>
</context>
<context>
    <name>ProgressBar</name>
    <message>
        <source>%1 of %2</source>
        <translation>%1 von %2</translation>
    </message>
</context>
<context>
    <name>Project</name>
    <message>
        <source>Project file not selected</source>
        <translation>Keine Projektdatei ausgewählt</translation>
    </message>
    <message>
        <source>This project file does not exist</source>
        <translation>Diese Projektdatei existiert nicht</translation>
    </message>
    <message>
        <source>This is not a valid file selection</source>
        <translation>Diese Dateiauswahl ist ungültig</translation>
    </message>
    <message>
        <source>This project file is not a valid KOVRA project file</source>
        <translation>Diese Projektdatei ist keine gültige KOVRA-Projektdatei</translation>
    </message>
    <message>
        <source>This project does not contain any source files</source>
        <translation>Dieses Projekt enthält keine Quelldateien</translation>
    </message>
    <message>
        <source>None of the files specified in this project exist</source>
        <translation>Keine der in diesem Projekt angegebenen Dateien existiert</translation>
    </message>
    <message>
        <source>Some of the files specified in this project do not exist, of those that exist, analysis is complete</source>
        <translation>Einige der in diesem Projekt angegebenen Dateien existieren nicht, die Analyse der vorhandenen ist vollständig</translation>
    </message>
    <message>
        <source>Some of the files specified in this project do not exist, of those that exist, some analysis output exists</source>
        <translation>Einige der in diesem Projekt angegebenen Dateien existieren nicht, zu den vorhandenen liegen teilweise Analyseergebnisse vor</translation>
    </message>
    <message>
        <source>Some of the files specified in this project do not exist, no analysis output exists</source>
        <translation>Einige der in diesem Projekt angegebenen Dateien existieren nicht, Analyseergebnisse liegen nicht vor</translation>
    </message>
    <message>
        <source>This project has not been analysed yet</source>
        <translation>Dieses Projekt wurde noch nicht analysiert</translation>
    </message>
    <message>
        <source>Analysis of this project is out of date</source>
        <translation>Die Analyse dieses Projekts ist veraltet</translation>
    </message>
    <message>
        <source>This project has been partially analysed</source>
        <translation>Dieses Projekt wurde teilweise analysiert</translation>
    </message>
    <message>
        <source>Analysis of this project is complete</source>
        <translation>Die Analyse dieses Projekts ist vollständig</translation>
    </message>
    <message>
        <source>, but configuration changed since last analysis</source>
        <translation>, aber die Konfiguration wurde seit der letzten Analyse geändert</translation>
    </message>
    <message>
        <source>Files in project:</source>
        <translation>Dateien im Projekt:</translation>
    </message>
    <message>
        <source>Existing files:</source>
        <translation>Vorhandene Dateien:</translation>
    </message>
    <message>
        <source>Analysed files:</source>
        <translation>Analysierte Dateien:</translation>
    </message>
    <message>
        <source>Analysed with:</source>
        <translation>Analysiert mit:</translation>
    </message>
    <message>
        <source>unknown</source>
        <translation>unbekannt</translation>
    </message>
</context>
<context>
    <name>ProjectData</name>
    <message>
        <source>The temporary file %1 can not be written: %2. Make room in its folder or make it writable.</source>
        <translation>Die temporäre Datei %1 kann nicht geschrieben werden: %2. Schaffen Sie Platz in ihrem Ordner, oder machen Sie ihn beschreibbar.</translation>
    </message>
    <message>
        <source>A temporary file can not be made in %1. Make room there or make it writable.</source>
        <translation>In %1 kann keine temporäre Datei angelegt werden. Schaffen Sie dort Platz, oder machen Sie den Ordner beschreibbar.</translation>
    </message>
</context>
<context>
    <name>ProjectPlace</name>
    <message>
        <source>A folder stands where the project file is to be: %1. Rename it or choose another name.</source>
        <translation>Wo die Projektdatei hin soll, steht ein Ordner: %1. Benennen Sie ihn um, oder wählen Sie einen anderen Namen.</translation>
    </message>
    <message>
        <source>Another conversion is making this project file (process %1 on %2). Wait for its end; if it is gone, remove %3.</source>
        <translation>Eine andere Konvertierung erstellt diese Projektdatei (Prozess %1 auf %2). Warten Sie auf ihr Ende; gibt es sie nicht mehr, so entfernen Sie %3.</translation>
    </message>
    <message>
        <source>Another conversion is making this project file. Wait for its end; if it is gone, remove %1.</source>
        <translation>Eine andere Konvertierung erstellt diese Projektdatei. Warten Sie auf ihr Ende; gibt es sie nicht mehr, so entfernen Sie %1.</translation>
    </message>
    <message>
        <source>The project file&apos;s folder can not be written: %1 can not be made there. Make room there or make it writable.</source>
        <translation>Der Ordner der Projektdatei ist nicht beschreibbar: %1 kann dort nicht angelegt werden. Schaffen Sie dort Platz, oder machen Sie ihn beschreibbar.</translation>
    </message>
    <message>
        <source>The old project file %1 can not be put aside: %2. Close programs that use it.</source>
        <translation>Die alte Projektdatei %1 kann nicht beiseitegelegt werden: %2. Schließen Sie Programme, die sie benutzen.</translation>
    </message>
    <message>
        <source>a link to %1</source>
        <translation>ein Verweis auf %1</translation>
    </message>
    <message>
        <source>a folder</source>
        <translation>ein Ordner</translation>
    </message>
    <message>
        <source>no regular file</source>
        <translation>keine gewöhnliche Datei</translation>
    </message>
    <message>
        <source>What the conversion program made there is no project file but %1.</source>
        <translation>Was das Konvertierungsprogramm dort erstellt hat, ist keine Projektdatei, sondern %1.</translation>
    </message>
    <message>
        <source>The old project file could not be brought back (%1). It is kept as %2.</source>
        <translation>Die alte Projektdatei konnte nicht zurückgeholt werden (%1). Sie bleibt als %2 erhalten.</translation>
    </message>
    <message>
        <source>The old project file is lost: the conversion program removed it from where it waited.</source>
        <translation>Die alte Projektdatei ist verloren: Das Konvertierungsprogramm hat sie dort entfernt, wo sie wartete.</translation>
    </message>
</context>
<context>
    <name>RunAppData</name>
    <message>
        <source>No data returned from process</source>
        <translation>Der Prozess hat keine Daten geliefert</translation>
    </message>
    <message>
        <source>Failed to Start</source>
        <translation>Start fehlgeschlagen</translation>
    </message>
    <message>
        <source>Process Crashed</source>
        <translation>Prozess abgestürzt</translation>
    </message>
    <message>
        <source>Process Failed</source>
        <translation>Prozess fehlgeschlagen</translation>
    </message>
    <message>
        <source>running...</source>
        <translation>läuft...</translation>
    </message>
    <message>
        <source>Disabled, could not locate required executables:</source>
        <translation>Deaktiviert, benötigte Programme wurden nicht gefunden:</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Anhalten</translation>
    </message>
    <message>
        <source>This application is already running</source>
        <translation>Diese Anwendung läuft bereits</translation>
    </message>
    <message>
        <source>A temporary file can not be written in %1. Make room there or make it writable.</source>
        <translation>In %1 kann keine temporäre Datei geschrieben werden. Schaffen Sie dort Platz, oder machen Sie den Ordner beschreibbar.</translation>
    </message>
    <message>
        <source>Available once this has succeeded: %1</source>
        <translation>Verfügbar, sobald dies gelungen ist: %1</translation>
    </message>
    <message>
        <source>stopping...</source>
        <translation>wird angehalten...</translation>
    </message>
    <message>
        <source>Running. The small button on it and its context menu stop it.</source>
        <translation>Läuft. Die kleine Schaltfläche darauf und das Kontextmenü halten das Werkzeug an.</translation>
    </message>
    <message>
        <source>Exit code: %1</source>
        <translation>Exit-Code: %1</translation>
    </message>
    <message>
        <source>Command: %1</source>
        <translation>Befehl: %1</translation>
    </message>
    <message>
        <source>The end of its output:</source>
        <translation>Das Ende der Ausgabe:</translation>
    </message>
    <message>
        <source>The end of its error output:</source>
        <translation>Das Ende der Fehlerausgabe:</translation>
    </message>
    <message>
        <source>%1 ended unexpectedly. What it said is in the details.</source>
        <translation>%1 wurde unerwartet beendet. Die Ausgabe steht in den Details.</translation>
    </message>
    <message>
        <source>%1: %2
Install the suite again, or correct its definitions file.</source>
        <translation>%1: %2
Installieren Sie die Suite neu, oder berichtigen Sie ihre Definitionsdatei.</translation>
    </message>
    <message>
        <source>%1 ended with exit code %2. What it said is in the details.</source>
        <translation>%1 endete mit dem Rückgabewert %2. Die Ausgabe steht in den Details.</translation>
    </message>
</context>
<context>
    <name>RunIndicator</name>
    <message>
        <source>Stop</source>
        <translation>Stopp</translation>
    </message>
    <message>
        <source>Stop %1</source>
        <translation>%1 anhalten</translation>
    </message>
    <message>
        <source>Progress of %1</source>
        <translation>Fortschritt von %1</translation>
    </message>
</context>
<context>
    <name>SelectFileWidgets</name>
    <message>
        <source>Edit the specified file</source>
        <translation>Die angegebene Datei bearbeiten</translation>
    </message>
    <message>
        <source>&amp;Browse...</source>
        <translation>&amp;Durchsuchen...</translation>
    </message>
    <message>
        <source>Browse the file directory structure to locate the required file</source>
        <translation>Die Ordner durchblättern, um die benötigte Datei auszuwählen</translation>
    </message>
    <message>
        <source>&amp;Find...</source>
        <translation>S&amp;uchen...</translation>
    </message>
    <message>
        <source>Perform a search on the file directory structure to locate the required file</source>
        <translation>Die Ordner nach der benötigten Datei durchsuchen</translation>
    </message>
    <message>
        <source>Edit failed</source>
        <translation>Bearbeiten nicht möglich</translation>
    </message>
    <message>
        <source>Can not edit file, the file does not exist</source>
        <translation>Die Datei kann nicht bearbeitet werden, sie existiert nicht</translation>
    </message>
    <message>
        <source>Can not open file</source>
        <translation>Die Datei kann nicht geöffnet werden</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Bearbeiten</translation>
    </message>
    <message>
        <source>%1
Check the name, or choose another file.</source>
        <translation>%1
Prüfen Sie den Namen, oder wählen Sie eine andere Datei.</translation>
    </message>
    <message>
        <source>%1: %2
Choose another file, or ask for the right to read this one.</source>
        <translation>%1: %2
Wählen Sie eine andere Datei, oder bitten Sie um das Recht, diese zu lesen.</translation>
    </message>
    <message>
        <source>Show the file</source>
        <translation>Datei anzeigen</translation>
    </message>
</context>
<context>
    <name>SetProductPage</name>
    <message>
        <source>Orv C [Project is &apos;C&apos; Code Only]</source>
        <translation>Orv C [Projekt enthält nur C-Code]</translation>
    </message>
    <message>
        <source>Orv C++ [Project contains &apos;C++&apos; Code]</source>
        <translation>Orv C++ [Projekt enthält C++-Code]</translation>
    </message>
    <message>
        <source>Select KOVRA Analyser Tool</source>
        <translation>KOVRA-Analysator auswählen</translation>
    </message>
    <message>
        <source>Specify which Orv tool will be used to analyse the source code.</source>
        <translation>Geben Sie an, welches Orv-Werkzeug den Quellcode analysieren soll.</translation>
    </message>
    <message>
        <source>You need to select which of the KOVRA analyser tools you will be using to analyse the newly created project. 

Orv C and Orv C++ operate with different configuration settings so it is important to specify which of these analysers you will be using. 

If your project is purely &apos;C&apos; code then select Orv C. 

If your project is a mixture of &apos;C&apos; and &apos;C++&apos; code then select Orv C++ or create separate projects for the &apos;C&apos; and &apos;C++&apos; parts of your project.</source>
        <translation>Wählen Sie aus, mit welchem der KOVRA-Analysatoren Sie das neu erstellte Projekt analysieren werden. 

Orv C und Orv C++ arbeiten mit unterschiedlichen Konfigurationen. Daher ist es wichtig anzugeben, welchen der beiden Analysatoren Sie verwenden werden. 

Wenn Ihr Projekt ausschließlich aus C-Code besteht, wählen Sie Orv C. 

Wenn Ihr Projekt C- und C++-Code enthält, wählen Sie Orv C++, oder erstellen Sie getrennte Projekte für den C- und den C++-Teil Ihres Projekts.</translation>
    </message>
    <message>
        <source>KOVRA Analyser</source>
        <translation>KOVRA-Analysator</translation>
    </message>
    <message>
        <source>&lt;font color=&apos;red&apos;&gt;&lt;U&gt;WARNING&lt;/U&gt;&lt;P&gt;There are no KOVRA Analysers installed on this machine.&lt;/font&gt;</source>
        <translation>&lt;font color=&apos;red&apos;&gt;&lt;U&gt;WARNUNG&lt;/U&gt;&lt;P&gt;Auf diesem Rechner sind keine KOVRA-Analysatoren installiert.&lt;/font&gt;</translation>
    </message>
</context>
<context>
    <name>StartPage</name>
    <message>
        <source>Select Directory</source>
        <translation>Ordner auswählen</translation>
    </message>
    <message>
        <source>*</source>
        <translation>*</translation>
    </message>
    <message>
        <source>Project Information</source>
        <translation>Projektangaben</translation>
    </message>
    <message>
        <source>Specify new project name and conversion project type</source>
        <translation>Legen Sie den Namen des neuen Projekts und die Art der Konvertierung fest</translation>
    </message>
    <message>
        <source>Name of project to be created:</source>
        <translation>Name des neuen Projekts:</translation>
    </message>
    <message>
        <source>Location for new project file:</source>
        <translation>Ort der neuen Projektdatei:</translation>
    </message>
    <message>
        <source>Original project type:</source>
        <translation>Art des ursprünglichen Projekts:</translation>
    </message>
    <message>
        <source>&lt;P&gt;An error has occured:&lt;P&gt;For this application to operate successfully it requires an xml data file:&lt;P&gt;&lt;b&gt;&lt;i&gt;%1&lt;/i&gt;&lt;/b&gt;.&lt;P&gt;This file is not of the correct format or could not be located.</source>
        <translation>&lt;P&gt;Ein Fehler ist aufgetreten:&lt;P&gt;Diese Anwendung benötigt für ihre Arbeit eine XML-Datei:&lt;P&gt;&lt;b&gt;&lt;i&gt;%1&lt;/i&gt;&lt;/b&gt;.&lt;P&gt;Diese Datei hat nicht das richtige Format oder wurde nicht gefunden.</translation>
    </message>
    <message>
        <source>The selected location for the new project file does not exist.
Do you wish to create this directory?
</source>
        <translation>Der ausgewählte Ort für die neue Projektdatei existiert nicht.
Möchten Sie diesen Ordner erstellen?
</translation>
    </message>
    <message>
        <source>The selected location can not be created.
</source>
        <translation>Der ausgewählte Ort kann nicht erstellt werden.
</translation>
    </message>
    <message>
        <source>Project file already exists</source>
        <translation>Projektdatei existiert bereits</translation>
    </message>
    <message>
        <source>Do you want to overwrite this file?</source>
        <translation>Möchten Sie diese Datei überschreiben?</translation>
    </message>
    <message>
        <source>Can not overwrite file:</source>
        <translation>Datei kann nicht überschrieben werden:</translation>
    </message>
    <message>
        <source>Can not create file:</source>
        <translation>Datei kann nicht erstellt werden:</translation>
    </message>
    <message>
        <source>Project File can not be created</source>
        <translation>Projektdatei kann nicht erstellt werden</translation>
    </message>
    <message>
        <source>To continue, name the project and its folder.</source>
        <translation>Um fortzufahren, geben Sie Namen und Ordner des Projekts an.</translation>
    </message>
    <message>
        <source>%1: %2
Choose another folder, or one in which you may create folders.</source>
        <translation>%1: %2
Wählen Sie einen anderen Ordner, oder einen, in dem Sie Ordner anlegen dürfen.</translation>
    </message>
    <message>
        <source>%1
Choose another name, or a folder in which you may create files.</source>
        <translation>%1
Wählen Sie einen anderen Namen, oder einen Ordner, in dem Sie Dateien anlegen dürfen.</translation>
    </message>
</context>
<context>
    <name>Startup</name>
    <message>
        <source>Create KOVRA Project</source>
        <translation>KOVRA-Projekt erstellen</translation>
    </message>
    <message>
        <source>ProjectCreation options:
-file &lt;file&gt;: xml definition file
-cpp: Create a Orv C++ file
-c: Create a Orv C file
-prj &lt;file&gt;: project file to be created
-mp &lt;file&gt;: Message Personality
-ap &lt;file&gt;: Analyser Personality
-cp &lt;file&gt;: Compiler Personality
</source>
        <translation>ProjectCreation options:
-file &lt;file&gt;: xml definition file
-cpp: Create a Orv C++ file
-c: Create a Orv C file
-prj &lt;file&gt;: project file to be created
-mp &lt;file&gt;: Message Personality
-ap &lt;file&gt;: Analyser Personality
-cp &lt;file&gt;: Compiler Personality
</translation>
    </message>
    <message>
        <source>Without a window: ProjectCreation -batch -help tells how.
</source>
        <translation>Ohne Fenster: ProjectCreation -batch -help sagt, wie.
</translation>
    </message>
</context>
<context>
    <name>StartupWarnings</name>
    <message>
        <source>The definitions file could only be read up to a mistake, and what follows is missing: %1:%2:%3: %4</source>
        <translation>Die Definitionsdatei konnte nur bis zu einem Fehler gelesen werden, und was danach kommt, fehlt: %1:%2:%3: %4</translation>
    </message>
    <message>
        <source>There is no definitions file %1; %2 is used instead.</source>
        <translation>Es gibt keine Definitionsdatei %1; stattdessen wird %2 benutzt.</translation>
    </message>
    <message>
        <source>The environment variable %1 names a folder that does not exist: %2</source>
        <translation>Die Umgebungsvariable %1 nennt einen Ordner, der nicht existiert: %2</translation>
    </message>
    <message>
        <source>The definitions file %1 is used, not the suite&apos;s; -file names the one that you want.</source>
        <translation>Die Definitionsdatei %1 wird benutzt, nicht die der Suite; -file nennt die gewünschte.</translation>
    </message>
</context>
<context>
    <name>TextPortions</name>
    <message>
        <source>[The text is longer; only its beginning is shown]</source>
        <translation>[Der Text ist länger; nur sein Anfang wird gezeigt]</translation>
    </message>
</context>
<context>
    <name>XmlPage</name>
    <message>
        <source>Project Conversion Information</source>
        <translation>Angaben zur Projektkonvertierung</translation>
    </message>
    <message>
        <source>Specify Information that identifies project to be converted</source>
        <translation>Geben Sie an, welches Projekt konvertiert werden soll</translation>
    </message>
    <message>
        <source>To continue, name an existing file or folder in &quot;%1&quot;.</source>
        <translation>Um fortzufahren, geben Sie unter „%1“ eine vorhandene Datei oder einen vorhandenen Ordner an.</translation>
    </message>
    <message>
        <source>To continue, fill in &quot;%1&quot;.</source>
        <translation>Um fortzufahren, füllen Sie „%1“ aus.</translation>
    </message>
</context>
<context>
    <name>PathEdit</name>
    <message>
        <source>There is no file or folder of this name.</source>
        <translation>Es gibt keine Datei und keinen Ordner dieses Namens.</translation>
    </message>
    <message>
        <source>This is a file, not a folder.</source>
        <translation>Das ist eine Datei, kein Ordner.</translation>
    </message>
    <message>
        <source>This is a folder, not a file.</source>
        <translation>Das ist ein Ordner, keine Datei.</translation>
    </message>
</context>
<context>
    <name>FindBar</name>
    <message>
        <source>Went on at the beginning.</source>
        <translation>Am Anfang fortgesetzt.</translation>
    </message>
    <message>
        <source>Went on at the end.</source>
        <translation>Am Ende fortgesetzt.</translation>
    </message>
    <message>
        <source>Not found.</source>
        <translation>Nicht gefunden.</translation>
    </message>
    <message>
        <source>Not found yet. The text is still being read.</source>
        <translation>Noch nicht gefunden. Der Text wird noch gelesen.</translation>
    </message>
    <message>
        <source>&amp;Next</source>
        <translation>&amp;Weiter</translation>
    </message>
    <message>
        <source>&amp;Previous</source>
        <translation>&amp;Zurück</translation>
    </message>
    <message>
        <source>Find in the text</source>
        <translation>Im Text suchen</translation>
    </message>
    <message>
        <source>F&amp;ind:</source>
        <translation>Such&amp;text:</translation>
    </message>
</context>
<context>
    <name>AppPage</name>
    <message>
        <source>Help on this page</source>
        <translation>Hilfe zu dieser Seite</translation>
    </message>
</context>
</TS>
