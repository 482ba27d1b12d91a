' A host in the script: it keeps the loci, is asked by name, and runs the Save As page itself.
'
'     cscript //nologo script_host.vbs
Option Explicit

Dim maker, host, page, parameters, locus, stored(9)

Class ScriptHost
    Public Count

    ' The library makes the objects; a host may as well bring its own.
    Public Function Create(kind)
        Set Create = maker.Create(kind)
    End Function

    Public Function Query(name, ordering)
        Dim found, i
        If name = "Projects" Then
            Query = maker.Query(name, ordering)
        ElseIf Count = 0 Then
            Query = Array()
        Else
            found = Array()
            ReDim found(Count - 1)
            For i = 0 To Count - 1
                Set found(i) = stored(i)
            Next
            Query = found
        End If
    End Function

    Public Sub Save(locus)
        Dim number
        number = locus.LocusID
        If number = 0 Then
            Count = Count + 1
            number = Count
            locus.LocusID = number
            locus.LocusTagID = number
        End If
        Set stored(number - 1) = locus
        WScript.Echo "stored " & locus.LocusTag & " under " & number
    End Sub

    ' Called while the editor's page waits for its button's answer.
    Public Function StartWizard(name, parameters)
        Dim page
        WScript.Echo "wizard " & name
        Set page = CreateObject("Tamrivo.SaveAsLocusPage")
        Set page.Host = host
        page.Open parameters
        page.Paste "txtLocusName", "FGA-wide"
        StartWizard = page.Validate
        page.Save
    End Function

    Public Function ShowMessage(text, kind, title)
        WScript.Echo title & ": " & text
        ShowMessage = 1
    End Function

    Public Sub ReportError(className, procedure, number, text, final)
        WScript.Echo "report: " & className & " " & procedure & ": " & text
    End Sub
End Class

Set maker = CreateObject("Tamrivo.Service").Host
Set host = New ScriptHost
host.Count = 0

Set locus = host.Create("Locus")
locus.LocusTag = "FGA"
locus.FragStart = 100
locus.ShortestAlleleSize = 100
locus.FragEnd = 300
host.Save locus

Set page = CreateObject("Tamrivo.LocusEditorPage")
Set page.Host = host
Set parameters = host.Create("Parameters")
parameters.Add locus, "Locus"
page.Open parameters
page.Click "cmdSaveAs"

If host.Count <> 2 Then WScript.Quit 1
' The page keeps its host as long as it lives.
Set host = Nothing
page.Save
WScript.Echo "done"
WScript.Quit 0
