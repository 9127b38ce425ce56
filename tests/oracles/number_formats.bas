' Answers a list of questions about numbers with Basic's own Format, Str and Val.
'
' Each line of the question file has four fields, parted by tabs: "format", "str", "str1" (the value
' is held as Single) or "val"; the value as its parts (see PartsOf), or for "val" the codes of the
' text's characters; the pattern of "format". Each line of the answer file holds, again parted by
' a tab, the parts of the value as Basic held it (for "val": of the result) and the text.
Option Explicit

Sub Main(QuestionFile As String, AnswerFile As String)
  Dim sLine As String
  Open QuestionFile For Input As #1
  Open AnswerFile For Output As #2
  Do While Not Eof(1)
    Line Input #1, sLine
    Print #2, AnswerTo(sLine)
  Loop
  Close #2
  Close #1
  StarDesktop.terminate()
End Sub

Function AnswerTo(sLine As String) As String
  Dim vFields, dValue As Double, fValue As Single
  On Error GoTo Failed
  vFields = Split(sLine, Chr(9))
  Select Case vFields(0)
    Case "format"
      dValue = ValueOf(vFields(1))
      AnswerTo = PartsOf(dValue) & Chr(9) & Format(dValue, vFields(2))
    Case "str"
      dValue = ValueOf(vFields(1))
      AnswerTo = PartsOf(dValue) & Chr(9) & Str(dValue)
    Case "str1"
      fValue = ValueOf(vFields(1))
      dValue = fValue
      AnswerTo = PartsOf(dValue) & Chr(9) & Str(fValue)
    Case "digits"
      dValue = ValueOf(vFields(1))
      AnswerTo = PartsOf(dValue) & Chr(9) & Format(dValue, "0.00000000000000E+00")
    Case "digits1"
      fValue = ValueOf(vFields(1))
      dValue = fValue
      AnswerTo = PartsOf(dValue) & Chr(9) & Format(fValue, "0.000000E+00")
    Case "val"
      AnswerTo = PartsOf(Val(TextOf(vFields(1)))) & Chr(9)
  End Select
  Exit Function
Failed:
  AnswerTo = "error " & Err & Chr(9)
End Function

' A value travels as sign, upper and lower 27 bits of its mantissa and the power of two, so that no
' conversion of decimal digits is trusted on the way.
Function ValueOf(sParts As String) As Double
  Dim vParts
  vParts = Split(sParts, " ")
  ValueOf = (CDbl(vParts(1)) * 134217728# + CDbl(vParts(2))) * 2# ^ CDbl(vParts(3))
  If vParts(0) = "-" Then ValueOf = -ValueOf
End Function

Function PartsOf(ByVal dValue As Double) As String
  Dim sSign As String, dUpper As Double, nPower As Long
  sSign = "+"
  If dValue < 0 Then sSign = "-"
  dValue = Abs(dValue)
  If dValue > 1.7976931348623157E308 Then
    PartsOf = sSign & " inf"
    Exit Function
  End If
  nPower = 0
  If dValue > 0 Then
    Do While dValue >= 9007199254740992#
      dValue = dValue / 2
      nPower = nPower + 1
    Loop
    Do While dValue < 4503599627370496#
      dValue = dValue * 2
      nPower = nPower - 1
    Loop
  End If
  dUpper = Int(dValue / 134217728#)
  PartsOf = sSign & " " & dUpper & " " & (dValue - dUpper * 134217728#) & " " & nPower
End Function

Function TextOf(sCodes As String) As String
  Dim vCode, sText As String
  sText = ""
  If Len(sCodes) > 0 Then
    For Each vCode In Split(sCodes, " ")
      sText = sText & Chr(CInt(vCode))
    Next
  End If
  TextOf = sText
End Function
