-- What the order editor needs before it opens: the user. Refuses nothing.
create function MELVARKEDITORDodObjInit() returns table (UZIVATEL text)
language sql stable as $$
    select current_user_name()
$$;
