-- Why a delivery note cannot be the source of another: the code of the refusal, null when it can. An identifier that is
-- null, 0 or negative is none and restricts nothing.
--
-- `dodvid` is the source's supplier, `supplier` that of the note which is filled.
create function note_fault_for_note(id integer, dodvid integer, note integer, supplier integer) returns text
language plpgsql stable as $$
begin
    return case
        when not exists (select from melvark.DODAK d where d.ID = $1) then 'ML021'
        when note > 0 and not exists (select from melvark.DODAK d where d.ID = note) then 'ML010'
        when $1 = note then 'ML027'
        when dodvid > 0 and supplier > 0 and dodvid <> supplier then 'ML024'
    end;
end
$$;
