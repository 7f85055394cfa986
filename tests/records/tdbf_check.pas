{ Opens a table with its production index through Free Pascal's TDbf, walks the tag in key
  order, seeks every key, and optionally appends rows through the index (TDbf then splits the
  index's nodes itself). Prints one line; exits 1 when a row is out of order or not found.
    tdbf_check <table> <tag> <field> [rows-to-append] }
program tdbf_check;
{$mode objfpc}{$H+}
uses SysUtils, Classes, db, dbf, dbf_common;
var
  t: TDbf;
  key, prev: string;
  rows, misordered, misses, i: integer;
  keys: TStringList;
begin
  t := TDbf.Create(nil);
  t.FilePathFull := ExtractFilePath(ExpandFileName(ParamStr(1)));
  t.TableName := ExtractFileName(ParamStr(1));
  t.Exclusive := True;
  t.Open;
  t.IndexName := ParamStr(2);
  keys := TStringList.Create;
  rows := 0; misordered := 0; misses := 0; prev := '';
  t.First;
  while not t.EOF do begin
    key := t.FieldByName(ParamStr(3)).AsString;
    if key < prev then inc(misordered);
    prev := key; keys.Add(key); inc(rows); t.Next;
  end;
  for i := 0 to keys.Count - 1 do
    if not t.SearchKey(keys[i], stEqual) then inc(misses);
  for i := 1 to StrToIntDef(ParamStr(4), 0) do begin
    t.Append;
    t.FieldByName(ParamStr(3)).AsString := 'TDBF ' + IntToStr(i mod 37);
    t.Post;
  end;
  t.Close;
  writeln('rows ', rows, ' misordered ', misordered, ' misses ', misses);
  if (misordered > 0) or (misses > 0) or (rows = 0) then Halt(1);
end.
