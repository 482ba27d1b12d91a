' Edits a locus on the library's own page, without a host: one in memory stands in.
'
'     cscript //nologo edit_locus.vbs
Option Explicit

Dim page, host, locus, loci, parameters, saved, alleles, binning

' The page is made for its host at its first use; until then only Host is there.
Set page = CreateObject("Tamrivo.LocusEditorPage")
Set host = page.Host

Set locus = host.Create("Locus")
locus.LocusTag = "D3S1358"
locus.FragStart = 92
locus.ShortestAlleleSize = 92
locus.FragEnd = 148
host.Save locus

Set parameters = host.Create("Parameters")
loci = host.Query("CurrentLoci", "Name")
parameters.Add loci(0), "Locus"
page.Open parameters
WScript.Echo "the page has " & (UBound(page.Controls) + 1) & " controls"

page.Paste "txtRepeat", ""
page.Type "txtRepeat", "4x"
WScript.Echo "'4x' typed leaves " & page.Read("txtRepeat", "Text")
page.Click "cmdGenAlleleList"

If Not page.Validate Then WScript.Quit 1
page.Save

loci = host.Query("CurrentLoci", "")
Set saved = loci(0)
alleles = saved.Alleles
WScript.Echo saved.LocusTag & ": repeat " & saved.RepeatLength & " nt, " & _
    (UBound(alleles) + 1) & " alleles, the first of " & _
    alleles(0).AlleleReal1 & " nt"

' What nobody could do is refused, with the reason: while bins are made the button is hidden.
Set binning = CreateObject("Tamrivo.LocusEditorPage")
Set binning.Host = host
Set parameters = host.Create("Parameters")
parameters.Add saved, "Locus"
parameters.Add "Binning", "Binning"
binning.Open parameters
On Error Resume Next
binning.Click "cmdGenAlleleList"
WScript.Echo "refused: " & Err.Description
If Err.Number = 0 Then WScript.Quit 1
On Error Goto 0

WScript.Echo "done"
WScript.Quit 0
