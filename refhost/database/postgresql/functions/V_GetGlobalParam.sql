-- The value of a parameter of the company as text; null when there is none.
create function V_GetGlobalParam(section text, name text) returns text
language plpgsql stable as $$
begin
    return (select p.HODNOTA from GLOBALPARAM p where p.SEKCE = section and p.NAZEV = V_GetGlobalParam.name);
end
$$;
