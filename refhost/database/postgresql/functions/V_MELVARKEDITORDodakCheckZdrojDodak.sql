-- 1 for a delivery note that can be the source of another: see note_fault_for_note.
create function V_MELVARKEDITORDodakCheckZdrojDodak(id integer, dodvid integer, note integer, supplier integer)
returns integer
language plpgsql stable as $$
begin
    return (note_fault_for_note(id, dodvid, note, supplier) is null)::integer;
end
$$;
