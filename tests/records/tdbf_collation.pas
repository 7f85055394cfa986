{ Free Pascal's TDbf as another engine that uses a table's language driver:
    tdbf_collation create <table> <level> <language-id> <fields> <tag-field> <keys-file>
      makes a table at dBase level 4 or 7 under the driver, fields given as
      NAME:C:width, NAME:S (smallint, 6 digits), NAME:F (float, 20 digits with 4 decimals) or
      NAME:L, separated by commas, as the older engines made them, with a
      production index tag on one character field, and appends a row per line of the keys
      file (bytes as they are, in the table's code page).
    tdbf_collation walk <table> <tag> <field>
      prints the physical record number of every row in the tag's order, then seeks every
      key through the tag and prints "misses N" (exit 1 when a key is not found).
    tdbf_collation regen <table>
      regenerates every index of the table itself.
    tdbf_collation addtag <table> <tag> <expression> desc|expr
      adds a descending tag on a field, or a tag on an expression.
  Text goes through unchanged: the bytes are the table's own. }
program tdbf_collation;
{$mode objfpc}{$H+}
uses SysUtils, Classes, db, dbf, dbf_common, dbf_dbffile, dbf_idxfile;

type
  TPassThrough = class
    function Translate(Dbf: TDbf; Src, Dest: PChar; ToOem: Boolean): Integer;
    procedure LanguageWarning(Dbf: TDbf; var Action: TDbfLanguageAction);
  end;

function TPassThrough.Translate(Dbf: TDbf; Src, Dest: PChar; ToOem: Boolean): Integer;
begin
  StrCopy(Dest, Src);
  Result := StrLen(Dest);
end;

{ A DOS code page has no translation here: the table stays writable, its bytes untouched. }
procedure TPassThrough.LanguageWarning(Dbf: TDbf; var Action: TDbfLanguageAction);
begin
  Action := laForceANSI;
end;

var
  t: TDbf;
  pass: TPassThrough;
  specs, parts, keys: TStringList;
  i, misses: integer;
  command: string;

procedure OpenTable(const path: string);
begin
  t.FilePathFull := ExtractFilePath(ExpandFileName(path));
  t.TableName := ExtractFileName(path);
  t.Exclusive := True;
  t.OnTranslate := @pass.Translate;
  t.OnLanguageWarning := @pass.LanguageWarning;
end;

begin
  t := TDbf.Create(nil);
  pass := TPassThrough.Create;
  command := ParamStr(1);
  OpenTable(ParamStr(2));
  if command = 'create' then begin
    t.TableLevel := StrToInt(ParamStr(3));
    t.LanguageID := StrToInt(ParamStr(4));
    specs := TStringList.Create;
    specs.Delimiter := ',';
    specs.StrictDelimiter := True;
    specs.DelimitedText := ParamStr(5);
    parts := TStringList.Create;
    parts.Delimiter := ':';
    parts.StrictDelimiter := True;
    for i := 0 to specs.Count - 1 do begin
      parts.DelimitedText := specs[i];
      case parts[1] of
        'C': t.FieldDefs.Add(parts[0], ftString, StrToInt(parts[2]));
        'S': t.FieldDefs.Add(parts[0], ftSmallint, 6);
        'F': with t.FieldDefs.AddFieldDef do begin
               Name := parts[0];
               DataType := ftFloat;
               Size := 20;
               Precision := 4;
             end;
        'L': t.FieldDefs.Add(parts[0], ftBoolean);
      end;
    end;
    t.CreateTable;
    t.Open;
    t.AddIndex(ParamStr(6), ParamStr(6), []);
    keys := TStringList.Create;
    keys.LoadFromFile(ParamStr(7));
    for i := 0 to keys.Count - 1 do begin
      t.Append;
      t.FieldByName(ParamStr(6)).AsString := keys[i];
      t.Post;
    end;
    t.Close;
  end else if command = 'walk' then begin
    t.Open;
    { keys to seek are the table's bytes already: no code page conversion on the way }
    if t.DbfFile.MdxFile <> nil then
      t.DbfFile.MdxFile.CodePage := t.DbfFile.UseCodePage;
    t.IndexName := ParamStr(3);
    keys := TStringList.Create;
    t.First;
    while not t.EOF do begin
      writeln(t.PhysicalRecNo);
      keys.Add(t.FieldByName(ParamStr(4)).AsString);
      t.Next;
    end;
    misses := 0;
    for i := 0 to keys.Count - 1 do
      if not t.SearchKey(keys[i], stEqual) then inc(misses);
    t.Close;
    writeln('misses ', misses);
    if misses > 0 then Halt(1);
  end else if command = 'regen' then begin
    t.Open;
    t.RegenerateIndexes;
    t.Close;
  end else if command = 'addtag' then begin
    t.Open;
    if ParamStr(5) = 'desc' then
      t.AddIndex(ParamStr(3), ParamStr(4), [ixDescending])
    else
      t.AddIndex(ParamStr(3), ParamStr(4), [ixExpression]);
    t.Close;
  end else begin
    writeln(StdErr, 'unknown command ', command);
    Halt(2);
  end;
end.
