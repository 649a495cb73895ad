-- What the order editor needs before it opens: the user. Refuses nothing.
--
-- returns: UZIVATEL

select current_user_name() as UZIVATEL;
