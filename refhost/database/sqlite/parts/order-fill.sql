-- Gives the rows of ORDER_FILL as the editor of orders and templates takes them: the quantity stands in the column of its
-- unit.
--
-- returns: SKUPSPOL1, SKUPSPOL2, SKUPSPOL3, SKLADPOL, SKLAD, DODAVATEL, MNOZSTVIHL, JEDNOTKYHL, SKPLIDHL, MNOZSTVIV1, JEDNOTKYV1, SKPLIDV1, MNOZSTVIV2, JEDNOTKYV2, SKPLIDV2, POPIS, KOMENTAR

select i.SKUPSPOL1, i.SKUPSPOL2, i.SKUPSPOL3, i.SKLADPOL, s.NAZEV as SKLAD, v.JMENO as DODAVATEL,
       iif(f.UNITID = i.SKPLIDHL, number_text(f.MNOZSTVI), null) as MNOZSTVIHL, i.JEDNOTKYHL, i.SKPLIDHL,
       iif(f.UNITID = i.SKPLIDV1, number_text(f.MNOZSTVI), null) as MNOZSTVIV1, i.JEDNOTKYV1, i.SKPLIDV1,
       iif(f.UNITID = i.SKPLIDV2, number_text(f.MNOZSTVI), null) as MNOZSTVIV2, i.JEDNOTKYV2, i.SKPLIDV2,
       f.POPIS, f.KOMENTAR
from ORDER_FILL f
join ITEM_V i on i.SKLPID = f.ITEMID
join SKLAD s on s.ID = f.SKLDID
left join DODAVATEL v on v.ID = f.DODVID
order by f.LINE;

delete from ORDER_FILL;
